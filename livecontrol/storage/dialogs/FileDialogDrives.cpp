// Opening a folder or a drive, and what can be done with a drive.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/devices/GUI_ChangePasswordDialog.h"
#include "livecontrol/devices/GUI_InputPasswordDialog.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/foundation/UTL_Names.h"
#include "livecontrol/interface/APP_Exception.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/storage/dialogs/JS_Mediator_FileDialog.h"

#include <QDirIterator>

#include <algorithm>

namespace {

enum Source { Folder = 0, SDCard = 5, DockStore = 7, CFast = 8 };

constexpr int kLetters = 26;
constexpr int kNeedsPassword = 407;
constexpr int kPasswordBytes = 8;
constexpr int kUseOption = 1;
const QString kFolder = QStringLiteral("import/dir");

QString driveText(int bit) { return QStringLiteral("%1:").arg(QChar('A' + bit)); }

/// All recordings below a folder, in the order in which a user counts.
QStringList recordingsBelow(const QString& folder) {
    QStringList filters;
    for (const char* const extension : {"rchx", "rch", "tsi", "RCHX", "RCH", "TSI"}) {
        filters.append(QStringLiteral("*.%1").arg(QLatin1String(extension)));
    }
    QStringList paths;
    QDirIterator files(folder, filters, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    std::sort(paths.begin(), paths.end(), countingOrder());
    return paths;
}

QString driveRows(const QList<QMap<QString, QString>>& drives) {
    QJsonArray rows;
    for (const QMap<QString, QString>& drive : drives) {
        QJsonObject row{{QStringLiteral("recid"), rows.size()}};
        for (const char* const key : {"driveno", "slotno", "drivename", "drivetype"}) {
            row[QLatin1String(key)] = drive.value(QLatin1String(key));
        }
        rows.append(row);
    }
    return json::compact(
        {{QStringLiteral("record"), rows}, {QStringLiteral("select"), rows.isEmpty() ? -1 : 0}});
}

QString percentText(double value, int decimals) {
    return QString::number(value, 'f', decimals) + QLatin1Char('%');
}

QString driveArgs(ulong type, ulong driveNo, ulong slotNo) {
    return traceArgs(
        {{"type", qulonglong(type)}, {"driveNo", qulonglong(driveNo)}, {"slotNo", qulonglong(slotNo)}});
}

} // namespace

bool JS_Mediator_FileDialog::openFolder() {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::openFolder"));
    return guarded(
        [&] {
            const QString folder = chooseFolder(host()->getPrefString(kFolder, QVariant(), 0));
            if (folder.isEmpty()) {
                return false;
            }
            host()->setPrefString(kFolder, folder);
            host()->setDocumentSource(Source::Folder);
            host()->openFiles(recordingsBelow(folder), 1, 1, 1, 0, 0);
            const QList<DOCKEY> keys = host()->listNewKeys();
            for (const DOCKEY key : keys) {
                if (DOC_Interface* const opened = document(key)) {
                    opened->setSelected(true);
                }
            }
            return true;
        },
        false);
}

QString JS_Mediator_FileDialog::getSDDrives() {
    return guarded(
        [&] {
            m_sdDrives.clear();
            const uint mask = host()->getSDDriveMask();
            for (int bit = 0; bit < kLetters; ++bit) {
                if ((mask & (1U << bit)) != 0) {
                    m_sdDrives.insert(1U << bit, driveText(bit));
                }
            }
            uint open = 0;
            const bool isOpen = host()->getCurrentSDDrive(open);
            QJsonArray rows;
            int selected = -1;
            for (auto it = m_sdDrives.cbegin(); it != m_sdDrives.cend(); ++it) {
                if (isOpen && it.key() == open) {
                    selected = rows.size();
                }
                rows.append(QJsonObject{{QStringLiteral("recid"), rows.size()},
                                        {QStringLiteral("drivename"), it.value()}});
            }
            return json::compact({{QStringLiteral("record"), rows}, {QStringLiteral("select"), selected}});
        },
        QString());
}

void JS_Mediator_FileDialog::selectSDDrive(int recid) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::selectSDDrive"),
                               traceArgs({{"recid", recid}}));
    guarded([&] {
        const QList<uint> masks = m_sdDrives.keys();
        if (recid < 0 || recid >= masks.size()) {
            return;
        }
        const uint mask = masks.at(recid);
        uint open = 0;
        if (host()->getCurrentSDDrive(open) && open != mask) {
            const QString question =
                translate(QStringLiteral("Multiple SD cards can not be opened at the same time. Are you sure "
                                         "you want to close all data of %1?"));
            if (!host()->confirm(question.arg(m_sdDrives.value(open)), nullptr, {})) {
                return;
            }
            host()->closeSDDocuments();
        }
        host()->setDocumentSource(Source::SDCard);
        host()->openSDDrive(mask);
    });
}

QString JS_Mediator_FileDialog::getFDDrives() {
    return guarded([&] { return driveRows(host()->listDockStores()); }, QString());
}

QString JS_Mediator_FileDialog::getCFDrives() {
    return guarded([&] { return driveRows(host()->listCFastCards()); }, QString());
}

void JS_Mediator_FileDialog::selectFDDrive(int fdType, int driveNo, int slotNo, const QString& driveName) {
    const OperationTrace trace(
        QStringLiteral("JS_Mediator_FileDialog::selectFDDrive"),
        traceArgs({{"fdType", fdType}, {"driveNo", driveNo}, {"slotNo", slotNo}, {"driveName", driveName}}));
    guarded([&] {
        if (fdType == 0 || fdType == 1) {
            host()->setDocumentSource(Source::DockStore);
        }
        while (!openDockStore(fdType, driveNo, slotNo, driveName)) {
            if (!unlockDockStore(fdType, driveNo)) {
                return;
            }
        }
    });
}

/// False if the drive wants its password.
bool JS_Mediator_FileDialog::openDockStore(int fdType, int driveNo, int slotNo, const QString& driveName) {
    try {
        host()->openDockStore(fdType, driveNo, slotNo, driveName);
        return true;
    } catch (const APP_Exception& failure) {
        if (failure.errorCode() != kNeedsPassword) {
            throw;
        }
        return false;
    }
}

/// Asks until the password is right; false if the user gives up.
bool JS_Mediator_FileDialog::unlockDockStore(int fdType, int driveNo) {
    for (;;) {
        QString password;
        if (!GUI_InputPasswordDialog(host(), QString(), kPasswordBytes).getInputPassword(password)) {
            return false;
        }
        if (host()->checkDockStorePassword(fdType, driveNo, password)) {
            return true;
        }
        host()->alert(translate(QStringLiteral("Invalid Password.")), nullptr);
    }
}

void JS_Mediator_FileDialog::selectCFDrive(int cfType, int driveNo, int slotNo, const QString& driveName) {
    const OperationTrace trace(
        QStringLiteral("JS_Mediator_FileDialog::selectCFDrive"),
        traceArgs({{"cfType", cfType}, {"driveNo", driveNo}, {"slotNo", slotNo}, {"driveName", driveName}}));
    guarded([&] {
        if (cfType == 0 && !closeOtherCFast(driveNo)) {
            return;
        }
        if (cfType == 0 || cfType == 1) {
            host()->setDocumentSource(Source::CFast);
        }
        host()->openCFastCard(cfType, driveNo, slotNo, driveName);
    });
}

/// Of the cards in USB readers one can be open at a time. False if the user keeps the one that is.
bool JS_Mediator_FileDialog::closeOtherCFast(int driveNo) {
    int open = 0;
    if (!host()->getCurrentCFastCard(open) || open == driveNo) {
        return true;
    }
    QString name;
    const QList<QMap<QString, QString>> cards = host()->listCFastCards();
    for (const QMap<QString, QString>& card : cards) {
        if (card.value(QStringLiteral("drivetype")) == QLatin1String("0") &&
            card.value(QStringLiteral("driveno")) == QString::number(open)) {
            name = card.value(QStringLiteral("drivename"));
            break;
        }
    }
    const QString question = translate(QStringLiteral(
        "Multiple CFast with USB connection can not be opened at the same time.Are you sure you "
        "want to close all data of %1?"));
    if (!name.isEmpty() && !host()->confirm(question.arg(name), nullptr, {})) {
        return false;
    }
    host()->closeCFastDocuments(0);
    return true;
}

QString JS_Mediator_FileDialog::getFDUseRatio(ulong type, ulong driveNo, ulong slotNo) {
    return guarded(
        [&] {
            return percentText(host()->getDockStoreUseRatio(int(type), int(driveNo), int(slotNo), kUseOption),
                               2);
        },
        QString());
}

QString JS_Mediator_FileDialog::getCFUseRatio(ulong type, ulong driveNo, ulong slotNo) {
    return guarded(
        [&] {
            return percentText(host()->getCFastUseRatio(int(type), int(driveNo), int(slotNo), kUseOption), 2);
        },
        QString());
}

QString JS_Mediator_FileDialog::getTotalWrittenAmount(ulong type, ulong driveNo, ulong slotNo) {
    return guarded(
        [&] {
            constexpr double kGigabyte = 1024.0 * 1024.0 * 1024.0;
            const quint64 written =
                host()->getTotalWrittenAmount(int(type), int(driveNo), int(slotNo), kUseOption);
            return percentText(double(written) / kGigabyte * 100.0, 1);
        },
        QString());
}

void JS_Mediator_FileDialog::formatDockStore(ulong type, ulong driveNo, ulong slotNo) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::formatDockStore"),
                               driveArgs(type, driveNo, slotNo));
    guarded([&] {
        host()->formatDockStore(int(type), int(driveNo), int(slotNo));
        if (type == 0) {
            host()->refreshDriveDocuments(2);
            host()->openDockStore(int(type), int(driveNo), int(slotNo), QString());
        } else if (type == 1) {
            host()->refreshDriveDocuments(1);
        }
        host()->info(translate(QStringLiteral("Formatting is completed.")), nullptr);
    });
}

void JS_Mediator_FileDialog::formatCFast(ulong type, ulong driveNo, ulong slotNo) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::formatCFast"),
                               driveArgs(type, driveNo, slotNo));
    guarded([&] {
        host()->formatCFast(int(type), int(driveNo), int(slotNo));
        if (type == 0) {
            host()->refreshDriveDocuments(4);
        } else if (type == 1) {
            host()->refreshDriveDocuments(3);
        }
        host()->info(translate(QStringLiteral("Formatting is completed.")), nullptr);
    });
}

void JS_Mediator_FileDialog::setDockStorePassword(int fdType, int driveNo) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_FileDialog::setDockStorePassword"),
                               traceArgs({{"fdType", fdType}, {"driveNo", driveNo}}));
    guarded([&] {
        GUI_ChangePasswordDialog dialog(host(), QString(), QString(), kPasswordBytes);
        if (dialog.exec() != QDialog::Accepted) {
            return;
        }
        if (host()->setDockStorePassword(fdType, driveNo, dialog.oldPassword(), dialog.newPassword())) {
            host()->info(translate(QStringLiteral("Password setting completed..")), nullptr);
        } else {
            host()->alert(translate(QStringLiteral("Password setting failed.")), nullptr);
        }
    });
}

bool JS_Mediator_FileDialog::existSetDockStorePassword(int fdType, int driveNo) {
    try {
        host()->setDockStorePassword(fdType, driveNo, QString(), QString());
        return true;
    } catch (const std::exception&) { // which is the answer, not a failure
        return false;
    }
}
