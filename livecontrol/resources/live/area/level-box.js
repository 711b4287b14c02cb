import {guardedHandler} from "../frame/guard.js";
import {raisedToStep} from "./select-area-math.js";

// The box of a brightness, target or range, on a setting page.

/**
 * @param {string} box - the box's selector
 * @param {function(number): void} [changed] - hears of a new value
 */
export function bindLevel(box, changed) {
    $(box).spinnerStopFire({
        min: 0,
        step: 1,
        natural: true,
        fire: guardedHandler(box, () => {
            const level = raisedToStep(levelIn(box), $(box).spinnerStopFire("option"));
            $(box).spinnerStopFire("value", level);
            if (changed) {
                changed(level);
            }
        })
    });
}

/** Shows a level of the settings. `max` is the largest that the box holds. */
export function showLevel(box, level, max) {
    $(box).spinnerStopFire("option", {max: max, step: level.Step});
    $(box).spinnerStopFire("value", level.Value);
}

export function levelIn(box) {
    return $(box).spinnerStopFire("value");
}

/** Puts a number into the box, within its limits. */
export function setLevel(box, value) {
    $(box).spinnerStopFire("value", value);
}
