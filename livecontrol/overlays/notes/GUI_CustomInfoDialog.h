#pragma once

#include "livecontrol/web/GUI_WebViewDialog.h"

/// Lets the user maintain the custom items of documents. Every change goes to the documents at once; closing
/// the window takes all of them back.
class GUI_CustomInfoDialog : public GUI_WebViewDialog {
    Q_OBJECT

public:
    /// The documents are the selected ones, or with `forTemporary` those that stand for what is to be saved.
    /// A null parent means the host's dialog parent. Throws what the host throws.
    explicit GUI_CustomInfoDialog(HostObject* host, QWidget* parent = nullptr, bool forTemporary = false);

    /// What the tick of an item stands for: 17 shown over the image, any other number part of the file name.
    void setCallbackType(int type);

protected:
    void closeEvent(QCloseEvent* event) override;
};
