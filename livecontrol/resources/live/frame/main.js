/* global livecontrol, zel4func */
import {
    bindAutoExposure, initExposureBox, recvAutoExposureArea, refreshAutoExposure, sendExposureArea, startAutoExposure
} from "../area/auto-exposure.js";
import {bindCameras} from "../cameras/cameras.js";
import {bindDeviceSettings} from "../cameras/devicesettings.js";
import {bindDualSlope, refreshDsShutterSlider} from "../shooting/dualslope.js";
import {bindExpanders, restoreExpanders} from "./expanders.js";
import {guarded, guardedHandler} from "./guard.js";
import {
    bindHWImageTrigger, recvHWImageTriggerArea, refreshHWImageTrigger, sendHWImageTriggerArea, startHWImageTrigger
} from "../area/image-trigger.js";
import {close, connectAll, open, setVariableRegist} from "./lifecycle.js";
import {bindLinks} from "./page-links.js";
import {bindInterruptedSlides} from "./interrupted-slides.js";
import {LIVE_PAGE} from "./live-page.js";
import {callLiveControlPage, changePage, recvRectArea} from "./pages.js";
import {bindLowLight, refreshLowLight} from "../options/low-light.js";
import {
    bindOptions, refreshFanControl, refreshLedLaserControl, refreshLiveImageQuality, refreshPhaseAdjust,
    refreshShadingCalibrate
} from "../options/options.js";
import {livecontrol_obj} from "./panel.js";
import {disableLensControl, ruleActions} from "./rule-actions.js";
import {liveRules} from "./rules.js";
import {correctStepValue, updateAreaLimitter} from "../area/select-area.js";
import {
    bindShooting, initShootingBoxes, refreshFramerate, refreshResolution, refreshShutterSpeed
} from "../shooting/shooting.js";
import {bindTrigger, initTriggerBox, refreshTriggerMode} from "../trigger/trigger.js";
import {applyTrigger, refreshTriggerParameter, updateTrigger} from "../trigger/trigger-block.js";
import {bindTriggerEdits, initTriggerTips} from "../trigger/trigger-edits.js";
import {applyState, update} from "./update.js";
import {initializeVariable, recvVariableResolution, refreshVariable} from "../variable/variable.js";
import {getVariableRestriction} from "../variable/variable-area.js";
import {bindVariableChannel, refreshVariableChannel} from "../variable/variable-channel.js";
import {bindVariable, initVariableBoxes} from "../variable/variable-edits.js";

Object.assign(livecontrol_obj, {
    controls: liveRules(ruleActions),
    open: guardedHandler("open", open),
    update: guardedHandler("update", update),
    applyState: applyState,
    close: guardedHandler("close", close),
    callLiveControlPage: guardedHandler("call page", callLiveControlPage),
    setVariableRegist: setVariableRegist,
    recvRectArea: guardedHandler("receive area", recvRectArea),
    changePage: changePage,
    disableLensControl: disableLensControl,
    refreshResolution: refreshResolution,
    refreshFramerate: refreshFramerate,
    refreshShutterSpeed: refreshShutterSpeed,
    refreshDsShutterSlider: refreshDsShutterSlider,
    startAutoExposure: startAutoExposure,
    refreshAutoExposure: refreshAutoExposure,
    sendExposureArea: sendExposureArea,
    recvAutoExposureArea: recvAutoExposureArea,
    startHWImageTrigger: startHWImageTrigger,
    refreshHWImageTrigger: refreshHWImageTrigger,
    sendHWImageTriggerArea: sendHWImageTriggerArea,
    recvHWImageTriggerArea: recvHWImageTriggerArea,
    updateAreaLimitter: updateAreaLimitter,
    correctStepValue: correctStepValue,
    refreshTriggerMode: refreshTriggerMode,
    refreshTriggerParameter: refreshTriggerParameter,
    updateTrigger: updateTrigger,
    applyTrigger: applyTrigger,
    initializeVariable: initializeVariable,
    refreshVariable: refreshVariable,
    recvVariableResolution: recvVariableResolution,
    getVariableRestriction: getVariableRestriction,
    refreshVariableChannel: refreshVariableChannel,
    refreshLowLight: refreshLowLight,
    refreshShadingCalibrate: refreshShadingCalibrate,
    refreshFanControl: refreshFanControl,
    refreshLedLaserControl: refreshLedLaserControl,
    refreshPhaseAdjust: refreshPhaseAdjust,
    refreshLiveImageQuality: refreshLiveImageQuality
});

window.LIVE_PAGE = LIVE_PAGE;
window.livecontrol_obj = livecontrol_obj;

function load() {
    zel4func.log("livecontrol - load - start");
    guarded("connections", connectAll);
    guarded("sliders", bindInterruptedSlides); // before the first slider is made
    guarded("expanders", () => {
        restoreExpanders();
        bindExpanders();
    });
    [bindCameras, bindDeviceSettings, bindLinks, bindShooting, bindDualSlope, bindTrigger, bindTriggerEdits,
        bindAutoExposure, bindHWImageTrigger, bindVariable, bindVariableChannel, bindLowLight, bindOptions]
        .forEach((bind) => guarded(bind.name, bind));
    $(window).off("resize.scrollarea").on("resize.scrollarea", () => zel4func.scrollarea_resize(400));
    guarded("select boxes", initShootingBoxes);
    guarded("exposure box", initExposureBox);
    guarded("trigger box", initTriggerBox);
    guarded("variable boxes", initVariableBoxes);
    guarded("texts", () => zel4func.localize(livecontrol));
    guarded("trigger tips", initTriggerTips);
    guarded("operation log", () => zel4func.enableUserOperationLog(livecontrol, "#panels"));
    zel4func.log("livecontrol - load - end");
}

$(load);
