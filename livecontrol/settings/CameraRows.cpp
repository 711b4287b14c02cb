#include "livecontrol/settings/CameraRows.h"

#include "livecontrol/interface/DOC_Camera.h"
#include "livecontrol/interface/HostObject.h"

#include <QDir>
#include <QSet>
#include <QStandardPaths>

namespace {
const QString kFolder = QStringLiteral("zcsx/path");
}

void visitCameraRows(HostObject& host, const std::function<void(const CameraRow&)>& visit) {
    QSet<DeviceObject*> seen;
    const QList<DOCKEY> keys = host.listCameraKeys(false, false);
    for (const DOCKEY key : keys) {
        auto* const document = dynamic_cast<DOC_Camera*>(host.docByKey(key, true));
        if (!document) {
            continue;
        }
        DeviceObject* const device = document->getDevice();
        if (device && seen.contains(device)) { // cameras without one have nothing in common
            continue;
        }
        seen.insert(device);
        visit({key, document});
    }
}

QString settingsFolder(HostObject& host) {
    const QString last = host.getPref(kFolder, QVariant()).toString();
    if (!last.isEmpty() && QDir(last).exists()) {
        return last;
    }
    const QStringList places = QStandardPaths::standardLocations(QStandardPaths::DocumentsLocation);
    return QDir(places.value(0) + QStringLiteral("/Corvane/TORM")).path();
}

void storeSettingsFolder(HostObject& host, const QString& folder) { host.setPref(kFolder, folder); }
