#include "livecontrol/settings/JS_Mediator_CameraSettingsDialog.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/LiveSuspendGuard.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/PoolJob.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/DOC_Camera.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/settings/CameraRows.h"

#include <QDateTime>
#include <QDir>
#include <QFileDialog>
#include <QLocale>

namespace {

const QString kExtension = QStringLiteral("zcsx");
const QString kUserName = QStringLiteral("zcsx/userFileName");
const QString kUsesUserName = QStringLiteral("zcsx/filenameasoriginal");
const QString kAddsTime = QStringLiteral("zcsx/filenameaddtime");
const QString kTimeFormat = QStringLiteral("zcsx/filenameaddtimeformat");
const QString kFirstTimeFormat = QStringLiteral("yyyyMMdd_HHmmss");
constexpr int kLongestPath = 260;

QJsonObject parsed(const QString& text) { return QJsonDocument::fromJson(text.toUtf8()).object(); }

/// A page sends what stands in an attribute: numbers come as texts too.
int number(const QJsonValue& value) { return value.toVariant().toInt(); }

QJsonObject presetRow(const CameraRow& row) {
    auto& settings = docAs<DOC_Settings>(row.document);
    PresetInfo info;
    settings.getPresetInfo(info);
    QJsonArray presets;
    for (int preset = 1; preset <= info.count; ++preset) {
        presets.append(QJsonObject{{QStringLiteral("presetno"), preset},
                                   {QStringLiteral("selected"), preset == info.selected}});
    }
    return {{QStringLiteral("key"), json::text(row.key)},
            {QStringLiteral("name"), settings.getCameraName(false)},
            {QStringLiteral("ipaddress"), settings.getIPAddress(true)},
            {QStringLiteral("devicename"), settings.getDeviceName(true)},
            {QStringLiteral("presets"), presets},
            {QStringLiteral("selNone"), info.selected < 1 || info.selected > info.count}};
}

} // namespace

JS_Mediator_CameraSettingsDialog::JS_Mediator_CameraSettingsDialog(HostObject* host, const QString& folder)
    : JS_Mediator_Dialog(host, QStringLiteral("cameraSettings")), m_folder(folder) {
    QDir().mkpath(folder);
}

int JS_Mediator_CameraSettingsDialog::getDialogMode() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::getDialogMode"));
    return m_dialogMode;
}

bool JS_Mediator_CameraSettingsDialog::openFile() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_CameraSettingsDialog::openFile"));
    return guarded(
        [&] {
            const QString pattern = QStringLiteral("*.%1");
            const QString file = QFileDialog::getOpenFileName(
                host()->getDialogParent(), translate(QStringLiteral("Select folder")), m_folder,
                pattern.arg(kExtension) + QLatin1Char('\n') + pattern.arg(kExtension.toUpper()));
            if (!file.isEmpty()) {
                m_file = file;
            }
            return !file.isEmpty();
        },
        false);
}

bool JS_Mediator_CameraSettingsDialog::openFolder() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_CameraSettingsDialog::openFolder"));
    return guarded(
        [&] {
            const QString folder = QFileDialog::getExistingDirectory(
                host()->getDialogParent(), translate(QStringLiteral("Select folder")), m_folder,
                QFileDialog::ShowDirsOnly);
            if (folder.isEmpty()) {
                return false;
            }
            m_folder = folder;
            storeSettingsFolder(*host(), folder);
            return true;
        },
        false);
}

QString JS_Mediator_CameraSettingsDialog::getFilePathSettings() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::getFilePathSettings"));
    return guarded(
        [&] {
            return json::compact(
                {{QStringLiteral("FolderPath"), m_folder}, {QStringLiteral("FileName"), getFileName(false)}});
        },
        QString());
}

QVariantList JS_Mediator_CameraSettingsDialog::getPresetList() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::getPresetList"));
    QVariantList list;
    guarded([&] {
        visitCameraRows(*host(),
                        [&list](const CameraRow& row) { list.append(json::compact(presetRow(row))); });
    });
    return list;
}

QString JS_Mediator_CameraSettingsDialog::addDateTime(const QString& format) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::addDateTime"),
                               traceArgs({{"format", format}}));
    return format.isEmpty() ? QString() : QLocale::c().toString(QDateTime::currentDateTime(), format);
}

QString JS_Mediator_CameraSettingsDialog::recvFileNameDialogData() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::recvFileNameDialogData"));
    QJsonObject data; // what fails leaves what was read before
    guarded([&] {
        data[QStringLiteral("userFileName")] = host()->getPref(kUserName, QString()).toString();
        data[QStringLiteral("original")] = host()->getPref(kUsesUserName, false).toBool();
        data[QStringLiteral("addTime")] = host()->getPref(kAddsTime, false).toBool();
        const QString format = host()->getPref(kTimeFormat, kFirstTimeFormat).toString();
        data[QStringLiteral("addTimeFormat")] = format.isEmpty() ? kFirstTimeFormat : format;
    });
    return json::compact(data);
}

void JS_Mediator_CameraSettingsDialog::sendFileNameDialogData(const QString& sendData) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_CameraSettingsDialog::sendFileNameDialogData"),
        traceArgs({{"sendData", sendData}}));
    guarded([&] {
        const QJsonObject wish = parsed(sendData);
        host()->setPref(kUserName, wish.value(QStringLiteral("userFileName")).toString());
        host()->setPref(kUsesUserName, wish.value(QStringLiteral("original")).toBool());
        host()->setPref(kAddsTime, wish.value(QStringLiteral("addTime")).toBool());
        host()->setPref(kTimeFormat, wish.value(QStringLiteral("addTimeFormat")).toString());
    });
}

QString JS_Mediator_CameraSettingsDialog::getFileName(bool additional) {
    QString name;
    tryFileName(name, additional);
    return name;
}

bool JS_Mediator_CameraSettingsDialog::tryFileName(QString& name, bool additional) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::getFileName"),
                               traceArgs({{"additional", additional}}));
    return guarded([&] { return composeFileName(name, additional), true; }, false);
}

void JS_Mediator_CameraSettingsDialog::composeFileName(QString& name, bool additional) {
    if (host()->getPref(kUsesUserName, false).toBool()) {
        name = host()->getPref(kUserName, QString()).toString();
    } else {
        const QList<DOCKEY> keys = host()->getSelectedKeys(false);
        DOC_Interface* const document = keys.isEmpty() ? nullptr : host()->docByKey(keys.first(), true);
        name = document ? docAs<DOC_Settings>(document).getCameraName(false) : QString();
    }
    if (!additional) {
        return;
    }
    if (host()->getPref(kAddsTime, false).toBool()) {
        name += name.isEmpty() ? QString() : QStringLiteral("_");
        name += addDateTime(host()->getPref(kTimeFormat, QString()).toString());
    }
    name += QLatin1Char('.') + kExtension;
}

void JS_Mediator_CameraSettingsDialog::ok(const QString& sendData) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::ok"),
                               traceArgs({{"sendData", sendData}}));
    const QJsonObject wish = parsed(sendData);
    m_dialogMode = number(wish.value(QStringLiteral("dialogMode")));
    m_presets.clear();
    const QJsonArray rows = wish.value(QStringLiteral("presetList")).toArray();
    for (const QJsonValue row : rows) {
        const DOCKEY key = row.toObject().value(QStringLiteral("key")).toVariant().toUInt();
        m_presets.insert(key, number(row.toObject().value(QStringLiteral("value"))));
    }
    if (m_dialogMode != 0 ? presetFunc() : zcsxFunc()) {
        emit accept();
    }
}

void JS_Mediator_CameraSettingsDialog::cancel() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::cancel"));
    emit reject();
}

QString JS_Mediator_CameraSettingsDialog::pathOf(const QString& fileName) const {
    return m_folder + QLatin1Char('/') + fileName;
}

bool JS_Mediator_CameraSettingsDialog::acceptsName(const QString& fileName) {
    const QString path = pathOf(fileName);
    const QString name = QFileInfo(path).baseName();
    // A camera's name is the camera's: it must not lead to another folder.
    const bool leadsAway = fileName.contains(QLatin1Char('/')) || fileName.contains(QLatin1Char('\\'));
    if (leadsAway || name.isEmpty() || QDir(path).exists() || !isValidFileName(name) ||
        !isValidFilePath(path)) {
        host()->alert(translate(QStringLiteral("Invalid filename.")), host()->getDialogParent());
        return false;
    }
    if (path.size() > kLongestPath) {
        host()->alert(translate(QStringLiteral("The path of the target is too long.")),
                      host()->getDialogParent());
        return false;
    }
    return !QFileInfo::exists(path) ||
           host()->confirm(translate(QStringLiteral("Do you want to overwrite it?")),
                           host()->getDialogParent(),
                           {{QStringLiteral("under"), QDir::toNativeSeparators(path)},
                            {QStringLiteral("default"), QStringLiteral("no")}});
}

bool JS_Mediator_CameraSettingsDialog::zcsxFunc() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::zcsxFunc"));
    return guarded(
        [&] {
            const LiveSuspendGuard guard(host(), false, false);
            QString name;
            if (!tryFileName(name, true) || !acceptsName(name)) {
                return false; // the user knows
            }
            guarded([&] { writeFile(pathOf(name)); }); // shown, and the user can't mend it in this dialog
            return true;
        },
        false);
}

void JS_Mediator_CameraSettingsDialog::writeFile(const QString& path) {
    runOnPool(*host(), translate(QStringLiteral("Saving...")),
              [host = host(), path] { host->saveCameraSettings(path, 0); });
}

bool JS_Mediator_CameraSettingsDialog::presetFunc() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_CameraSettingsDialog::presetFunc"));
    return guarded(
        [&] {
            const LiveSuspendGuard guard(host(), true, false);
            return guarded([&] { return storePresets(); }, false); // shown while the image still stands
        },
        false);
}

bool JS_Mediator_CameraSettingsDialog::storePresets() {
    for (auto it = m_presets.cbegin(); it != m_presets.cend(); ++it) {
        DOC_Interface* const document = it.value() > 0 ? host()->docByKey(it.key(), true) : nullptr;
        if (document) {
            docAs<DOC_Settings>(document).storePreset(it.value());
        }
    }
    return true;
}
