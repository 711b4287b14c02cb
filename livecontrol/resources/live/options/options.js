/* global livecontrol, zel4func, MULTIPLE_DOCS_NOTHING, MULTIPLE_DOCS_NOT_IN_CURRENT,
   MULTIPLE_DOCS_CURRENT_AND_ANY, MULTIPLE_DOCS_ALL */
import {MARK_TIP, fanShown} from "./fan-state.js";
import {guardedHandler} from "../frame/guard.js";
import {parseSettings} from "../frame/json-text.js";

// The options of page 0 that are one control each: live speed, fan, shading, lamps, phase of the links.

const LIVE_SPEED = "#livecontrol_livespeed";
const FAN = "#livecontrol_fan_state";
const FAN_MARK = "#livecontrol_fan_state_mark";
const FAN_NOTE = "#livecontrol_fan_caution";
const SHADING = "#livecontrol_shading_calib";
const RECONFIGURE = "#livecontrol_phase_adjust_reconfig";
const WARNING_COLOUR = "#ff2323";
const ANNOUNCED = "warningAnnounced"; // kept with the button: the user has been led to it once
const LAMPS = [{button: "#livecontrol_led_control", isLed: true}, {button: "#livecontrol_laser_control", isLed: false}];

export function refreshLiveImageQuality() {
    const settings = parseSettings(livecontrol.getLiveImageQualitySettings());
    const supported = Boolean(settings) && settings.supported > MULTIPLE_DOCS_NOTHING;
    $("#livecontrol_livespeed_block").toggle(supported);
    if (!supported) {
        return;
    }
    $(LIVE_SPEED).prop("checked", settings.reduceMode);
    disable(LIVE_SPEED, settings.supported < MULTIPLE_DOCS_CURRENT_AND_ANY);
}

export function refreshFanControl() {
    const settings = parseSettings(livecontrol.getFanControlSettings());
    const supported = Boolean(settings) && settings.SupportedFanControl > MULTIPLE_DOCS_NOTHING;
    $("#livecontrol_fan_control").toggle(supported);
    if (!supported) {
        return;
    }
    const shown = fanShown(settings);
    $(FAN).prop("checked", shown.stopped);
    disable(FAN, !shown.enabled);
    disable(`${FAN_NOTE}, ${FAN_MARK}`, false);
    showNote(FAN_NOTE, translate(shown.note), translate(shown.tip));
    showNote(FAN_MARK, shown.mark ? "\u203b" : "", shown.mark ? translate(MARK_TIP) : "");
}

export function refreshShadingCalibrate() {
    const supported = livecontrol.isSupportedShadingOn();
    $("#livecontrol_shading").toggle(supported);
    disable(SHADING, false);
}

/** Writes the state of the current camera's lamps back, so that all selected cameras shine alike. */
export function refreshLedLaserControl() {
    const level = livecontrol.existSupportedLedLaserControl();
    $("#livecontrol_led_laser_setting").toggle(level > MULTIPLE_DOCS_NOTHING);
    LAMPS.forEach((lamp) => {
        if (level > MULTIPLE_DOCS_NOT_IN_CURRENT) {
            const on = livecontrol.getHeadLedLaser(lamp.isLed);
            switchLamp(lamp, on);
            showLamp(lamp, on);
        } else {
            showLamp(lamp, false);
        }
        disable(lamp.button, level < MULTIPLE_DOCS_ALL);
    });
}

export function refreshPhaseAdjust() {
    const supported = livecontrol.isSupportedPhaseAdjust();
    $("#livecontrol_phase_adjust").toggle(supported);
    if (!supported) {
        return;
    }
    const warning = livecontrol.isWarningPhaseAdjust();
    disable(RECONFIGURE, !warning);
    $(RECONFIGURE).toggleClass("blinking", warning).css("background", warning ? WARNING_COLOUR : "");
    if (!warning) {
        $(RECONFIGURE).removeData(ANNOUNCED);
    }
}

/**
 * An animation that a change of state starts runs with the focus alone. But what the user works with keeps it: when the
 * warning begins a field that he types in, later anything. Comes after the recording lock, which holds the warning back.
 */
export function focusWarning() {
    const $warning = $(RECONFIGURE).filter(".blinking:visible");
    const begins = !$warning.data(ANNOUNCED);
    const $focused = $(document.activeElement);
    if ($focused.is("body") || (begins && !$focused.is("input, textarea"))) {
        $warning.trigger("focus");
    }
    $warning.data(ANNOUNCED, true);
}

export function bindOptions() {
    $(LIVE_SPEED).on("change", guardedHandler(LIVE_SPEED, function () {
        livecontrol.setLiveImageDataReduceMode(this.checked);
    }));
    $(FAN).on("change", guardedHandler(FAN, function () {
        livecontrol.setFanControl(!this.checked);
    }));
    $(SHADING).on("click", guardedHandler(SHADING, () => livecontrol.setShadingOn()));
    LAMPS.forEach((lamp) => $(lamp.button).on("click", guardedHandler(lamp.button, () => {
        switchLamp(lamp, !livecontrol.getHeadLedLaser(lamp.isLed));
        showLamp(lamp, livecontrol.getHeadLedLaser(lamp.isLed)); // the camera may have refused
    })));
    $(RECONFIGURE).on("click", guardedHandler(RECONFIGURE, () => livecontrol.execPhaseAdjust()));
}

function switchLamp(lamp, on) {
    livecontrol.setHeadLedLaser(lamp.isLed, on ? 1 : 0);
}

function showLamp(lamp, on) {
    $(lamp.button).toggleClass("on_state", on).attr("aria-pressed", String(on));
}

function showNote(selector, text, tip) {
    $(selector).text(text).attr("title", tip);
}

function translate(text) {
    return text ? livecontrol.translate(text) : "";
}

function disable(selector, disabled) {
    zel4func.disable($(selector), disabled);
}
