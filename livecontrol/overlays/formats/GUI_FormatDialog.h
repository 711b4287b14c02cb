#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

class JS_Mediator_FormatDialog;

/// Base of the dialogs that say how a value over the image is written: small, without a close button. However
/// the window system closes it, that is a cancel.
class GUI_FormatDialog : public GUI_WebViewDialog {
    Q_OBJECT

protected:
    /// `title` is untranslated. A null parent means the host's dialog parent. Throws what the host throws.
    GUI_FormatDialog(HostObject* host, const QString& title, const QString& url,
                     std::unique_ptr<JS_Mediator_FormatDialog> mediator, QWidget* parent, const QSize& size);

    void closeEvent(QCloseEvent* event) override;
};
