#include "livecontrol/overlays/formats/JS_Mediator_AddNumberDialog.h"

#include "livecontrol/foundation/UTL_Names.h"

namespace {

constexpr int kFirstConversion = 3; // targets
constexpr int kLastConversion = 5;

int digitsOf(int count) { return QString::number(count).size(); }

} // namespace

JS_Mediator_AddNumberDialog::JS_Mediator_AddNumberDialog(HostObject* host, int callbackType, int deviceCount,
                                                         int headCount)
    : JS_Mediator_Dialog(host, QStringLiteral("addnumberdialog")), m_callbackType(callbackType),
      m_autoDeviceDigits(digitsOf(deviceCount)), m_autoHeadDigits(headCount > 1 ? digitsOf(headCount) : 0) {}

bool JS_Mediator_AddNumberDialog::isFileMode() {
    return (m_callbackType >= kFirstConversion && m_callbackType <= kLastConversion) ||
           JS_Mediator_Dialog::isFileMode();
}

QString JS_Mediator_AddNumberDialog::preview(int deviceDigits, int headDigits, int sessionDigits) {
    const bool isFile = isFileMode();
    return composeSequenceNumber(1, 1, 1, isFile ? 0 : deviceDigits, isFile ? 0 : headDigits, sessionDigits);
}
