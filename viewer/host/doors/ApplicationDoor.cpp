#include "viewer/host/doors/ApplicationDoor.h"

#include "livecontrol/interface/APP_Exception.h"
#include "viewer/documents/CameraDocument.h"
#include "viewer/documents/RecordingShelf.h"
#include "viewer/messages/FileFailure.h"
#include "viewer/messages/Translated.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>

void ApplicationDoor::handleError(std::exception& error) {
    try {
        OPERATION(QString::fromUtf8(error.what()));
    } catch (const std::exception&) {
        // An ordered failure has no place here: this operation never throws.
    }
    showFailure(error);
}

void ApplicationDoor::showFailure(const std::exception& error) {
    try {
        const auto* const failure = dynamic_cast<const CameraFailure*>(&error);
        if (failure) {
            m_messages.deviceError(failure->failure());
        } else if (dynamic_cast<const DOC_DeviceException*>(&error)) {
            showWifiFailure(m_documents.takeWifiFailure());
        } else if (const auto* const told = dynamic_cast<const FileFailure*>(&error)) {
            m_messages.error(translated(told->words()));
        } else if (const auto* const recording = dynamic_cast<const RecordingError*>(&error)) {
            qCritical("%s", error.what());
            m_messages.error(recordingFailure(*recording));
        } else if (const auto* const file = dynamic_cast<const DOC_FileException*>(&error)) {
            QStringList lines{m_shell.translate(QString::fromUtf8(error.what()), nullptr, 0)};
            if (!lines.first().contains(file->path())) { // some texts name it themselves
                lines.append(QDir::toNativeSeparators(file->path()));
            }
            if (!file->reason().isEmpty()) {
                lines.append(m_shell.translate(file->reason(), nullptr, 0));
            }
            m_messages.error(lines.join(QLatin1Char('\n')));
        } else {
            m_messages.error(m_shell.translate(QString::fromUtf8(error.what()), nullptr, 0));
        }
    } catch (const std::exception& second) {
        qCritical("A failure could not be shown: %s", second.what());
    }
}

// A device failure without cameras comes from the dialog of the Wi-Fi alone.
void ApplicationDoor::showWifiFailure(const DeviceFailure& failure) {
    if (failure.isEmpty()) {
        m_messages.error(translated("The camera did not carry out the operation."));
    } else {
        m_messages.deviceError(failure);
    }
}

QStringList ApplicationDoor::getFontNameList() {
    OPERATION();
    return QFontDatabase().families();
}

void ApplicationDoor::openPrefsEthernetSettings() {
    OPERATION();
    HostPrefsDialog* const dialog = m_shell.prefsDialog();
    dialog->setPage(QStringLiteral("s_ethernet"));
    dialog->exec();
}

bool ApplicationDoor::isModalDialogOpening() {
    OPERATION();
    return m_modals > 0 || QApplication::activeModalWidget() != nullptr;
}

QString ApplicationDoor::getVersionText() {
    OPERATION();
    return QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
}

void ApplicationDoor::reportRestoredSettings(bool show) {
    OPERATION(show);
    const QStringList lines = m_settingsFiles.missed();
    m_settingsFiles.forgetMissed();
    if (show && !lines.isEmpty()) {
        m_messages.warnList(translated("Not all settings could be restored:"), lines, nullptr);
    }
}

// Not recorded: it runs on another thread, in which nobody may touch what the GUI holds.
bool ApplicationDoor::writeSupportFile(const QString& path, QStringList* files) {
    m_support.pack(path, *files);
    return true;
}
