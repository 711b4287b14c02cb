#pragma once

#include <QUrl>
#include <QWidget>
#include <memory>

class GUI_WebView;
class HostObject;
class JS_Mediator_SelectBox;

/// The drop-down list over a page: a frameless window with a page of rows. The host fills it through the
/// signals of its mediator and places it; the mediator acts on the row that is picked.
class GUI_SelectBox : public QWidget {
    Q_OBJECT

public:
    /// Begins to load `page`, the host's. `host` is not owned and outlives the box.
    GUI_SelectBox(HostObject* host, const QUrl& page, QWidget* parent = nullptr);
    ~GUI_SelectBox() override;

    GUI_WebView& view() const { return *m_view; }
    JS_Mediator_SelectBox& items() const { return *m_items; }
    /// The page stands and can be filled; set before others learn of the view's `loadFinished`.
    bool isLoaded() const { return m_loaded; }

    /// Notes what is wanted; the window appears only once its page stands.
    void setVisible(bool visible) override;

public slots:
    /// Adds the script objects of the page to its frame.
    void addJSObject();
    void onLoadFinish(bool ok);
    void onClose();
    /// Follows the style that the user chose.
    void onUpdate();

private:
    HostObject* m_host;
    std::unique_ptr<JS_Mediator_SelectBox> m_items;
    GUI_WebView* m_view; ///< A child.
    bool m_wantVisible = false;
    bool m_loaded = false;
};
