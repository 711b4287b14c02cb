// The electronic lens of the current camera: what the block shows of its axes, and what drives them.

#include "livecontrol/bridge/Json.h"
#include "livecontrol/bridge/OperationEventHandler.h"
#include "livecontrol/foundation/OperationTrace.h"
#include "livecontrol/interface/DOC_Interface.h"
#include "livecontrol/interface/DOC_Settings.h"
#include "livecontrol/interface/DOC_Transfer.h"
#include "livecontrol/interface/DocumentCast.h"
#include "livecontrol/interface/HostObject.h"
#include "livecontrol/interface/records.h"
#include "livecontrol/live/JS_Mediator_LiveControl.h"

#include <QScopeGuard>

namespace {

QString lensTypeText(HostObject* host) {
    switch (host->getLensType()) {
    case 1:
        return QStringLiteral("EF");
    case 2:
        return QStringLiteral("MYUTRON");
    case 3:
        return QStringLiteral("FOURTHIRDS");
    case 4:
        return QStringLiteral("EF2");
    default:
        return host->isLensControlUnable() ? QStringLiteral("Unable") : QStringLiteral("NONE");
    }
}

QJsonObject axisText(const LensAxisInfo& axis) {
    return {{QStringLiteral("SliderValue"), axis.sliderValue},
            {QStringLiteral("SliderMin"), axis.sliderMin},
            {QStringLiteral("SliderMax"), axis.sliderMax},
            {QStringLiteral("SpinnerMax"), axis.spinnerMax},
            {QStringLiteral("SpinnerMin"), axis.spinnerMin},
            {QStringLiteral("SpinnerValue"), axis.spinnerValue},
            {QStringLiteral("SmallTick"), axis.smallTick},
            {QStringLiteral("LargeTick"), axis.largeTick}};
}

} // namespace

QString JS_Mediator_LiveControl::getLensControlSettings() {
    return guarded(
        [&] {
            LensAxisInfo iris;
            LensAxisInfo focus;
            LensAxisInfo zoom;
            host()->getLensControlInfo(iris, focus, zoom);
            QJsonObject irisText = axisText(iris);
            irisText.insert(QStringLiteral("Enable"), int(iris.enable)); // a number on this axis alone
            QJsonObject focusText = axisText(focus);
            focusText.insert(QStringLiteral("Enable"), focus.enable != 0);
            focusText.insert(QStringLiteral("AutoFocusEnable"), focus.autoFocusEnable != 0);
            QJsonObject zoomText = axisText(zoom);
            zoomText.insert(QStringLiteral("Enable"), zoom.enable != 0);
            DOC_Interface* const document = host()->currentDocument();
            return json::compact({
                {QStringLiteral("ExistLensControl"), host()->existLensControl()},
                {QStringLiteral("LensType"), lensTypeText(host())},
                {QStringLiteral("CameraName"),
                 document ? docAs<DOC_Settings>(document).getCameraName(false) : QString()},
                {QStringLiteral("LensName"), host()->getLensName()},
                {QStringLiteral("Iris"), irisText},
                {QStringLiteral("Focus"), focusText},
                {QStringLiteral("Zoom"), zoomText},
            });
        },
        QString());
}

int JS_Mediator_LiveControl::getLensControlCommandTime() {
    return guarded([&] { return host()->getLensControlCommandTime(); }, 0);
}

void JS_Mediator_LiveControl::closeLens() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::closeLens"));
    guarded([&] { host()->closeLens(); });
}

void JS_Mediator_LiveControl::resetLens() {
    const OperationEventHandler scope(this, QStringLiteral("JS_Mediator_LiveControl::resetLens"));
    guarded([&] {
        const QString text = translate(QStringLiteral("Updating"));
        // Another camera may be the current one by the end: the text goes from where it came.
        const DOCKEY key = host()->getCurrentKey();
        host()->showBusyText(text, key);
        // Before a failure is shown: while its message stands, nothing is being updated.
        const auto hide = qScopeGuard([&] { guarded([&] { host()->hideBusyText(key); }); });
        host()->resetLens(0);
    });
}

void JS_Mediator_LiveControl::setIrisValue(int value) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setIrisValue"),
                               traceArgs({{"value", value}}));
    guarded([&] { host()->setIrisValue(value); });
}

void JS_Mediator_LiveControl::setFocusValue(int value) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setFocusValue"),
                               traceArgs({{"value", value}}));
    guarded([&] { host()->setFocusValue(value); });
}

void JS_Mediator_LiveControl::setZoomValue(int value) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setZoomValue"),
                               traceArgs({{"value", value}}));
    guarded([&] { host()->setZoomValue(value); });
}

void JS_Mediator_LiveControl::setIrisIncremental(int coef, int size) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setIrisIncremental"),
                               traceArgs({{"coef", coef}, {"size", size}}));
    guarded([&] { host()->setIrisIncremental(coef, size); });
}

void JS_Mediator_LiveControl::setFocusIncremental(int coef, int size) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setFocusIncremental"),
                               traceArgs({{"coef", coef}, {"size", size}}));
    guarded([&] { host()->setFocusIncremental(coef, size); });
}

void JS_Mediator_LiveControl::setZoomIncremental(int coef, int size) {
    const OperationTrace trace(QStringLiteral("JS_Mediator_LiveControl::setZoomIncremental"),
                               traceArgs({{"coef", coef}, {"size", size}}));
    guarded([&] { host()->setZoomIncremental(coef, size); });
}

bool JS_Mediator_LiveControl::isAutoFocusActive() {
    return guarded([&] { return host()->isAutoFocusActive(false); }, false);
}

void JS_Mediator_LiveControl::openAutofocus() {
    guarded([&] {
        const QList<DOCKEY> keys = host()->listViewKeys(0);
        for (const DOCKEY key : keys) {
            if (DOC_Interface* const document = host()->findDocument(key)) {
                docAs<DOC_Transfer>(document).beginViewSelection();
            }
        }
        host()->openPlugin(QStringLiteral("autofocus"));
    });
}
