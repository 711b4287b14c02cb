/* global livecontrol, timeline_obj, zel4func */
import {isHeld} from "../frame/held-slider.js";
import {livecontrol_obj} from "../frame/panel.js";
import {TRIGGER_BLOCK} from "../frame/rules.js";
import {parseSettings} from "../frame/json-text.js";
import {
    countControls, isRandomManual, limitOf, lockedButtons, parameterBlock
} from "./trigger-items.js";
import {LOCK, completeEdit, given, hundredths, reportedPercent, valuesForMode} from "./trigger-math.js";

// The parameter block: what the host reports goes in, what the user edits goes out. Edits are in trigger-edits.js.

export const BLOCK = "#livecontrol_trigger_param";
export const SLIDER = "#livecontrol_trig_slider";
export const BEFORE_FRAME = "#livecontrol_manu_trig_before_frame";
export const AFTER_FRAME = "#livecontrol_manu_trig_after_frame";
export const BEFORE_PER = "#livecontrol_manu_trig_before_per";
export const AFTER_PER = "#livecontrol_manu_trig_after_per";
export const RANDOM_FRAMES = "#livecontrol_random_frames";
export const TIMES_BOX = "#livecontrol_random_times_enable";
export const TIMES = "#livecontrol_random_times_max";

const TRIGGER = "#livecontrol_trigger";

/** A spinner's number, null if there is none; with a second argument sets it. */
export function spinner(selector, value) {
    return value === undefined ? $(selector).spinnerRealtimeFire("value")
        : $(selector).spinnerRealtimeFire("value", value);
}

export function spinnerOption(selector, options) {
    $(selector).spinnerRealtimeFire("option", options);
}

export function sliderValue(value) {
    return value === undefined ? $(SLIDER).slider("value") : $(SLIDER).slider("value", value);
}

/** The frames that lie before and after the trigger together. */
export function sliderLimit() {
    return Number($(BLOCK).attr("slider-limit"));
}

export function setLimit(limit) {
    $(BLOCK).attr("slider-limit", limit);
    $(SLIDER).slider("option", "max", limit);
    spinnerOption(BEFORE_FRAME, {max: limit - 1});
    spinnerOption(AFTER_FRAME, {max: limit});
}

/** The identifier of a mode; empty for what is none. */
export function identifierOf(mode) {
    const row = livecontrol_obj.triggerMode[mode];
    return row ? row.Identifier : "";
}

export function currentMode() {
    return parseInt($(TRIGGER).val(), 10);
}

export function isLowLightOn() {
    return Boolean($("#livecontrol_lowlight").prop("checked"));
}

/**
 * Rebuilds the block from what the host reports. In low light it keeps what it shows.
 * @param {?(string|number)} triggerValue - the value of the trigger box; hides the block if negative or null
 */
export function refreshTriggerParameter(triggerValue) {
    if (isLowLightOn()) {
        return;
    }
    const settings = parseSettings(livecontrol.getTriggerParameterSettings());
    if (!settings) {
        $(BLOCK).hide();
        return;
    }
    livecontrol_obj.triggerMode = settings.TriggerMode;
    livecontrol_obj.totalFrames = settings.TotalFrames;
    if (triggerValue === null || !(Number(triggerValue) >= 0)) {
        $(BLOCK).hide();
        return;
    }
    const identifier = identifierOf(Number(triggerValue));
    $("#livecontrol_trigger_total_frames").text(settings.TotalFramesLabel);
    zel4func.disable($(TRIGGER_BLOCK.join(", ")), false);
    setLimit(limitOf(settings, identifier));
    fillRandom(settings, countControls(settings, identifier));
    fillFrames(sliderLimit(), settings.TrgAfterFrame);
    showLock(lockedButtons(settings.LockTriggerParam));
    showRows(parameterBlock(settings, identifier));
}

/** The fields of the block for a change of the mode. */
export function parametersForMode(mode) {
    return valuesForMode({
        mode: mode,
        before: spinner(BEFORE_FRAME),
        after: spinner(AFTER_FRAME),
        percent: hundredths(spinner(BEFORE_PER)),
        randomFrames: spinner(RANDOM_FRAMES),
        randomCount: spinner(TIMES)
    }, isRandomManual(identifierOf(mode)));
}

/**
 * Keeps the block in step during an edit; nothing goes to the camera.
 * @param {{before, after, beforePer, afterPer, randomFrames, randomCount}} edit - what the user set; the rest is missing
 *     or null. Percentages are in hundredths of a percent.
 * @returns {{before, after, beforePercent, afterPercent, randomFrames, randomCount}} percentages with two decimals
 */
export function showEdit(edit) {
    const values = completeEdit(sliderLimit(), sliderValue(), edit);
    spinner(BEFORE_PER, values.shown.beforePercent);
    spinner(AFTER_PER, values.shown.afterPercent);
    spinner(AFTER_FRAME, values.shown.after);
    spinner(BEFORE_FRAME, values.shown.before);
    return Object.assign(values, {
        randomFrames: given(edit.randomFrames, spinner(RANDOM_FRAMES)),
        randomCount: given(edit.randomCount, spinner(TIMES))
    });
}

/** Ends an edit: sends it and shows what the camera took. `lock` names the value that was edited. */
export function sendEdit(lock, edit) {
    if (isLowLightOn()) {
        return;
    }
    const values = showEdit(edit);
    const mode = currentMode();
    livecontrol.applyTriggerParameter(lock, mode, values.before, values.after, values.beforePercent,
        values.randomFrames || 0, values.randomCount || 0);
    refreshTriggerParameter(mode);
    timeline_obj.appUpdate();
}

/** showEdit() as others call it: null for what the edit leaves open, and the values in their order. */
export function updateTrigger(beforeFrame, afterFrame, recFrame, recCount, bPer, aPer) {
    const values = showEdit(editOf(beforeFrame, afterFrame, recFrame, recCount, bPer, aPer));
    return [values.before, values.after, values.beforePercent, values.afterPercent, values.randomFrames,
        values.randomCount];
}

/** sendEdit() as others call it. */
export function applyTrigger(lock, beforeFrame, afterFrame, recFrame, recCount, bPer, aPer) {
    sendEdit(given(lock, LOCK.NONE), editOf(beforeFrame, afterFrame, recFrame, recCount, bPer, aPer));
}

function editOf(before, after, randomFrames, randomCount, beforePer, afterPer) {
    return {before, after, randomFrames, randomCount, beforePer, afterPer};
}

function fillRandom(settings, count) {
    spinnerOption(RANDOM_FRAMES, {min: 1, max: settings.TotalFrames});
    spinner(RANDOM_FRAMES, settings.RandomFrames);
    $(RANDOM_FRAMES).attr("RandomFramesOffset", settings.RandomFramesOffset);
    $(TIMES).attr({
        MaxRandomTrgCount: settings.MaxRandomTrgCount,
        MaxRandomEndlessTrgCount: settings.MaxRandomEndlessTrgCount
    });
    $(TIMES_BOX).prop("checked", count.checked);
    zel4func.disable($(TIMES_BOX), count.boxDisabled);
    spinnerOption(TIMES, {min: count.min, max: count.max});
    spinner(TIMES, count.value);
    zel4func.disable($(TIMES), count.spinnerDisabled);
}

/** While the user holds the slider, the fields go along with it and not with the camera. */
function fillFrames(limit, after) {
    if (isHeld($(SLIDER))) {
        showEdit({});
        return;
    }
    const percent = reportedPercent(limit, after);
    sliderValue(limit - after);
    spinner(BEFORE_FRAME, limit - after);
    spinner(AFTER_FRAME, after);
    spinner(BEFORE_PER, percent.before);
    spinner(AFTER_PER, percent.after);
}

function showLock(locked) {
    markLock(BEFORE_FRAME + "_lock", locked.before);
    markLock(AFTER_FRAME + "_lock", locked.after);
    markLock(`${BEFORE_PER}_lock, ${BEFORE_PER}_lock_2`, locked.percent);
}

function markLock(selector, locked) {
    $(selector).toggleClass("lock", locked).toggleClass("unlock", !locked).attr("aria-pressed", String(locked));
}

function showRows(block) {
    if (block) {
        $("#livecontrol_trigger_total_frames_div").toggle(block.total);
        $("#livecontrol_trigger_random_param").toggle(block.random);
        $("#livecontrol_random_times_enable_div").toggle(block.countBox);
        $("#livecontrol_random_times_max_div").toggle(block.countSpinner);
        $("#livecontrol_trigger_manual_param").toggle(block.manual);
    }
    $(BLOCK).toggle(Boolean(block) && !livecontrol.isQmonRunning());
}
