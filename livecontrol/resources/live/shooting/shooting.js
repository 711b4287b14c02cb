/* global livecontrol, zel4func */
import {guardedHandler} from "../frame/guard.js";
import {LIVE_PAGE} from "../frame/live-page.js";
import {livecontrol_obj} from "../frame/panel.js";
import {hideDualSlopePanel, openDualSlopePanel, refreshDsShutterSlider} from "./dualslope.js";
import {isHeld} from "../frame/held-slider.js";
import {clearBox, fillBox, followBox, selectInBox, showChanges, showReported} from "../frame/select-box.js";
import {parseSettings} from "../frame/json-text.js";
import {ITEM, framerateBox, resolutionBox, shutterBox} from "./shooting-items.js";

const RESOLUTION = "#livecontrol_resolution";
const FRAMERATE = "#livecontrol_framerate";
const SHUTTER = "#livecontrol_shutterspeed";
const LOW_LIGHT_SLIDER = "#livecontrol_lowlight_slider";

/** Rebuilds the resolution box from what the host reports. */
export function refreshResolution() {
    showIn(RESOLUTION, livecontrol.getResolutionSettings(), resolutionBox);
}

/** Rebuilds the frame rate box. */
export function refreshFramerate() {
    showIn(FRAMERATE, livecontrol.getFrameRateSettings(), framerateBox);
}

/** Rebuilds the shutter box, and the dual slope panel and the low light slider with it. */
export function refreshShutterSpeed() {
    showShutterSpeed(fillBox);
}

/** The same during a slide through low light, where the items stay and the choice moves. */
export function followShutterSpeed() {
    showShutterSpeed(followBox);
}

function showIn(selector, text, boxFrom) {
    const settings = parseSettings(text);
    if (settings) {
        fillBox($(selector), boxFrom(settings, translate));
    } else {
        clearBox($(selector));
    }
}

function showShutterSpeed(fill) {
    const settings = parseSettings(livecontrol.getShutterSpeedSettings());
    if (!settings) {
        clearBox($(SHUTTER));
        zel4func.disable($(LOW_LIGHT_SLIDER), true); // it counts the rows of a list that can't be read
        return;
    }
    const box = shutterBox(settings, translate);
    fill($(SHUTTER), box);
    if (!box.hasRows) {
        hideDualSlopePanel();
    }
    if (box.opensDualSlope) {
        refreshDsShutterSlider();
    }
    if (box.lowLight) {
        showLowLight(box.lowLight);
    }
}

function showLowLight(slider) {
    $(LOW_LIGHT_SLIDER).slider("option", "max", slider.max);
    if (!isHeld($(LOW_LIGHT_SLIDER))) {
        $(LOW_LIGHT_SLIDER).slider("value", slider.value);
    }
}

export function bindShooting() {
    bindBox(RESOLUTION, changeResolution);
    bindBox(FRAMERATE, changeFramerate);
    bindBox(SHUTTER, changeShutter);
}

/** Makes the three select boxes. */
export function initShootingBoxes() {
    [FRAMERATE, SHUTTER, RESOLUTION].forEach((selector) => zel4func.initSumoSelect(selector));
}

function bindBox(selector, change) {
    $(selector).on("change", guardedHandler(selector, function () {
        const value = $(this).val();
        showReported(selector);
        change(value);
    }));
}

function changeResolution(value) {
    if (value === ITEM.LOCK) {
        livecontrol.toggleResolutionLockMode();
        selectCurrent(RESOLUTION, livecontrol.getResolutionSettings(), resolutionBox);
    } else if (isRow(value)) {
        livecontrol.setResolution(value);
    }
}

function changeFramerate(value) {
    if (isRow(value)) {
        livecontrol.setFrameRate(value);
    }
}

function changeShutter(value) {
    if (!value) {
        showShutter();
    } else if (value === ITEM.LOCK) {
        livecontrol.toggleShutterLockMode();
    } else if (value === ITEM.AUTO_EXPOSURE) {
        openAutoExposure();
    } else if (value === ITEM.DUAL_SLOPE) {
        chooseDualSlope();
    } else if (isRow(value)) {
        followWithLowLight(value);
        livecontrol.setShutterSpeed(value);
    }
}

function openAutoExposure() {
    livecontrol_obj.startAutoExposure();
    livecontrol_obj.changePage(LIVE_PAGE.AUTO_EXPOSURE);
}

function chooseDualSlope() {
    openDualSlopePanel();
    selectCurrent(SHUTTER, livecontrol.getShutterSpeedSettings(), shutterBox);
}

/** The low light slider counts from the dark end, the list from the bright one. */
function followWithLowLight(value) {
    if ($("#livecontrol_lowlight").prop("checked")) {
        const $slider = $(LOW_LIGHT_SLIDER);
        $slider.slider("value", $slider.slider("option", "max") - Number(value));
    }
}

function showShutter() {
    refreshShutterSpeed();
    livecontrol_obj.applyState(); // a box that is filled anew needs the rules anew
    showChanges(SHUTTER);
}

/** A choice that was no row leaves the box on the value that the camera has. */
function selectCurrent(selector, text, boxFrom) {
    const settings = parseSettings(text);
    if (settings) {
        selectInBox($(selector), boxFrom(settings, translate));
        showChanges(selector);
    }
}

function isRow(value) {
    return value !== null && value !== "" && Number(value) >= 0;
}

function translate(text) {
    return livecontrol.translate(text);
}
