/* global livecontrol, zel4func, MULTIPLE_DOCS_NOTHING */
import {guardedHandler} from "../frame/guard.js";
import {LIVE_PAGE} from "../frame/live-page.js";
import {livecontrol_obj} from "../frame/panel.js";
import {clearBox, fillBox, showChanges} from "../frame/select-box.js";
import {parseSettings} from "../frame/json-text.js";
import {TRIGGER_ITEM, triggerBox} from "./trigger-items.js";
import {parametersForMode} from "./trigger-block.js";

const TRIGGER = "#livecontrol_trigger";

/** Rebuilds the trigger box from what the host reports. */
export function refreshTriggerMode() {
    const settings = parseSettings(livecontrol.getTriggerModeSettings());
    showImageTrigger(settings);
    if (!settings) {
        clearBox($(TRIGGER));
        return;
    }
    const box = triggerBox(settings, (text) => livecontrol.translate(text));
    fillBox($(TRIGGER), box);
    if (!box.hasModes) {
        $("#livecontrol_trigger_param").hide();
    }
}

/** The first flicker would start the one recording: that stands where the mode is read. */
function showImageTrigger(settings) {
    const level = settings ? settings.ExistSupportImageTrigger : MULTIPLE_DOCS_NOTHING;
    $("#livecontrol_image_trigger_note").toggle(level > MULTIPLE_DOCS_NOTHING && settings.HWImageTriggerOn);
}

export function bindTrigger() {
    $(TRIGGER).on("change", guardedHandler(TRIGGER, function () {
        changeMode($(this).val());
    }));
}

export function initTriggerBox() {
    zel4func.initSumoSelect(TRIGGER);
}

function changeMode(value) {
    if (!value) {
        showMode();
    } else if (value === TRIGGER_ITEM.IMAGE_TRIGGER) {
        openImageTrigger();
    } else if (Number(value) >= 0) {
        const p = parametersForMode(Number(value));
        livecontrol.setTriggerMode(p.mode, p.before, p.after, p.percent, p.randomFrames, p.randomCount);
    }
}

function openImageTrigger() {
    livecontrol_obj.startHWImageTrigger();
    livecontrol_obj.changePage(LIVE_PAGE.HW_IMAGE_TRIGGER);
}

/** A choice that was no mode leaves the box on the mode that the camera has. */
function showMode() {
    refreshTriggerMode();
    livecontrol_obj.applyState(); // a box that is filled anew needs the rules anew
    showChanges(TRIGGER);
}
