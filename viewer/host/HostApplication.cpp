// Messages, dialogs, modes, update control.

#include "livecontrol/foundation/APP_Exception.h"
#include "viewer/host/Shell.h"
#include "viewer/host/ViewerHost.h"
#include "viewer/messages/Messages.h"
#include "viewer/messages/Translated.h"

#include <QApplication>
#include <QDir>
#include <QFontDatabase>

namespace {
constexpr char kInterface[] = "HostApplication";
}

void ViewerHost::updateAll(int flags, bool force) {
    OPERATION(flags, force);
    m_updates.request(flags);
}

void ViewerHost::deterUpdateUI(bool deter) {
    OPERATION(deter);
    if (deter) {
        m_updates.hold();
    } else {
        m_updates.release();
    }
}

void ViewerHost::handleError(std::exception& error) {
    try {
        OPERATION(QString::fromUtf8(error.what()));
    } catch (const std::exception&) {
        // An ordered failure has no place here: this operation never throws.
    }
    try {
        const auto* const failure = dynamic_cast<const CameraFailure*>(&error);
        if (failure) {
            m_messages.deviceError(failure->failure());
        } else if (dynamic_cast<const DOC_DeviceException*>(&error)) {
            showWifiFailure(m_documents.takeWifiFailure());
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
void ViewerHost::showWifiFailure(const DeviceFailure& failure) {
    if (failure.isEmpty()) {
        m_messages.error(translated("The camera did not carry out the operation."));
    } else {
        m_messages.deviceError(failure);
    }
}

void ViewerHost::info(const QString& text, QWidget* parent) {
    OPERATION(text);
    m_messages.info(text, parent);
}

void ViewerHost::showWarningList(const QString& message, const QStringList& list, QWidget* parent) {
    OPERATION(message, list);
    m_messages.warnList(message, list, parent);
}

void ViewerHost::warn(const QString& text, QWidget* parent) {
    OPERATION(text);
    m_messages.warn(text, parent);
}

void ViewerHost::showAlertList(const QString& message, const QStringList& list, QWidget* parent) {
    OPERATION(message, list);
    m_messages.alertList(message, list, parent);
}

void ViewerHost::alert(const QString& text, QWidget* parent) {
    OPERATION(text);
    m_messages.alert(text, parent);
}

bool ViewerHost::confirm(const QString& message, QWidget* parent, const QMap<QString, QString>& options) {
    OPERATION(message);
    return m_messages.confirm(message, parent, options);
}

bool ViewerHost::confirmOkCancel(const QString& text, QWidget* parent) {
    OPERATION(text);
    return m_messages.confirmOkCancel(text, parent);
}

int ViewerHost::getMode() {
    OPERATION();
    return m_documents.mode();
}

bool ViewerHost::isLiveMode() {
    OPERATION();
    return m_documents.mode() == HOST_MODE_LIVE;
}

bool ViewerHost::isMemoryMode() {
    OPERATION();
    return m_documents.mode() == HOST_MODE_MEMORY;
}

bool ViewerHost::isFileMode() {
    OPERATION();
    return m_documents.mode() == HOST_MODE_FILE;
}

QStringList ViewerHost::getFontNameList() {
    OPERATION();
    return QFontDatabase().families();
}

QString ViewerHost::translate(const QString& text, const char* context, int n) {
    OPERATION(text);
    return m_shell.translate(text, context, n);
}

HostPrefsDialog* ViewerHost::getPrefsDialog() {
    OPERATION();
    return m_shell.prefsDialog();
}

void ViewerHost::openAboutDialog() {
    OPERATION();
    m_shell.openAbout();
}

void ViewerHost::openPrefsEthernetSettings() {
    OPERATION();
    HostPrefsDialog* const dialog = m_shell.prefsDialog();
    dialog->setPage(QStringLiteral("s_ethernet"));
    dialog->exec();
}

bool ViewerHost::isReady() {
    OPERATION();
    return m_cameras.anyInState(CameraState::Ready);
}

bool ViewerHost::isClosing() {
    OPERATION();
    return m_closing;
}

// The page is alive until its plug-in closes, but shows nothing any more.
bool ViewerHost::isUpdateIgnore() {
    OPERATION();
    return m_closing;
}

bool ViewerHost::isNotPage(bool withDeviceSetting) {
    OPERATION(withDeviceSetting);
    return !m_shell.isLivePage(withDeviceSetting);
}

bool ViewerHost::isPrefDialogOpening() {
    OPERATION();
    return m_shell.isPrefsDialogOpen();
}

bool ViewerHost::isModalDialogOpening() {
    OPERATION();
    return m_modals > 0 || QApplication::activeModalWidget() != nullptr;
}

// One modal state at a time: a box over a dialog belongs to the dialog's.
bool ViewerHost::canStartModal() {
    OPERATION();
    return m_modals == 0;
}

void ViewerHost::beginModal() {
    OPERATION();
    ++m_modals;
    m_documents.setKeepingRemoved(true);
}

void ViewerHost::endModal() {
    OPERATION();
    m_modals = qMax(0, m_modals - 1);
    m_documents.setKeepingRemoved(m_modals > 0);
}

void ViewerHost::setModelessTextFocus(bool focussed) {
    OPERATION(focussed);
    m_modelessTextFocus = focussed;
}

bool ViewerHost::isModelessTextFocused() {
    OPERATION();
    return m_modelessTextFocus;
}

QDialog* ViewerHost::getPowerWaitDialog() {
    OPERATION();
    return m_shell.powerWaitDialog();
}

void ViewerHost::runWithProgress(const QString& title, QFutureWatcher<void>& watcher) {
    OPERATION(title);
    m_shell.runWithProgress(title, watcher);
}

QString ViewerHost::getVersionText() {
    OPERATION();
    return QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion();
}

int ViewerHost::getEventPumpInterval() {
    OPERATION();
    return 10;
}

void ViewerHost::refreshCameraNames() {
    OPERATION();
    refreshNames();
}
