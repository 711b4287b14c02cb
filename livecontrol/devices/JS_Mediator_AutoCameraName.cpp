#include "livecontrol/devices/JS_Mediator_AutoCameraName.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/devices/CameraNameFile.h"
#include "livecontrol/interface/HostObject.h"

#include <QFile>

namespace {

QString nameFilePath(HostObject* host) {
    return host->getPrefString(QStringLiteral("usercustom/cameraNameFilePath"), QString(), 0);
}

void append(QJsonArray& list, const QStringList& names, const QString& category) {
    for (const QString& name : names) {
        list.append(QJsonObject{{QStringLiteral("label"), name}, {QStringLiteral("category"), category}});
    }
}

} // namespace

JS_Mediator_AutoCameraName::JS_Mediator_AutoCameraName(HostObject* host, const QString& name,
                                                       QWidget* parentWidget)
    : JS_Mediator(host, name), m_parentWidget(parentWidget) {}

bool JS_Mediator_AutoCameraName::existsAutoCompleteFile() {
    return guarded(
        [&] {
            if (!host()->isCameraNameFileEnabled()) {
                return false;
            }
            const QString path = nameFilePath(host());
            if (!QFile::exists(path)) {
                return false;
            }
            infoLog(QStringLiteral("found file. [%1]").arg(path));
            return true;
        },
        false);
}

QString JS_Mediator_AutoCameraName::autoCompleteCameraList() {
    return guarded(
        [&] {
            QJsonArray list;
            CameraNames names;
            if (readCameraNameFile(nameFilePath(host()), names)) {
                append(list, names.take(kDefaultCategory), QString());
                for (auto it = names.cbegin(); it != names.cend(); ++it) {
                    append(list, it.value(), it.key());
                }
            }
            return json::compact(list);
        },
        QString());
}
