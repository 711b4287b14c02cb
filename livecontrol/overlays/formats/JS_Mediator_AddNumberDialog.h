#pragma once

#include "livecontrol/bridge/JS_Mediator_Dialog.h"

/// The script object `addnumberdialog`: how many digits the numbers in a name have. The page stores them by
/// the preference slots.
class JS_Mediator_AddNumberDialog : public JS_Mediator_Dialog {
    Q_OBJECT

public:
    /// `callbackType` is the number target that the name has in the preferences; the counts are those of the
    /// cameras that are saved, and of the heads of the one that has most.
    JS_Mediator_AddNumberDialog(HostObject* host, int callbackType, int deviceCount, int headCount);

public slots:
    /// True also for the names of a conversion: a file has neither camera nor head number.
    bool isFileMode() override;
    int getCallbackType() { return m_callbackType; }
    /// The number of the first camera, head and session; a count of 0 leaves its part out.
    QString preview(int deviceDigits, int headDigits, int sessionDigits);
    /// As many digits as the cameras need, and their heads: none for a single one.
    int getAutoDeviceDigits() { return m_autoDeviceDigits; }
    int getAutoHeadDigits() { return m_autoHeadDigits; }

private:
    int m_callbackType;
    int m_autoDeviceDigits;
    int m_autoHeadDigits;
};
