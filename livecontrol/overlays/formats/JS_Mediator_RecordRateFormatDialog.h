#pragma once

#include "livecontrol/overlays/formats/JS_Mediator_FormatDialog.h"

/// The script object `recordRateFormatDialog`.
class JS_Mediator_RecordRateFormatDialog : public JS_Mediator_FormatDialog {
    Q_OBJECT

public:
    /// Keeps the setting for cancel(). Throws what the host throws.
    explicit JS_Mediator_RecordRateFormatDialog(HostObject* host);

public slots:
    bool isRecordRateInsertDelimiter();
    void setRecordRateInsertDelimiter(bool val);

protected:
    void restore() override;

private:
    bool m_delimiter;
};
