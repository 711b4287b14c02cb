#pragma once

#include "livecontrol/overlays/formats/JS_Mediator_FormatDialog.h"

/// The script object `rectime_format_dlg`. What the numbers mean is the host's. Its slots update no page, but
/// tell the tools.
class JS_Mediator_RectimeFormatDialog : public JS_Mediator_FormatDialog {
    Q_OBJECT

public:
    /// Keeps the setting for cancel(). Throws what the host throws.
    explicit JS_Mediator_RectimeFormatDialog(HostObject* host);

public slots:
    int getRecTimeUnit();
    void setRecTimeUnit(int unit);
    void ok() override;
    void cancel() override;

protected:
    void restore() override;

private:
    int m_unit;
};
