#pragma once

#include "livecontrol/overlays/formats/JS_Mediator_FormatDialog.h"

/// The script object `shutter_format_dlg`. What the numbers mean is the host's.
class JS_Mediator_ShutterSpeedFormatDialog : public JS_Mediator_FormatDialog {
    Q_OBJECT

public:
    /// Keeps the settings for cancel(). Throws what the host throws.
    explicit JS_Mediator_ShutterSpeedFormatDialog(HostObject* host);

public slots:
    int getShutterSpeedFormat();
    void setShutterSpeedFormat(int format);
    int getShutterSpeedTimeUnit();
    void setShutterSpeedTimeUnit(int unit);
    bool isShutterSpeedInsertDelimiter();
    void setShutterSpeedInsertDelimiter(bool val);

protected:
    void restore() override;

private:
    int m_format;
    int m_unit;
    bool m_delimiter;
};
