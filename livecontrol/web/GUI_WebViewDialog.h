#pragma once

#include "livecontrol/foundation/ModalScope.h"
#include "livecontrol/web/GUI_Dialog.h"

#include <memory>
#include <optional>
#include <vector>

class GUI_WebView;
class HostObject;
class JS_Mediator;
class JS_Mediator_Dialog;
class QVBoxLayout;

/// A dialog whose whole client area is a page with a mediator. It stays transparent while the page loads,
/// then fades in; no page is updated meanwhile. Escape never closes it.
class GUI_WebViewDialog : public GUI_Dialog {
    Q_OBJECT

public:
    /// `title` is untranslated, `url` an address such as "qrc:/custominfo.html"; the dialog takes over the
    /// mediator. Tells the host that a modal window
    /// begins, if one may begin now. Throws what the host throws.
    GUI_WebViewDialog(HostObject* host, const QString& title, const QString& url,
                      std::unique_ptr<JS_Mediator_Dialog> mediator, QWidget* parent);
    ~GUI_WebViewDialog() override;

    /// A further script object of the page; the dialog takes it over.
    void addMediator(std::unique_ptr<JS_Mediator> extra);
    JS_Mediator_Dialog* mediator() const { return m_mediator.get(); }
    GUI_WebView* view() const { return m_view.get(); }
    /// Whether a finished load updates all that shows state; true at the start.
    void setRefreshOnLoad(bool refresh) { m_refreshOnLoad = refresh; }

public slots:
    void slotRejected();
    void loadStarted();
    void loadProgress(int progress);
    void loadFinished(bool ok);

protected:
    /// The close button is a cancel.
    void closeEvent(QCloseEvent* event) override;

    /// The parent of a dialog whose caller may leave it open: the host's choice for null.
    static QWidget* parentOr(QWidget* parent, HostObject* host);

    HostObject* m_host; ///< Not owned.

private:
    std::unique_ptr<JS_Mediator_Dialog> m_mediator;
    std::vector<std::unique_ptr<JS_Mediator>> m_extraMediators;
    std::unique_ptr<QVBoxLayout> m_layout;
    std::unique_ptr<GUI_WebView> m_view;
    std::optional<ModalScope> m_modal; ///< Set once the host was asked whether a modal window may begin.
    int m_loading = 0;                 ///< Loads that hold back the updates.
    int m_refused = 0;                 ///< Loads for which the host failed to hold them back.
    bool m_refreshOnLoad = true;

    void endLoading();
    void requireScriptObject();
};
