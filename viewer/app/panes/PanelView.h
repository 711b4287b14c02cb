#pragma once

#include <QHash>
#include <QPointer>
#include <QWidget>

class GUI_WebView;
class HostObject;
class JS_Mediator;
class PLG_Interface;
class PageMediators;
class PanelSignals;

/// The side panel: the web view that shows the page of the open plug-in.
///
/// The panel's document stays; a plug-in's page text is put into it and taken out again. Life of a page: its
/// mediators are known before its scripts run; when its own ready handlers have run, the plug-in's mediator
/// emits `open`, and pageOpened() follows; before it goes the mediator emits `close`.
class PanelView : public QWidget {
    Q_OBJECT

public:
    PanelView(HostObject* host, PageMediators& mediators, QWidget* parent = nullptr);
    ~PanelView() override;

    GUI_WebView& view() const { return *m_view; }

    /// Shows the plug-in's page; null shows none. What was open is closed first.
    void showPlugin(PLG_Interface* plugin);
    PLG_Interface* plugin() const { return m_isParked ? nullptr : m_plugin; }
    /// Whether the page of the plug-in has been opened.
    bool isPageOpen() const { return m_pageOpen && !m_isParked; }
    /// The next showPlugin(nullptr) leaves the page as it is, out of sight, until the same plug-in shows
    /// again.
    void park() { m_isParked = m_plugin; }
    void addMediator(JS_Mediator* mediator);
    /// Gives the script's value; invalid while the panel's document loads. A value that is an object is
    /// copied whole.
    QVariant evaluate(const QString& script);
    /// Runs a script for its effect; does nothing while the panel's document loads.
    void runScript(const QString& script);
    void setStyle(const QString& name);
    /// Closes what is open, a parked page too.
    void drop();
    /// Loads the page of the open plug-in anew, as after a change of the language.
    void reload();
    /// The errors of the page's scripts since the last call.
    QStringList takeScriptErrors();

    QSize sizeHint() const override { return {340, 600}; }

signals:
    void pageOpened();

private:
    struct Loading {
        QPointer<QObject> object; // of the plug-in, and it
        PLG_Interface* plugin = nullptr;
    };

    void onLoadStarted();
    void onLoaded(bool ok);
    void loadPage();
    void closePage();
    void onReady(int load);
    void onPageReady(int load);

    GUI_WebView* m_view;
    PageMediators& m_mediators;
    PanelSignals* m_signals;
    QPointer<QObject> m_pluginObject; // the plug-in goes before the panel when the program ends
    PLG_Interface* m_plugin = nullptr;
    QString m_style;
    bool m_loaded = false;
    bool m_pageOpen = false;
    bool m_isParked = false;
    QHash<int, Loading> m_loading; // by number
    int m_load = 0;                // a page that was replaced before it got ready is not opened
};

/// How the panel's document speaks to the panel.
class PanelSignals : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

public slots:
    void pageReady(int load) { emit ready(load); }

signals:
    void ready(int load);
};
