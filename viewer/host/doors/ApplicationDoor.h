#pragma once

#include "viewer/host/HostWindow.h"
#include "viewer/host/doors/CameraStorageDoor.h"
#include "viewer/host/parts/SupportExport.h"
#include "viewer/host/parts/cameras/HeadLamps.h"
#include "viewer/messages/Messages.h"

/// Messages, dialogs, modes, update control, and what concerns all cameras.
class ApplicationDoor : public CameraStorageDoor {
public:
    using CameraStorageDoor::CameraStorageDoor;

    void updateAll(int flags, bool force) override {
        OPERATION(flags, force);
        m_updates.request(flags);
    }

    void deterUpdateUI(bool deter) override {
        OPERATION(deter);
        if (deter) {
            m_updates.hold();
        } else {
            m_updates.release();
        }
        m_messages.gatherFailures(deter);
    }

    void handleError(std::exception& error) override;
    /// The same for what failed in the viewer itself, which no plug-in has called.
    void showFailure(const std::exception& error);

    void info(const QString& text, QWidget* parent) override {
        OPERATION(text);
        m_messages.info(text, parent);
    }

    void showWarningList(const QString& message, const QStringList& list, QWidget* parent) override {
        OPERATION(message, list);
        m_messages.warnList(message, list, parent);
    }

    void warn(const QString& text, QWidget* parent) override {
        OPERATION(text);
        m_messages.warn(text, parent);
    }

    void showAlertList(const QString& message, const QStringList& list, QWidget* parent) override {
        OPERATION(message, list);
        m_messages.alertList(message, list, parent);
    }

    void alert(const QString& text, QWidget* parent) override {
        OPERATION(text);
        m_messages.alert(text, parent);
    }

    bool confirm(const QString& message, QWidget* parent, const QMap<QString, QString>& options) override {
        OPERATION(message);
        return m_messages.confirm(message, parent, options);
    }

    bool confirmOkCancel(const QString& text, QWidget* parent) override {
        OPERATION(text);
        return m_messages.confirmOkCancel(text, parent);
    }

    int getMode() override {
        OPERATION();
        return m_documents.mode();
    }

    bool isLiveMode() override {
        OPERATION();
        return m_documents.mode() == HOST_MODE_LIVE;
    }

    bool isMemoryMode() override {
        OPERATION();
        return m_documents.mode() == HOST_MODE_MEMORY;
    }

    bool isFileMode() override {
        OPERATION();
        return m_documents.mode() == HOST_MODE_FILE;
    }

    QStringList getFontNameList() override;

    QString translate(const QString& text, const char* context, int n) override {
        OPERATION(text);
        return m_shell.translate(text, context, n);
    }

    HostPrefsDialog* getPrefsDialog() override {
        OPERATION();
        return m_shell.prefsDialog();
    }

    void openAboutDialog() override {
        OPERATION();
        m_shell.openAbout();
    }

    void openPrefsEthernetSettings() override;

    bool isReady() override {
        OPERATION();
        return m_cameras.anyInState(CameraState::Ready);
    }

    bool isClosing() override {
        OPERATION();
        return m_closing;
    }

    // The page is alive until its plug-in closes, but shows nothing any more.
    bool isUpdateIgnore() override {
        OPERATION();
        return m_closing;
    }

    bool isNotPage(bool withDeviceSetting) override {
        OPERATION(withDeviceSetting);
        return !m_shell.isLivePage(withDeviceSetting);
    }

    bool isPrefDialogOpening() override {
        OPERATION();
        return m_shell.isPrefsDialogOpen();
    }

    bool isModalDialogOpening() override;

    // One modal state at a time: a box over a dialog belongs to the dialog's.
    bool canStartModal() override {
        OPERATION();
        return m_modals == 0;
    }

    void beginModal() override {
        OPERATION();
        ++m_modals;
        m_documents.setKeepingRemoved(true);
    }

    void endModal() override {
        OPERATION();
        m_modals = qMax(0, m_modals - 1);
        m_documents.setKeepingRemoved(m_modals > 0);
    }

    void setModelessTextFocus(bool focussed) override {
        OPERATION(focussed);
        m_modelessTextFocus = focussed;
    }

    bool isModelessTextFocused() override {
        OPERATION();
        return m_modelessTextFocus;
    }

    QDialog* getPowerWaitDialog() override {
        OPERATION();
        return m_shell.powerWaitDialog();
    }

    void runWithProgress(const QString& title, QFutureWatcher<void>& watcher) override {
        OPERATION(title);
        m_shell.runWithProgress(title, watcher);
    }

    QString getVersionText() override;

    int getEventPumpInterval() override {
        OPERATION();
        return 10;
    }

    void refreshCameraNames() override {
        OPERATION();
        refreshNames();
    }

    bool isAutoFocusActive(bool currentOnly) override {
        OPERATION(currentOnly);
        return m_autoFocus.isAvailable();
    }

    bool isAutoFocussing() override {
        OPERATION();
        return m_autoFocus.isFocusing();
    }

    bool isShading() override {
        OPERATION();
        return m_shading.isRunning();
    }

    void setHeadLedLaser(bool isLed, unsigned long status) override {
        OPERATION(isLed, status);
        m_lamps.set(isLed, status != 0);
    }

    bool getHeadLedLaser(bool isLed) override {
        OPERATION(isLed);
        return m_lamps.isOn(isLed);
    }

    void prepareSettingsLoad(bool flag) override {
        OPERATION(flag);
        m_settingsFiles.forgetMissed();
    }

    bool wereSettingsRestored() override {
        OPERATION();
        return !m_settingsFiles.missed().isEmpty();
    }

    void reportRestoredSettings(bool show) override;

    void collectSupportFiles(QStringList& files) override {
        OPERATION();
        files = m_support.gather();
    }

    bool writeSupportFile(const QString& path, QStringList* files) override;

private:
    static constexpr char kInterface[] = "HostApplication";

    void showWifiFailure(const DeviceFailure& failure);

    HeadLamps m_lamps{m_cameras};
    SupportExport m_support{m_documents, m_preferences, m_shell};
    int m_modals = 0; // windows of plug-ins that are open
    bool m_modelessTextFocus = false;
};
