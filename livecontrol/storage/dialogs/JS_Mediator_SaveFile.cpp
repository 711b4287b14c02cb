#include "livecontrol/storage/dialogs/JS_Mediator_SaveFile.h"

#include "livecontrol/bridge/Json.h"
#include "livecontrol/foundation/UTL_Format.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/overlays/formats/GUI_AddNumberDialog.h"
#include "livecontrol/overlays/notes/GUI_CustomInfoDialog.h"
#include "livecontrol/storage/ExportNaming.h"
#include "livecontrol/storage/NamingPreferences.h"
#include "livecontrol/storage/PathPairs.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"

#include <QFileDialog>

namespace {

constexpr int kNoTarget = 0;
constexpr int kInfoGroups = 7;
const QString kFileNameItem = QStringLiteral("File name");

SaveFamily familyOf(DialogKind kind) { return saveFamily(saveTypeOf(kind)); }

/// A layout has no group folder: there the first target stands for none.
int groupDirTarget(DialogKind kind) {
    return kind == DialogKind::Layout ? kNoTarget : numberTarget(familyOf(kind), NameKind::GroupDir);
}

int subDirTarget(DialogKind kind) { return numberTarget(familyOf(kind), NameKind::SubDir); }

/// The digits of a report are set as those of an export.
DialogKind settingKind(DialogKind kind) { return kind == DialogKind::Report ? DialogKind::Export : kind; }

QStringList upperCase(QStringList formats) {
    for (QString& format : formats) {
        format = format.toUpper();
    }
    return formats;
}

bool isOneOf(const QStringList& formats, const QString& format) {
    return formats.contains(format, Qt::CaseInsensitive);
}

QStringList pictureFormats() {
    return {QStringLiteral("Bmp"), QStringLiteral("Tiff"), QStringLiteral("Jpeg"), QStringLiteral("Png")};
}

QStringList movieFormats() { return {QStringLiteral("Avi"), QStringLiteral("Mov"), QStringLiteral("Mp4")}; }

/// Addresses of the cameras that are open, each once.
QStringList cameraAddresses(HostObject& host) {
    QStringList addresses;
    const QList<DOCKEY> keys = host.getAllKeys(true);
    for (const DOCKEY key : keys) {
        DOC_Interface* const document = host.docByKey(key, true);
        const QString address = document ? docAs<DOC_Settings>(document).getIPAddress(true) : QString();
        if (!address.isEmpty() && !addresses.contains(address)) {
            addresses.append(address);
        }
    }
    return addresses;
}

bool showsFileName(const QString& display) {
    const QStringList entries = display.split(QLatin1Char(','));
    for (const QString& entry : entries) {
        const QStringList parts = entry.split(QLatin1Char(':'));
        if (parts.at(0) == kFileNameItem && parts.value(1) == QLatin1String("true")) {
            return true;
        }
    }
    return false;
}

QString text(HostObject& host, const char* key) {
    return host.getPrefString(QLatin1String(key), QVariant(), 0);
}

} // namespace

JS_Mediator_SaveFile::JS_Mediator_SaveFile(HostObject* host, const QString& parentWidgetName)
    : JS_Mediator(host, QStringLiteral("savefile")), m_parentWidgetName(parentWidgetName),
      m_kind(dialogKind(parentWidgetName)) {}

void JS_Mediator_SaveFile::follow(const JS_Mediator_FileDialog& page) {
    connect(&page, &JS_Mediator_FileDialog::selectedDocCount, this, &JS_Mediator_SaveFile::selectedDocCount);
    connect(&page, &JS_Mediator_FileDialog::selectedDocHeadCount, this,
            &JS_Mediator_SaveFile::selectedDocHeadCount);
}

QString JS_Mediator_SaveFile::selectFolder(const QString& dir) {
    return guarded(
        [&] {
            QString folder = QFileDialog::getExistingDirectory(host()->getDialogParent(),
                                                               translate(QStringLiteral("Select folder")),
                                                               dir, QFileDialog::ShowDirsOnly);
            addTrailingSlash(folder);
            return folder;
        },
        QString());
}

int JS_Mediator_SaveFile::fileNameTarget() const { return numberTarget(familyOf(m_kind), NameKind::File); }

void JS_Mediator_SaveFile::runNumberSetting(int target) {
    guarded(
        [&] { GUI_AddNumberDialog(host(), host()->getDialogParent(), target, m_documents, m_heads).exec(); });
}

void JS_Mediator_SaveFile::numberSetting4GroupDir() { runNumberSetting(groupDirTarget(settingKind(m_kind))); }

void JS_Mediator_SaveFile::numberSetting4SubDir() { runNumberSetting(subDirTarget(settingKind(m_kind))); }

void JS_Mediator_SaveFile::numberSetting4FileName() {
    runNumberSetting(numberTarget(familyOf(settingKind(m_kind)), NameKind::File));
}

QString JS_Mediator_SaveFile::sampleNumber(int target) {
    return guarded(
        [&] {
            DigitCounts digits = addNumberDigits(host(), target);
            if (isConvertMode() || host()->isFileMode()) {
                digits.camera = 0;
                digits.head = 0;
            }
            return composeSequenceNumber(1, 1, 1, digits.camera, digits.head, digits.session);
        },
        QString());
}

QString JS_Mediator_SaveFile::addNumber4GroupDir() { return sampleNumber(groupDirTarget(m_kind)); }

QString JS_Mediator_SaveFile::addNumber4SubDir() { return sampleNumber(subDirTarget(m_kind)); }

QString JS_Mediator_SaveFile::addNumber4FileName() { return sampleNumber(fileNameTarget()); }

QString JS_Mediator_SaveFile::addDateTime(const QString& format) {
    return formatDateTime(QDateTime::currentDateTime(), format);
}

QString JS_Mediator_SaveFile::getFreeSpace(const QString& path) { return formatFileSize(freeBytes(path)); }

QStringList JS_Mediator_SaveFile::getFileFormats(bool fromDevice) {
    QStringList formats = pictureFormats() + QStringList{QStringLiteral("Raww"), QStringLiteral("Zraw")};
    if (fromDevice) {
        formats.append(QStringLiteral("Graw"));
    }
    return upperCase(formats + movieFormats());
}

QStringList JS_Mediator_SaveFile::getSnapFileFormats() { return upperCase(pictureFormats()); }

QStringList JS_Mediator_SaveFile::getLayoutFileFormats() {
    return upperCase(pictureFormats() + movieFormats());
}

QStringList JS_Mediator_SaveFile::getCodecFilters() {
    return {QStringLiteral("RAW"),   QStringLiteral("H264"),  QStringLiteral("MJPEG"),
            QStringLiteral("MPEG2"), QStringLiteral("MPEG4"), QStringLiteral("HUFFYUV")};
}

bool JS_Mediator_SaveFile::isMovieFormat(const QString& format) {
    return isOneOf(movieFormats() + QStringList{QStringLiteral("Wmv")}, format);
}

bool JS_Mediator_SaveFile::isRawFormat(const QString& format) {
    const bool hasRaw = !isLayoutMode() && !isSnapMode() && !isReportMode();
    return hasRaw && isOneOf({QStringLiteral("Raww"), QStringLiteral("Zraw"), QStringLiteral("Graw"),
                              QStringLiteral("Tiff"), QStringLiteral("Tiff (Multi-Page)")},
                             format);
}

void JS_Mediator_SaveFile::editCustom(bool forTemporary) {
    guarded([&] {
        GUI_CustomInfoDialog dialog(host(), host()->getDialogParent(), forTemporary);
        dialog.setCallbackType(fileNameTarget());
        dialog.exec();
    });
}

QString JS_Mediator_SaveFile::getMultiPaths() {
    return guarded(
        [&] {
            QJsonArray rows;
            const auto paths = pathPairs(text(*host(), "export/multipathlist"));
            for (const auto& [name, folder] : paths) {
                rows.append(QJsonObject{{QStringLiteral("recid"), rows.size() + 1},
                                        {QStringLiteral("name"), name},
                                        {QStringLiteral("path"), folder}});
            }
            return json::compact(rows);
        },
        QString());
}

QString JS_Mediator_SaveFile::getMultiPathDevices() {
    return guarded(
        [&] {
            const auto paths = pathPairs(text(*host(), "export/multipathlist"));
            const QMap<QString, QString> folders = pathPairMap(text(*host(), "export/multipathlist"));
            const QMap<QString, QString> chosen = pathPairMap(text(*host(), "export/multipathdevicelist"));
            QJsonArray choices;
            for (const auto& [name, folder] : paths) {
                choices.append(QJsonObject{{QStringLiteral("key"), name}, {QStringLiteral("val"), folder}});
            }
            QJsonArray rows;
            const QStringList addresses = cameraAddresses(*host());
            for (const QString& address : addresses) {
                const QString name = chosen.value(address, paths.isEmpty() ? QString() : paths.at(0).first);
                rows.append(QJsonObject{{QStringLiteral("recid"), rows.size() + 1},
                                        {QStringLiteral("device"), address},
                                        {QStringLiteral("paths"), choices},
                                        {QStringLiteral("pathselector"), paths.isEmpty() ? QString() : name},
                                        {QStringLiteral("path"), folders.value(name)}});
            }
            return json::compact(rows);
        },
        QString());
}

bool JS_Mediator_SaveFile::isNeedRefreshPreview() {
    return guarded(
        [&] {
            for (int group = 0; group < kInfoGroups; ++group) {
                const QString key = QStringLiteral("saveinfo/display%1").arg(group);
                if (showsFileName(host()->getPrefString(key, QVariant(), 0))) {
                    return true;
                }
            }
            return false;
        },
        false);
}
