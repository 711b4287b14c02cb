#include "livecontrol/overlays/formats/JS_Mediator_ShutterSpeedFormatDialog.h"

#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/interface/HostObject.h"

namespace {

const QString kFormat = QStringLiteral("display/ShutterSpeed");
const QString kUnit = QStringLiteral("display/ShutterSpeedUnit");
const QString kDelimiter = QStringLiteral("display/shutterSpeedInsertDelimiter");
constexpr int kCameraUnit = 1; // as everywhere where the format is read

int formatOf(HostObject* host) { return host->getPrefInt(kFormat, kCameraUnit); }
int unitOf(HostObject* host) { return host->getPrefInt(kUnit, QVariant()); }
bool delimiterOf(HostObject* host) { return host->getPrefBool(kDelimiter, QVariant()); }

} // namespace

JS_Mediator_ShutterSpeedFormatDialog::JS_Mediator_ShutterSpeedFormatDialog(HostObject* host)
    : JS_Mediator_FormatDialog(host, QStringLiteral("shutter_format_dlg")), m_format(formatOf(host)),
      m_unit(unitOf(host)), m_delimiter(delimiterOf(host)) {}

int JS_Mediator_ShutterSpeedFormatDialog::getShutterSpeedFormat() {
    return guarded([this] { return formatOf(host()); }, 0);
}

void JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedFormat(int format) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedFormat"),
        traceArgs({{"format", format}}));
    guarded([&] { host()->setPrefInt(kFormat, format); });
}

int JS_Mediator_ShutterSpeedFormatDialog::getShutterSpeedTimeUnit() {
    return guarded([this] { return unitOf(host()); }, 0);
}

void JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedTimeUnit(int unit) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedTimeUnit"),
        traceArgs({{"unit", unit}}));
    guarded([&] { host()->setPrefInt(kUnit, unit); });
}

bool JS_Mediator_ShutterSpeedFormatDialog::isShutterSpeedInsertDelimiter() {
    return guarded([this] { return delimiterOf(host()); }, false);
}

void JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedInsertDelimiter(bool val) {
    const OperationEventHandler scope(
        this, QStringLiteral("JS_Mediator_ShutterSpeedFormatDialog::setShutterSpeedInsertDelimiter"),
        traceArgs({{"val", val}}));
    guarded([&] { host()->setPrefBool(kDelimiter, val); });
}

void JS_Mediator_ShutterSpeedFormatDialog::restore() {
    guarded([this] { host()->setPrefInt(kFormat, m_format); });
    guarded([this] { host()->setPrefInt(kUnit, m_unit); });
    guarded([this] { host()->setPrefBool(kDelimiter, m_delimiter); });
}
