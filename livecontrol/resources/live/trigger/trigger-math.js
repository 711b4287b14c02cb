/* global zel4func */

// Arithmetic of the trigger block: frames and percent kept in step. No DOM. A percentage is a number of hundredths of
// a percent: 10000 is 100.00 %. `limit` is the number of frames that lie before and after the trigger together.

/** Which value was edited, as the camera is told. */
export const LOCK = {NONE: -1, BEFORE: 0, AFTER: 1, PERCENT: 2};

const WHOLE = 10000;

/** How many random recordings fit into the memory. `offset`: frames that each costs on top of its own. */
export function largestCount(totalFrames, randomFrames, offset) {
    const cost = randomFrames + offset;
    return cost > 0 ? Math.max(0, Math.floor(totalFrames / cost)) : 0;
}

/** The count that fits in place of one that is too large; from 1 on. */
export function fittingCount(count, totalFrames, randomFrames, offset) {
    return count * (randomFrames + offset) > totalFrames
        ? largestCount(totalFrames, randomFrames, offset) : count;
}

/** Percentages of the two fields for what a camera reports; they add up to 100.00. */
export function reportedPercent(limit, after) {
    const afterPer = limit > 0 ? zel4func.round(after * WHOLE / limit, 0) : 0;
    return {before: percentText(WHOLE - afterPer), after: percentText(afterPer)};
}

/**
 * What the block shows during an edit and what goes to the camera at its end.
 * @param {number} limit
 * @param {number} slider - where the slider stands: frames before the trigger
 * @param {{before: ?number, after: ?number, beforePer: ?number, afterPer: ?number}} edit - null for what the edit
 *     leaves open
 * @returns {{before: number, after: number, beforePercent: number, afterPercent: number, shown: object}} for the camera,
 *     percentages with two decimals; `shown` has the values of the four fields
 */
export function completeEdit(limit, slider, edit) {
    const after = given(edit.after, limit - slider);
    const before = given(edit.before, limit - after);
    const afterPer = given(edit.afterPer, share(after, limit));
    const beforePer = given(edit.beforePer, share(before, limit));
    const kept = Math.max(1, after); // one frame lies after the trigger, whatever was asked
    return {
        before: before,
        after: kept,
        beforePercent: percentValue(beforePer),
        afterPercent: percentValue(afterPer),
        shown: {
            before: limit - kept,
            after: kept,
            beforePercent: percentValue(beforePer),
            afterPercent: percentValue(WHOLE - beforePer)
        }
    };
}

/** Frames for a slider position or a number of frames before the trigger, at least one of them left after it. */
export function fromBefore(limit, before) {
    const kept = Math.max(0, Math.min(before, limit - 1));
    return {before: kept, after: limit - kept};
}

/** Frames for a number of frames after the trigger. */
export function fromAfter(limit, after) {
    const kept = Math.max(1, Math.min(after, limit));
    return {before: limit - kept, after: kept};
}

/** Whether a step of 0.01 % is less than a frame: the percent fields then count frames. */
export function percentCountsFrames(limit) {
    return limit / WHOLE < 1;
}

/** A field's percentage in hundredths of a percent. */
export function hundredths(value) {
    return zel4func.round(value * 100, 0);
}

/** The same for a spinner's step, brought to a whole hundredth in its own direction. */
export function spunHundredths(value, wentUp) {
    return wentUp ? zel4func.floatceil(value * 100, 0) : zel4func.floatfloor(value * 100, 0);
}

export function framesOfPercent(limit, percent) {
    return zel4func.round(limit * percent / WHOLE, 0);
}

/** Frames for a percentage before the trigger, of a limit that is counted in percent. */
export function fromBeforePercent(limit, percent) {
    const largest = zel4func.round(zel4func.floatceil((limit - 1) / limit, 4) * WHOLE, 0);
    const beforePer = Math.min(percent, largest);
    const before = framesOfPercent(limit, beforePer);
    return {before: before, after: limit - before, beforePer: beforePer, afterPer: null};
}

/** The same for a percentage after the trigger. */
export function fromAfterPercent(limit, percent) {
    const smallest = zel4func.round(zel4func.floatfloor(1 / limit, 4) * WHOLE, 0);
    const afterPer = Math.max(percent, smallest);
    const before = framesOfPercent(limit, WHOLE - afterPer);
    return {before: before, after: limit - before, beforePer: WHOLE - afterPer, afterPer: afterPer};
}

/**
 * What goes to the camera with another mode.
 * @param {{before, after, percent, randomFrames, randomCount}} fields - what stands in the block; null or NaN in an
 *     empty field; `percent` in hundredths
 * @param {boolean} isRandomManual - whether the new mode shares out a random recording instead of the memory
 */
export function valuesForMode(fields, isRandomManual) {
    const values = {};
    Object.keys(fields).forEach((name) => { values[name] = Number.isFinite(fields[name]) ? fields[name] : 0; });
    if (isRandomManual) {
        values.after = Math.min(values.after, values.randomFrames);
        if (values.before > values.randomFrames) {
            values.before = 0;
            values.percent = 0;
        }
    }
    values.percent = percentValue(values.percent);
    return values;
}

/** A value, or another one if it is missing or null. */
export function given(value, otherwise) {
    return value === null || value === undefined ? otherwise : value;
}

function share(frames, limit) {
    return limit > 0 ? zel4func.round(frames * WHOLE / limit, 2) : 0;
}

function percentValue(per) {
    return zel4func.round(per / 100, 2);
}

function percentText(per) {
    return percentValue(per).toFixed(2);
}
