#pragma once

#include "livecontrol/interface/types.h"

#include <QImage>
#include <QList>
#include <QPoint>
#include <QRect>
#include <QStringList>

class GUI_WebView;
class HostPrefsDialog;
class JS_Mediator;
class PLG_Interface;
class QDialog;
class QEvent;
class QMouseEvent;
class QObject;
class QWidget;
template <class T>
class QFutureWatcher;

/// What the host object needs of the program's windows: the window side implements it, a test fakes it.
///
/// What the windows need to know of documents they learn from DocumentList's and Document's signals; nothing
/// of that is here. GUI thread only.
class HostWindow {
public:
    virtual ~HostWindow() = default;

    // --- Windows ---
    virtual QWidget* mainWindow() = 0;
    /// Parent for dialogs; may be null.
    virtual QWidget* dialogParent() = 0;
    /// The widget that holds the document windows; may be null.
    virtual QObject* mdiArea() = 0;
    /// The keys of the documents that have a window, front first.
    virtual QList<DOCKEY> windowKeys(bool visibleOnly) = 0;
    /// How many they are: asked at every update.
    virtual int windowCount(bool visibleOnly) = 0;
    /// True while the windows show their documents in turn.
    virtual bool isCycling() = 0;
    /// Draws tool buttons and menus anew.
    virtual void refreshTools() = 0;
    /// Draws the views anew: all, or that of one document.
    virtual void refreshViews() = 0;
    virtual void refreshView(DOCKEY key) = 0;
    /// Shows a text on the view of a document; an empty one hides it. The invalid key means all views.
    virtual void setBusyText(DOCKEY key, const QString& text) = 0;
    /// The information over the image.
    virtual bool isInfoShowing() = 0;
    virtual void setInfoShowing(bool showing) = 0;

    // --- Side panel and pages ---
    /// Runs a script in the panel's page.
    virtual void runPanelScript(const QString& script) = 0;
    /// Adds a mediator to the panel's page, now and whenever its script objects are cleared.
    virtual void addPanelMediator(JS_Mediator* mediator) = 0;
    /// Adds a mediator to the page of any view, now and whenever its script objects are cleared, and stores
    /// the view in it. Not owned; forgets it when it is destroyed.
    virtual void attachMediator(GUI_WebView* view, JS_Mediator* mediator) = 0;
    /// Emits `update` of all mediators that were attached to views other than the panel's.
    virtual void updateAttachedMediators() = 0;
    /// Shows a plug-in's page in the panel; null closes the panel.
    virtual void showPanel(PLG_Interface* plugin) = 0;
    /// True if the panel shows the live page; with `orDeviceSettings` its device settings count too.
    virtual bool isLivePage(bool orDeviceSettings) = 0;
    /// The objects that pages see as `app` and `main`.
    virtual QObject* appScriptObject() = 0;
    virtual QObject* mainScriptObject() = 0;

    // --- Drop-down boxes and native widgets over a page ---
    virtual void showDropDownBox(const QString& key, const QRect& rect) = 0;
    virtual void hideDropDownBox(const QString& key) = 0;
    /// Hides the box unless the point lies in it; page pixels.
    virtual void hideDropDownBoxAt(const QString& key, const QPoint& point) = 0;
    virtual bool isDropDownBoxShown() = 0;
    virtual void hideSelectBox() = 0;
    virtual void nativeWidgetEntered(QEvent* event) = 0;
    virtual void nativeWidgetLeft(QEvent* event) = 0;
    virtual void nativeWidgetPressed(QMouseEvent* event) = 0;

    // --- Dialogs ---
    virtual HostPrefsDialog* prefsDialog() = 0;
    virtual bool isPrefsDialogOpen() = 0;
    virtual void openAbout() = 0;
    /// The dialog that waits while a camera's power changes; may be null.
    virtual QDialog* powerWaitDialog() = 0;
    /// Waits modally under a progress window; rethrows what the job stored.
    virtual void runWithProgress(const QString& title, QFutureWatcher<void>& watcher) = 0;

    // --- What a support desk asks for ---
    /// The lines of the program's log, oldest first.
    virtual QStringList logLines() = 0;
    /// The same of the sessions before, the latest one first.
    virtual QList<QStringList> earlierLogs() = 0;
    /// The main window as it stands.
    virtual QImage capture() = 0;

    // --- Texts ---
    /// The host's translation; the text itself if there is none. `context` may be null.
    virtual QString translate(const QString& text, const char* context, int n) = 0;
};
