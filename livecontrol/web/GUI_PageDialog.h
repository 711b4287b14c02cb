#pragma once

#include "livecontrol/foundation/ModalScope.h"
#include "livecontrol/foundation/ReportFailure.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/web/GUI_Dialog.h"

#include <memory>
#include <optional>
#include <utility>

class GUI_WebView;

/// A dialog whose whole client area is a page, and which is the page's script object itself. It stays
/// transparent until its page is there. Escape and the close button reject it.
class GUI_PageDialog : public GUI_Dialog {
    Q_OBJECT

public:
    /// `title` is untranslated. Tells the host that a modal window begins, if one may begin now. Throws what
    /// the host throws. The page is not loaded yet.
    GUI_PageDialog(HostObject* host, const QString& title, QWidget* parent, Qt::WindowFlags flags);
    ~GUI_PageDialog() override;

    GUI_WebView* view() const { return m_view.get(); }

public slots:
    /// Adds the script objects to the page; called whenever its script context is renewed.
    virtual void populateJavaScriptWindowObject() = 0;
    QString translate(const QString& text);
    /// "dark" or "light", as the user chose.
    virtual QString getStyle();

protected:
    /// The last step of a constructor: `url` is an address such as "qrc:/commentview.html".
    void loadPage(const QString& url);
    void addToPage(const QString& name, QObject* object);
    QString style() const;

    /// As JS_Mediator's: a failure goes to the host and the slot gives its neutral result.
    template <class Action, class Result>
    Result guarded(Action&& action, Result neutral) const {
        return reportingFailures(m_host, std::forward<Action>(action), std::move(neutral));
    }
    template <class Action>
    void guarded(Action&& action) const {
        reportingFailures(m_host, std::forward<Action>(action));
    }

    HostObject* m_host; ///< Not owned.

private:
    void onLoaded();

    std::unique_ptr<GUI_WebView> m_view;
    std::optional<ModalScope> m_modal; ///< Set once the host was asked whether a modal window may begin.
};
