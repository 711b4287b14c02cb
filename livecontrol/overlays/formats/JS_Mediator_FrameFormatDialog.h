#pragma once

#include "livecontrol/overlays/formats/JS_Mediator_FormatDialog.h"

/// The script object `frameFormatDialog`.
class JS_Mediator_FrameFormatDialog : public JS_Mediator_FormatDialog {
    Q_OBJECT

public:
    /// Keeps the setting for cancel(). Throws what the host throws.
    explicit JS_Mediator_FrameFormatDialog(HostObject* host);

public slots:
    bool isFrameInsertDelimiter();
    void setFrameInsertDelimiter(bool val);

protected:
    void restore() override;

private:
    bool m_delimiter;
};
