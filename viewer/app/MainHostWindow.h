#pragma once

#include "viewer/app/PageMediators.h"
#include "viewer/host/HostWindow.h"

#include <QPointer>

#include <memory>

class BusyDialog;
class LogStore;
class SessionLog;
class MainWindow;
class Messages;
class Preferences;
class PreferencesDialog;
class SelectBoxes;

/// What the host object needs of the windows, done by the main window and its parts.
class MainHostWindow : public QObject, public HostWindow {
    Q_OBJECT

public:
    /// None is owned; all outlive the shell.
    MainHostWindow(MainWindow& window, Preferences& preferences, const LogStore& log,
                   const SessionLog& sessionLog, const QString& rigTitle);
    ~MainHostWindow() override;

    PageMediators& mediators() { return m_mediators; }
    /// The lists that pages open by key, and the script object `main`. Not owned; they outlive the shell's
    /// use.
    void setSelectBoxes(SelectBoxes* boxes) { m_selectBoxes = boxes; }
    PreferencesDialog& preferencesDialog() { return *m_preferencesDialog; }

    QWidget* mainWindow() override;
    QWidget* dialogParent() override;
    QObject* mdiArea() override;
    QList<DOCKEY> windowKeys(bool visibleOnly) override;
    int windowCount(bool visibleOnly) override;
    bool isCycling() override;
    void refreshTools() override;
    void refreshViews() override;
    void refreshView(DOCKEY key) override;
    void setBusyText(DOCKEY key, const QString& text) override;
    bool isInfoShowing() override;
    void setInfoShowing(bool showing) override;

    void runPanelScript(const QString& script) override;
    void addPanelMediator(JS_Mediator* mediator) override;
    void attachMediator(GUI_WebView* view, JS_Mediator* mediator) override;
    void updateAttachedMediators() override;
    void showPanel(PLG_Interface* plugin) override;
    bool isLivePage(bool orDeviceSettings) override;
    QObject* appScriptObject() override { return m_appObject.get(); }
    QObject* mainScriptObject() override;

    void showDropDownBox(const QString& key, const QRect& rect) override;
    void hideDropDownBox(const QString& key) override;
    void hideDropDownBoxAt(const QString& key, const QPoint& point) override;
    bool isDropDownBoxShown() override;
    void hideSelectBox() override;
    void nativeWidgetEntered(QEvent* event) override;
    void nativeWidgetLeft(QEvent* event) override;
    void nativeWidgetPressed(QMouseEvent* event) override;

    HostPrefsDialog* prefsDialog() override;
    bool isPrefsDialogOpen() override;
    void openAbout() override;
    QDialog* powerWaitDialog() override;
    void runWithProgress(const QString& title, QFutureWatcher<void>& watcher) override;

    QStringList logLines() override;
    QList<QStringList> earlierLogs() override;
    QImage capture() override;
    QString translate(const QString& text, const char* context, int n) override;

private:
    MainWindow& m_window;
    const LogStore& m_log;
    const SessionLog& m_sessionLog;
    QString m_rigTitle;
    PageMediators m_mediators;
    std::unique_ptr<PreferencesDialog> m_preferencesDialog;
    std::unique_ptr<BusyDialog> m_powerWait;
    std::unique_ptr<QObject> m_appObject;
    SelectBoxes* m_selectBoxes = nullptr;
};
