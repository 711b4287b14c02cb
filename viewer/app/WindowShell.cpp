#include "viewer/app/WindowShell.h"

#include "livecontrol/bridge/JS_Mediator.h"
#include "livecontrol/interface/PLG_Interface.h"
#include "livecontrol/web/GUI_WebView.h"
#include "viewer/app/Dialogs.h"
#include "viewer/app/LogStore.h"
#include "viewer/app/MainWindow.h"
#include "viewer/app/PanelView.h"
#include "viewer/app/PreferencesDialog.h"
#include "viewer/app/SelectBoxes.h"
#include "viewer/messages/Translated.h"
#include "viewer/views/DocumentArea.h"
#include "viewer/views/ImageView.h"

#include <QApplication>
#include <QFutureWatcher>

WindowShell::WindowShell(MainWindow& window, Preferences& preferences, const LogStore& log,
                         const QString& rigTitle)
    : m_window(window), m_log(log), m_rigTitle(rigTitle),
      m_preferencesDialog(std::make_unique<PreferencesDialog>(preferences, &window)),
      m_appObject(std::make_unique<QObject>()) {}

WindowShell::~WindowShell() = default;

QWidget* WindowShell::mainWindow() { return &m_window; }

// What comes up from within a modal dialog lies over it.
QWidget* WindowShell::dialogParent() {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal ? modal : &m_window;
}

QObject* WindowShell::mdiArea() { return &m_window.area(); }

int WindowShell::windowCount(bool visibleOnly) { return m_window.area().windowCount(visibleOnly); }

QList<DOCKEY> WindowShell::windowKeys(bool visibleOnly) { return m_window.area().windowKeys(visibleOnly); }

bool WindowShell::isCycling() { return m_window.area().isCycling(); }

void WindowShell::refreshTools() { m_window.refreshActions(); }

void WindowShell::refreshViews() { m_window.area().refreshAll(); }

void WindowShell::refreshView(DOCKEY key) { m_window.area().refresh(key); }

void WindowShell::setBusyText(DOCKEY key, const QString& text) { m_window.area().setBusyText(key, text); }

bool WindowShell::isInfoShowing() { return m_window.isInfoShown(); }

void WindowShell::setInfoShowing(bool showing) { m_window.setInfoShown(showing); }

void WindowShell::runPanelScript(const QString& script) { m_window.panel()->runScript(script); }

void WindowShell::addPanelMediator(JS_Mediator* mediator) { m_window.panel()->addMediator(mediator); }

void WindowShell::attachMediator(GUI_WebView* view, JS_Mediator* mediator) {
    m_mediators.addMediator(view, mediator);
}

void WindowShell::updateAttachedMediators() { m_mediators.updateAllBut(&m_window.panel()->view()); }

void WindowShell::showPanel(PLG_Interface* plugin) {
    m_window.panel()->showPlugin(plugin);
    plugin ? m_window.setPanelNote(QString()) : m_window.notePanelClosed();
}

bool WindowShell::isLivePage(bool orDeviceSettings) {
    PLG_Interface* const plugin = m_window.openPlugin();
    if (!plugin || plugin->getName() != QLatin1String("livecontrol")) {
        return false;
    }
    const int page = plugin->getLastPage();
    return page == 0 || (orDeviceSettings && page == 1);
}

QObject* WindowShell::mainScriptObject() { return m_selectBoxes; }

void WindowShell::showDropDownBox(const QString& key, const QRect& rect) {
    if (m_selectBoxes) {
        m_selectBoxes->show(key, rect);
    }
}

void WindowShell::hideDropDownBox(const QString& key) {
    if (m_selectBoxes && SelectBoxes::isKnown(key)) {
        m_selectBoxes->hide(key);
    }
}

void WindowShell::hideDropDownBoxAt(const QString& key, const QPoint& point) {
    if (m_selectBoxes && SelectBoxes::isKnown(key)) {
        m_selectBoxes->hideUnlessAt(key, point);
    }
}

bool WindowShell::isDropDownBoxShown() { return m_selectBoxes && m_selectBoxes->isShown(); }

void WindowShell::hideSelectBox() {
    if (m_selectBoxes) {
        m_selectBoxes->hide();
    }
}

void WindowShell::nativeWidgetEntered(QEvent* /*event*/) {
    PLG_Interface* const plugin = m_window.openPlugin();
    if (plugin && plugin->getMediator()) {
        emit plugin->getMediator()->enterQtWidget();
    }
}

// The page's own hover states are the engine's business; there is nothing of the window's to take back.
void WindowShell::nativeWidgetLeft(QEvent* /*event*/) {}

void WindowShell::nativeWidgetPressed(QMouseEvent* /*event*/) { hideSelectBox(); }

HostPrefsDialog* WindowShell::prefsDialog() { return m_preferencesDialog.get(); }

bool WindowShell::isPrefsDialogOpen() { return m_preferencesDialog->isVisible(); }

void WindowShell::openAbout() { showAbout(&m_window, m_rigTitle); }

QDialog* WindowShell::powerWaitDialog() {
    if (!m_powerWait) {
        m_powerWait = std::make_unique<BusyDialog>(
            translated("Camera power"), translated("Waiting for the cameras to switch..."), &m_window);
    }
    return m_powerWait.get();
}

void WindowShell::runWithProgress(const QString& title, QFutureWatcher<void>& watcher) {
    BusyDialog(title, QString(), &m_window).runUntilFinished(watcher);
    watcher.waitForFinished(); // rethrows what the job stored
}

QStringList WindowShell::logLines() {
    QStringList lines;
    const QList<LogStore::Line> all = m_log.lines();
    for (const LogStore::Line& line : all) {
        lines.append(line.time.toString(Qt::ISODateWithMs) + QLatin1Char(' ') + line.level() +
                     QLatin1Char(' ') + line.text);
    }
    return lines;
}

QImage WindowShell::capture() { return m_window.grab().toImage(); }

QString WindowShell::translate(const QString& text, const char* context, int n) {
    return QCoreApplication::translate(context ? context : "zel4", text.toUtf8().constData(), nullptr,
                                       n > 0 ? n : -1);
}
