/* global zel4func */
import {ruleSearch} from "../cameras/devicesettings.js";
import {livecontrol_obj} from "./panel.js";
import {TRIGGER_BLOCK} from "./rules.js";

// While a camera records, waits for its trigger or saves, nothing that changes the camera can be used. The rules
// work that out anew in each update.

const FREE_AGAIN = [
    "#livecontrol_dsshutter_slider",
    "#livecontrol_dsshutter_spinner",
    "#livecontrol_search",
    "#livecontrol_discovery"
];

const LOCKED = FREE_AGAIN.concat(TRIGGER_BLOCK, [
    "#livecontrol_livespeed",
    "#livecontrol_fan_state",
    "#livecontrol_fan_state_mark",
    "#livecontrol_fan_caution",
    "#livecontrol_shading_calib",
    "#livecontrol_lowlight",
    "#livecontrol_lowlight_type",
    "#livecontrol_lowlight_slider",
    "#livecontrol_led_control",
    "#livecontrol_laser_control",
    "#livecontrol_lens_setting button:not(.switch-expand)",
    "#livecontrol_lens_setting .slider",
    "#livecontrol_lens_setting .spinner",
    "#livecontrol_deleteall",
    "#livecontrol_phase_adjust_reconfig",
    ".view-all"
]);

// The pages of auto exposure and image trigger: all but the way out. A camera would refuse them.
const SETTING_PAGES = "#livecontrol_page_auto_exposure, #livecontrol_page_hwimage_trigger";

const ROW_BUTTONS = ".delete, .edit, .power, .wifi, .linkspeed";

/** Locks or frees the controls by `recordAndready` and clears it. Comes after the rules. */
export function applyRecordLock() {
    const $panels = $("#panels");
    lockSettingPages($panels.find(SETTING_PAGES), livecontrol_obj.recordAndready);
    hideRowButtons($panels.find(ROW_BUTTONS), livecontrol_obj.recordAndready);
    if (livecontrol_obj.recordAndready) {
        zel4func.disable($panels.find(LOCKED.join(", ")), true);
        $panels.find("#livecontrol_phase_adjust_reconfig").removeClass("blinking").css("background", "");
    } else {
        zel4func.disable($panels.find(FREE_AGAIN.join(", ")), false);
        ruleSearch();
    }
    livecontrol_obj.recordAndready = false;
}

// There can be hundreds; most stand as they are to stand.
function hideRowButtons($buttons, hidden) {
    const display = hidden ? "none" : "";
    $buttons.filter((_, button) => button.style.display !== display).css("display", display);
}

function lockSettingPages($pages, locked) {
    $pages.children(".page-lock").toggle(locked);
    zel4func.disable($pages.find("input, select"), locked);
    if (locked) { // the page frees them by itself
        zel4func.disable($pages.find("[id$=_ok], [id$=_apply]"), true);
    }
}
