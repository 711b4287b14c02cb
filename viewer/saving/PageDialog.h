#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"
#include "livecontrol/web/GUI_WebViewDialog.h"

/// A dialog whose page and mediator the caller brings.
class PageDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    PageDialog(HostObject* host, const QString& title, const QString& url,
               std::unique_ptr<JS_Mediator_Dialog> mediator, const QSize& size)
        : GUI_WebViewDialog(host, title, url, std::move(mediator), parentOr(nullptr, host)) {
        setFixedSize(size);
    }
};
