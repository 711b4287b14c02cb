/* global livecontrol, timeline, SliderProperty, zel4func */
import {guardedHandler} from "../frame/guard.js";
import {livecontrol_obj} from "../frame/panel.js";
import {
    AFTER_FRAME, AFTER_PER, BEFORE_FRAME, BEFORE_PER, RANDOM_FRAMES, SLIDER, TIMES, TIMES_BOX,
    currentMode, identifierOf, sendEdit, setLimit, showEdit, sliderLimit, sliderValue, spinner, spinnerOption
} from "./trigger-block.js";
import {countsAlways, isRandomManual} from "./trigger-items.js";
import {
    LOCK, fittingCount, framesOfPercent, fromAfter, fromAfterPercent, fromBefore, fromBeforePercent, hundredths,
    largestCount, percentCountsFrames, spunHundredths
} from "./trigger-math.js";

// Edits of the parameter block. Moving a control keeps the block in step; letting go of it sends to the camera.

const TIP_DELAY = 900; // ms
const TIP_LENGTH = 48; // characters of the third tip beyond which all get more room

const LOCK_BUTTONS = [
    {selector: BEFORE_FRAME + "_lock", lock: LOCK.BEFORE, tip: "Maintain the number of frames before trigger input"},
    {selector: AFTER_FRAME + "_lock", lock: LOCK.AFTER, tip: "Maintain the number of frames after trigger input"},
    {
        selector: `${BEFORE_PER}_lock, ${BEFORE_PER}_lock_2`,
        lock: LOCK.PERCENT,
        tip: "Maintain the ratio before and after the trigger input"
    }
];

export function bindTriggerEdits() {
    bindSlider();
    bindFrames();
    bindPercent();
    bindRandom();
    LOCK_BUTTONS.forEach((button) => $(button.selector).on("click", guardedHandler(button.selector, () => {
        livecontrol.setLockTriggerParam(button.lock);
    })));
}

/** Tips and spoken names of the lock buttons; after the page's other texts, since they need the page's language. */
export function initTriggerTips() {
    const tips = LOCK_BUTTONS.map((button) => timeline.translate(button.tip));
    const wide = tips[2].length > TIP_LENGTH;
    LOCK_BUTTONS.forEach((button, index) => {
        $(button.selector).attr({title: tips[index], "aria-label": tips[index]}).tooltip({
            show: {delay: TIP_DELAY},
            classes: wide ? {"ui-tooltip": "livecontrol_manu_trig_btn_ui_tooltip"} : {},
            position: {my: wide ? "left-80 top" : "left-40 top", at: "left bottom"}
        });
    });
}

function bindSlider() {
    $(SLIDER).slider($.extend({}, new SliderProperty(0), {
        min: 0,
        step: 1,
        slide: guardedHandler("trigger slider", (_, ui) => {
            const frames = fromBefore(sliderLimit(), ui.value);
            moveTo(frames);
            return frames.before === ui.value; // a handle beyond the last frame stays where it was put
        }),
        stop: guardedHandler("trigger slider", (_, ui) => {
            commit(LOCK.AFTER, fromBefore(sliderLimit(), ui.value));
        })
    }));
}

function bindFrames() {
    bindFrameSpinner(BEFORE_FRAME, 0, LOCK.BEFORE, fromBefore);
    bindFrameSpinner(AFTER_FRAME, 1, LOCK.AFTER, fromAfter);
}

function bindFrameSpinner(selector, min, lock, framesFor) {
    bindSpinner(selector, {min: min, natural: true}, {
        spin: (_, ui) => {
            if (!isNaN(ui.value)) {
                moveTo(framesFor(sliderLimit(), Number(ui.value)));
            }
        },
        fire: () => {
            const value = spinner(selector);
            if (value !== null) {
                commit(lock, framesFor(sliderLimit(), value));
            }
        }
    });
}

function bindPercent() {
    bindPercentSpinner(BEFORE_PER, {
        stepFrames: (direction) => spinner(BEFORE_FRAME) + direction,
        framesOf: (limit, percent) => framesOfPercent(limit, percent),
        ofPercent: fromBeforePercent
    });
    bindPercentSpinner(AFTER_PER, {
        stepFrames: (direction) => sliderLimit() - (spinner(AFTER_FRAME) + direction),
        framesOf: (limit, percent) => limit - framesOfPercent(limit, percent),
        ofPercent: fromAfterPercent
    });
}

/** `field` tells how the field counts: frames before the trigger for a step and for a percentage of a small limit. */
function bindPercentSpinner(selector, field) {
    bindSpinner(selector, {min: 0, max: 100, step: 0.01, decimal: true, decimalPoint: 2}, {
        spin: (event, ui) => {
            const limit = sliderLimit();
            if (percentCountsFrames(limit)) {
                const before = field.stepFrames(ui.direction);
                ui.modify = false;
                event.preventDefault();
                moveTo({before: before, after: limit - before});
            } else {
                moveTo(field.ofPercent(limit, spunHundredths(ui.value, ui.direction > 0)));
            }
        },
        fire: () => {
            const limit = sliderLimit();
            const percent = hundredths(spinner(selector));
            if (percentCountsFrames(limit)) {
                const before = field.framesOf(limit, percent);
                commit(LOCK.PERCENT, {before: before, after: limit - before});
            } else {
                commit(LOCK.PERCENT, field.ofPercent(limit, percent));
            }
        }
    });
}

function bindRandom() {
    bindSpinner(RANDOM_FRAMES, {min: 1, natural: true}, {
        spin: (_, ui) => shrinkCount(ui.value, true),
        fire: commitRandomFrames
    });
    $(TIMES_BOX).on("change", guardedHandler(TIMES_BOX, function () {
        const on = this.checked;
        zel4func.disable($(TIMES), !on);
        spinnerOption(TIMES, {min: on ? 1 : 0});
        spinner(TIMES, on ? 1 : 0);
        sendEdit(LOCK.NONE, {});
        livecontrol_obj.update();
    }));
    bindSpinner(TIMES, {min: 1, natural: true}, {fire: commitCount});
}

/** The count follows the length of a recording; `limits` for a spin, which moves the count's maximum along. */
function shrinkCount(frames, limits) {
    const count = Math.max(1, spinner(TIMES) || 0);
    const fitting = fittingCount(count, livecontrol_obj.totalFrames, frames, offset());
    if (fitting !== count) {
        if (limits) {
            spinnerOption(TIMES, {max: fitting});
        }
        spinner(TIMES, fitting);
    }
}

function commitRandomFrames() {
    const frames = Math.max(1, spinner(RANDOM_FRAMES));
    const identifier = identifierOf(currentMode());
    spinner(RANDOM_FRAMES, frames);
    shrinkCount(frames, false);
    if (isRandomManual(identifier)) {
        const after = spinner(AFTER_FRAME);
        setLimit(frames);
        sliderValue(frames - after);
    }
    const most = countsAlways(identifier) ? "MaxRandomEndlessTrgCount" : "MaxRandomTrgCount";
    spinnerOption(TIMES, {
        max: Math.min(largestCount(livecontrol_obj.totalFrames, frames, 0), Number($(TIMES).attr(most)))
    });
    if ($(RANDOM_FRAMES).spinnerRealtimeFire("isValid")) {
        sendEdit(LOCK.NONE, {});
    }
}

function commitCount() {
    const count = Math.max(1, spinner(TIMES));
    spinner(TIMES, fittingCount(count, livecontrol_obj.totalFrames, spinner(RANDOM_FRAMES), offset()));
    sendEdit(LOCK.NONE, {});
}

function bindSpinner(selector, options, handlers) {
    const settings = $.extend({step: 1}, options);
    Object.keys(handlers).forEach((type) => {
        settings[type] = guardedHandler(`${selector} ${type}`, handlers[type]);
    });
    $(selector).spinnerRealtimeFire(settings);
}

/** Shows frames during an edit; nothing for a step that leaves no frame after the trigger. */
function moveTo(edit) {
    if (edit.after > 0 && edit.before >= 0) {
        sliderValue(edit.before);
        showEdit(edit);
    }
}

function commit(lock, edit) {
    sliderValue(edit.before);
    sendEdit(lock, edit);
}

function offset() {
    return Number($(RANDOM_FRAMES).attr("RandomFramesOffset"));
}
