/* global livecontrol */
import {guardedHandler} from "../frame/guard.js";
import {livecontrol_obj} from "../frame/panel.js";
import {correctedStep, placeMax, sizeMax, withinLimits} from "./select-area-math.js";
import {parseSettings} from "../frame/json-text.js";

// The rectangle on the image as the boxes of a setting page: two sizes and two places. It belongs to the plug-in;
// the boxes send what they show and show what they receive. A page with an area calls areaBoxes() with the beginning
// of its ids.

/**
 * @param {string} prefix - ids are `prefix` + "area_w", "area_h", "pos_x", "pos_y"
 * @param {{naturalHeight: boolean}} [options] - whether the height is read as a natural number like the others
 * @returns {{bind: Function, send: Function, sendReported: Function, receive: Function, setLimits: Function,
 *   show: Function}}
 */
export function areaBoxes(prefix, {naturalHeight = true} = {}) {
    const boxes = {width: `#${prefix}area_w`, height: `#${prefix}area_h`, x: `#${prefix}pos_x`, y: `#${prefix}pos_y`};

    /** Sends the rectangle; what is left out comes from its box. */
    function send(width, height, x, y) {
        const area = {
            X: given(x, boxes.x),
            Y: given(y, boxes.y),
            Width: given(width, boxes.width),
            Height: given(height, boxes.height)
        };
        limit(area);
        livecontrol.sendSelectArea(JSON.stringify(area));
    }

    /** Sends what show() was given. Not what the boxes hold: in one of them the user may be typing. */
    function sendReported(size, place) {
        send(size.Width, size.Height, place.X, place.Y);
    }

    /** Shows the rectangle as the user has dragged it on the image. */
    function receive() {
        const area = parseSettings(livecontrol.recvSelectArea());
        if (area) {
            show(area, area);
        }
    }

    /** `size` has Width and Height, `place` X and Y. The limits come first, for a value is read within them. */
    function show(size, place) {
        limit({X: place.X, Y: place.Y, Width: size.Width, Height: size.Height});
        setValue(boxes.width, size.Width);
        setValue(boxes.height, size.Height);
        setValue(boxes.x, place.X);
        setValue(boxes.y, place.Y);
    }

    function limit(area) {
        updateAreaLimitter(area.X, area.Y, area.Width, area.Height, boxes.x, boxes.y, boxes.width, boxes.height);
    }

    /** Takes the camera's limits: `size` with WidthMin and so on, `place` with XStep and YStep. */
    function setLimits(size, place) {
        setSizeLimits(boxes.width, size.WidthFrameMax, size.WidthMax, size.WidthMin, size.WidthStep);
        setSizeLimits(boxes.height, size.HeightFrameMax, size.HeightMax, size.HeightMin, size.HeightStep);
        $(boxes.x).spinnerRealtimeFire("option", "step", place.XStep);
        $(boxes.y).spinnerRealtimeFire("option", "step", place.YStep);
    }

    function bind() {
        bindBox(boxes.width, (value) => send(value));
        bindBox(boxes.height, (value) => send(undefined, value), naturalHeight);
        bindBox(boxes.x, (value) => send(undefined, undefined, value));
        bindBox(boxes.y, (value) => send(undefined, undefined, undefined, value));
    }

    function bindBox(box, spin, natural = true) {
        $(box).spinnerRealtimeFire({
            min: 0,
            step: 1,
            natural: natural,
            spin: guardedHandler(box, (_, ui) => spin(ui.value)),
            fire: guardedHandler(box, () => {
                correctStepValue(box);
                send();
            })
        });
    }

    return {bind, send, sendReported, receive, setLimits, show};
}

/**
 * Sets what the boxes of a rectangle can hold while it is as given. Without limits of the camera nothing is set.
 * @param {string} selx - selectors of the four boxes, in the order of the values before them
 */
export function updateAreaLimitter(x, y, w, h, selx, sely, selw, selh) {
    const center = livecontrol_obj.variableOpticalCenter;
    limitPair(x, w, selx, selw, center || livecontrol_obj.variableLockX);
    limitPair(y, h, sely, selh, center || livecontrol_obj.variableLockY);
    if (isByHand()) {
        keepWithin("variableInputPosX", selx);
        keepWithin("variableInputPosY", sely);
        keepWithin("variableInputWidth", selw);
        keepWithin("variableInputHeight", selh);
    }
}

/** Puts the value of a box onto its grid. */
export function correctStepValue(box) {
    const $box = $(box);
    const value = $box.spinnerRealtimeFire("value");
    if (value !== null) {
        $box.spinnerRealtimeFire("value", correctedStep(value, $box.spinnerRealtimeFire("option")));
    }
}

/** By hand a place or size of the variable page follows the limits at once. */
function isByHand() {
    return !livecontrol_obj.variableResolutionPreset;
}

function limitPair(place, size, placeBox, sizeBox, isCentered) {
    const min = Number($(sizeBox).attr("area-min"));
    const max = Number($(sizeBox).attr("area-max"));
    if (!min || !max) {
        return;
    }
    const placeStep = $(placeBox).spinnerRealtimeFire("option", "step");
    const step = $(sizeBox).spinnerRealtimeFire("option", "step");
    const lastPlace = placeMax(max, size, placeStep);
    // A place that is put back leaves room for the size that was chosen.
    const start = isByHand() ? withinLimits(place, 0, lastPlace) : place;
    $(placeBox).spinnerRealtimeFire("option", {min: 0, max: lastPlace});
    $(sizeBox).spinnerRealtimeFire("option", {min: min, max: sizeMax({min, max, step}, isCentered ? null : start)});
}

function keepWithin(member, box) {
    const {min, max} = $(box).spinnerRealtimeFire("option");
    if (max !== null) {
        livecontrol_obj[member] = withinLimits(livecontrol_obj[member], min, max);
    }
}

function setSizeLimits(box, frameMax, areaMax, areaMin, step) {
    $(box).attr({"frame-max": frameMax, "area-max": areaMax, "area-min": areaMin})
        .spinnerRealtimeFire("option", "step", step);
}

function given(value, box) {
    return value === undefined ? $(box).spinnerRealtimeFire("value") : value;
}

function setValue(box, value) {
    $(box).spinnerRealtimeFire("value", value);
}
