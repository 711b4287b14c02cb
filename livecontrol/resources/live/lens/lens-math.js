/* global MULTIPLE_DOCS_CURRENT_AND_ANY */

// What the lens block shows for each kind of lens, and how it scales the numbers of the camera. No page.

/** Size of an incremental move. */
export const LENS_TICK = {TICK_SMALL: 0, TICK_LARGE: 1};

const TENTHS = 10;

/** Whether the block shows. A "FOURTHIRDS" lens shows whatever the cameras' level of support is. */
export function isBlockShown(settings) {
    const supported = settings.ExistLensControl >= MULTIPLE_DOCS_CURRENT_AND_ANY || settings.LensType === "FOURTHIRDS";
    return supported && settings.LensType !== "NONE";
}

/** @returns {{close: boolean, reset: boolean}} which of the two buttons shows; there is no lens that has both */
export function shownButtons(lensType) {
    return {
        close: lensType === "FOURTHIRDS",
        reset: lensType === "EF2" || lensType === "Unable"
    };
}

// What a spinner is set to: its options, and the value that it shows.

function inTenths(axis) {
    return {
        min: axis.SpinnerMin / TENTHS,
        max: axis.SpinnerMax / TENTHS,
        step: axis.SmallTick / TENTHS,
        decimal: true,
        decimalPoint: 1,
        value: axis.SpinnerValue / TENTHS
    };
}

function unscaled(axis) {
    return {
        min: axis.SpinnerMin,
        max: axis.SpinnerMax,
        step: axis.SmallTick,
        decimal: false,
        decimalPoint: null,
        value: axis.SpinnerValue
    };
}

export function irisSpinner(axis) {
    return inTenths(axis);
}

/** An "EF" lens tells no limits; others may stand outside theirs, and still show where. */
export function focusSpinner(axis, lensType) {
    const free = lensType === "EF";
    return Object.assign(unscaled(axis), {
        min: free ? null : Math.min(axis.SpinnerMin, axis.SpinnerValue),
        max: free ? null : Math.max(axis.SpinnerMax, axis.SpinnerValue)
    });
}

/** The smallest step and end of a zoom that tells none. */
export function zoomSpinner(axis, lensType) {
    const known = Object.assign({}, axis, {
        SpinnerMax: Math.max(1, axis.SpinnerMax),
        SmallTick: Math.max(1, axis.SmallTick)
    });
    return lensType === "EF2" ? inTenths(known) : unscaled(known);
}

/** A slider without a step would stand nowhere. */
export function sliderOf(axis) {
    return {min: axis.SliderMin, max: axis.SliderMax, step: Math.max(1, axis.SmallTick), value: axis.SliderValue};
}
