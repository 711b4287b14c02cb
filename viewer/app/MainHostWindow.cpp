#include "viewer/app/MainHostWindow.h"

#include "livecontrol/interface/GUI_WebView.h"
#include "livecontrol/interface/JS_Mediator.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "viewer/app/Dialogs.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/PreferencesDialog.h"
#include "viewer/app/look/SelectBoxes.h"
#include "viewer/app/panes/PanelView.h"
#include "viewer/app/panes/SessionLog.h"
#include "viewer/messages/Translated.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QApplication>
#include <QFutureWatcher>

MainHostWindow::MainHostWindow(MainWindow& window, Preferences& preferences, const LogStore& log,
                               const SessionLog& sessionLog, const QString& rigTitle)
    : m_window(window), m_log(log), m_sessionLog(sessionLog), m_rigTitle(rigTitle),
      m_preferencesDialog(std::make_unique<PreferencesDialog>(preferences, &window)),
      m_appObject(std::make_unique<QObject>()) {}

MainHostWindow::~MainHostWindow() = default;

QWidget* MainHostWindow::mainWindow() { return &m_window; }

// What comes up from within a modal dialog lies over it.
QWidget* MainHostWindow::dialogParent() {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal ? modal : &m_window;
}

QObject* MainHostWindow::mdiArea() { return &m_window.area(); }

int MainHostWindow::windowCount(bool visibleOnly) { return m_window.area().windowCount(visibleOnly); }

QList<DOCKEY> MainHostWindow::windowKeys(bool visibleOnly) { return m_window.area().windowKeys(visibleOnly); }

bool MainHostWindow::isCycling() { return m_window.area().isCycling(); }

void MainHostWindow::refreshTools() { m_window.refreshActions(); }

void MainHostWindow::refreshViews() { m_window.area().refreshAll(); }

void MainHostWindow::refreshView(DOCKEY key) { m_window.area().refresh(key); }

void MainHostWindow::setBusyText(DOCKEY key, const QString& text) { m_window.area().setBusyText(key, text); }

bool MainHostWindow::isInfoShowing() { return m_window.isInfoShown(); }

void MainHostWindow::setInfoShowing(bool showing) { m_window.setInfoShown(showing); }

void MainHostWindow::runPanelScript(const QString& script) { m_window.panel()->runScript(script); }

void MainHostWindow::addPanelMediator(JS_Mediator* mediator) { m_window.panel()->addMediator(mediator); }

void MainHostWindow::attachMediator(GUI_WebView* view, JS_Mediator* mediator) {
    m_mediators.addMediator(view, mediator);
}

void MainHostWindow::updateAttachedMediators() { m_mediators.updateAllBut(&m_window.panel()->view()); }

void MainHostWindow::showPanel(PLG_Interface* plugin) {
    m_window.panel()->showPlugin(plugin);
    plugin ? m_window.setPanelNote(QString()) : m_window.notePanelClosed();
}

bool MainHostWindow::isLivePage(bool orDeviceSettings) {
    PLG_Interface* const plugin = m_window.openPlugin();
    if (!plugin || plugin->getName() != QLatin1String("livecontrol")) {
        return false;
    }
    const int page = plugin->getLastPage();
    return page == 0 || (orDeviceSettings && page == 1);
}

QObject* MainHostWindow::mainScriptObject() { return m_selectBoxes; }

void MainHostWindow::showDropDownBox(const QString& key, const QRect& rect) {
    if (m_selectBoxes) {
        m_selectBoxes->show(key, rect);
    }
}

void MainHostWindow::hideDropDownBox(const QString& key) {
    if (m_selectBoxes && SelectBoxes::isKnown(key)) {
        m_selectBoxes->hide(key);
    }
}

void MainHostWindow::hideDropDownBoxAt(const QString& key, const QPoint& point) {
    if (m_selectBoxes && SelectBoxes::isKnown(key)) {
        m_selectBoxes->hideUnlessAt(key, point);
    }
}

bool MainHostWindow::isDropDownBoxShown() { return m_selectBoxes && m_selectBoxes->isShown(); }

void MainHostWindow::hideSelectBox() {
    if (m_selectBoxes) {
        m_selectBoxes->hide();
    }
}

void MainHostWindow::nativeWidgetEntered(QEvent* /*event*/) {
    PLG_Interface* const plugin = m_window.openPlugin();
    if (plugin && plugin->getMediator()) {
        emit plugin->getMediator()->enterQtWidget();
    }
}

// The page's own hover states are the engine's business; there is nothing of the window's to take back.
void MainHostWindow::nativeWidgetLeft(QEvent* /*event*/) {}

void MainHostWindow::nativeWidgetPressed(QMouseEvent* /*event*/) { hideSelectBox(); }

HostPrefsDialog* MainHostWindow::prefsDialog() { return m_preferencesDialog.get(); }

bool MainHostWindow::isPrefsDialogOpen() { return m_preferencesDialog->isVisible(); }

void MainHostWindow::openAbout() { showAbout(&m_window, m_rigTitle); }

QDialog* MainHostWindow::powerWaitDialog() {
    if (!m_powerWait) {
        m_powerWait = std::make_unique<BusyDialog>(QString(), QString(), &m_window);
    }
    m_powerWait->setWindowTitle(translated("Camera power")); // in the language of now
    m_powerWait->setText(translated("Waiting for the cameras to switch..."));
    return m_powerWait.get();
}

void MainHostWindow::runWithProgress(const QString& title, QFutureWatcher<void>& watcher) {
    BusyDialog(title, QString(), &m_window).runUntilFinished(watcher);
    watcher.waitForFinished(); // rethrows what the job stored
}

QStringList MainHostWindow::logLines() {
    QStringList lines;
    const QList<LogStore::Line> all = m_log.lines();
    for (const LogStore::Line& line : all) {
        lines.append(SessionLog::textOf(line));
    }
    return lines;
}

QList<QStringList> MainHostWindow::earlierLogs() { return m_sessionLog.earlier(); }

QImage MainHostWindow::capture() { return m_window.grab().toImage(); }

QString MainHostWindow::translate(const QString& text, const char* context, int n) {
    return QCoreApplication::translate(context ? context : "zel4", text.toUtf8().constData(), nullptr,
                                       n > 0 ? n : -1);
}
