import {LIVE_PAGE} from "./live-page.js";
import {LOCK} from "../trigger/trigger-math.js";
import {initialMembers} from "../variable/variable-math.js";

/**
 * The global object of the panel. It holds what must outlive one function call; everything else is read afresh
 * from the mediator at each update. main.js adds the functions that others call.
 */
export const livecontrol_obj = Object.assign(initialMembers(), {
    pages: [
        "#livecontrol_page_list",
        "#livecontrol_page_devicesetting",
        "#livecontrol_page_variable",
        "#livecontrol_page_auto_exposure",
        "#livecontrol_page_hwimage_trigger"
    ],
    pageNo: LIVE_PAGE.LIST,
    recordAndready: false,
    dsShutterHide: true,
    triggerMode: [],
    totalFrames: 0,
    TRIGGER_PARAMETER_NO_LOCK: LOCK.NONE,
    TRIGGER_PARAMETER_LOCK_BEFORE: LOCK.BEFORE,
    TRIGGER_PARAMETER_LOCK_AFTER: LOCK.AFTER,
    TRIGGER_PARAMETER_LOCK_PERCENT: LOCK.PERCENT,
    LOWLIGHT_TYPE_2: 2,
    LOWLIGHT_TYPE_3: 3
});
