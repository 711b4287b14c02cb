import {refreshAutoExposure} from "../area/auto-exposure.js";
import {refreshCameraList} from "../cameras/cameras.js";
import {refreshDeviceList, refreshIPAddress, refreshUseIpCameraName} from "../cameras/devicesettings.js";
import {refreshDifferences} from "../shooting/differences.js";
import {refreshDsShutterSlider} from "../shooting/dualslope.js";
import {refreshHWImageTrigger} from "../area/image-trigger.js";
import {LIVE_PAGE} from "./live-page.js";
import {refreshLowLight} from "../options/low-light.js";
import {
    refreshFanControl, refreshLedLaserControl, refreshLiveImageQuality, refreshPhaseAdjust, refreshShadingCalibrate
} from "../options/options.js";
import {livecontrol_obj} from "./panel.js";
import {refreshFramerate, refreshResolution, refreshShutterSpeed} from "../shooting/shooting.js";
import {refreshTriggerMode} from "../trigger/trigger.js";
import {refreshTriggerParameter} from "../trigger/trigger-block.js";
import {refreshVariable} from "../variable/variable.js";
import {refreshVariableChannel} from "../variable/variable-channel.js";

/**
 * The blocks of each page in the order in which an update refreshes them. The order counts: a block after another
 * may read what that one shows.
 */
const SEQUENCE = {
    [LIVE_PAGE.LIST]: [
        {name: "cameras", refresh: refreshCameraList},
        {name: "low light", refresh: refreshLowLight},
        {name: "resolution", refresh: refreshResolution},
        {name: "frame rate", refresh: refreshFramerate},
        {name: "shutter", refresh: refreshShutterSpeed},
        {name: "differences", refresh: refreshDifferences},
        {name: "lens", refresh: () => livecontrol_obj.refreshLensControl()}, // of the lens's own script
        {name: "trigger mode", refresh: refreshTriggerMode},
        {name: "trigger parameters", refresh: () => refreshTriggerParameter($("#livecontrol_trigger").val())},
        {name: "variable channel", refresh: refreshVariableChannel},
        {name: "shading", refresh: refreshShadingCalibrate},
        {name: "fan", refresh: refreshFanControl},
        {name: "LED and laser", refresh: refreshLedLaserControl},
        {name: "phase of the links", refresh: refreshPhaseAdjust},
        {name: "dual slope", refresh: refreshDsShutterSlider},
        {name: "live speed", refresh: refreshLiveImageQuality}
    ],
    [LIVE_PAGE.DEVICE_SETTING]: [
        {name: "search address", refresh: refreshIPAddress},
        {name: "address as name", refresh: refreshUseIpCameraName},
        {name: "devices", refresh: refreshDeviceList}
    ],
    [LIVE_PAGE.VARIABLE]: [
        {name: "variable", refresh: refreshVariable}
    ],
    [LIVE_PAGE.AUTO_EXPOSURE]: [
        {name: "auto exposure", refresh: refreshAutoExposure}
    ],
    [LIVE_PAGE.HW_IMAGE_TRIGGER]: [
        {name: "image trigger", refresh: refreshHWImageTrigger}
    ]
};

/** @returns {Array<{name: string, refresh: Function}>} none for a page that has nothing to refresh */
export function blocksOf(pageNo) {
    return SEQUENCE[pageNo] || [];
}
