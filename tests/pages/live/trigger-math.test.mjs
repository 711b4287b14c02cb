import assert from "node:assert/strict";
import {test} from "node:test";
import {floatceil, floatfloor, round} from "../../../pagelib/src/zel4func/rounding.js";
import {
    completeEdit, fittingCount, framesOfPercent, fromAfter, fromAfterPercent, fromBefore, fromBeforePercent, hundredths,
    largestCount, percentCountsFrames, reportedPercent, spunHundredths, valuesForMode
} from "../../../livecontrol/resources/live/trigger/trigger-math.js";

globalThis.zel4func = {floatceil, floatfloor, round};

// [limit, after, before field, after field]
const reported = [
    [1000, 1, "99.90", "0.10"],
    [1000, 1000, "0.00", "100.00"],
    [3, 1, "66.67", "33.33"],
    [3, 2, "33.33", "66.67"],
    [30000, 1, "100.00", "0.00"], // less than half a hundredth
    [20000, 1, "99.99", "0.01"],
    [0, 0, "100.00", "0.00"]
];
for (const [limit, after, beforeField, afterField] of reported) {
    test(`${after} of ${limit} frames behind the trigger show as ${beforeField} and ${afterField}`, () => {
        assert.deepEqual(reportedPercent(limit, after), {before: beforeField, after: afterField});
    });
}

test("both fields add up to 100.00 for any number of frames", () => {
    for (const limit of [7, 999, 10000, 16384, 65537]) {
        for (let after = 1; after <= limit; after += Math.ceil(limit / 97)) {
            const fields = reportedPercent(limit, after);
            assert.equal(round(Number(fields.before) + Number(fields.after), 2), 100, `${after} of ${limit}`);
        }
    }
});

const NOTHING = {before: null, after: null, beforePer: null, afterPer: null};

test("an edit without values follows the slider", () => {
    const values = completeEdit(4000, 1000, NOTHING);
    assert.deepEqual(values, {
        before: 1000, after: 3000, beforePercent: 25, afterPercent: 75,
        shown: {before: 1000, after: 3000, beforePercent: 25, afterPercent: 75}
    });
});

test("an edit of the frames behind the trigger fills in the others", () => {
    const values = completeEdit(3, 0, Object.assign({}, NOTHING, {after: 1}));
    assert.equal(values.before, 2);
    assert.equal(values.beforePercent, 66.67);
    assert.equal(values.afterPercent, 33.33);
    assert.equal(values.shown.afterPercent, 33.33);
});

test("one frame stays behind the trigger, while the frames before it go out as they were", () => {
    const values = completeEdit(100, 0, Object.assign({}, NOTHING, {before: 100, after: 0}));
    assert.equal(values.before, 100);
    assert.equal(values.after, 1);
    assert.deepEqual([values.shown.before, values.shown.after], [99, 1]);
});

test("a given percentage stands, whatever the frames say", () => {
    const values = completeEdit(20000, 0, {before: 6667, after: 13333, beforePer: 3334, afterPer: 6666});
    assert.equal(values.beforePercent, 33.34);
    assert.equal(values.shown.afterPercent, 66.66);
});

test("a slider or spinner never leaves its limits", () => {
    assert.deepEqual(fromBefore(100, 100), {before: 99, after: 1});
    assert.deepEqual(fromBefore(100, -5), {before: 0, after: 100});
    assert.deepEqual(fromBefore(100, 40), {before: 40, after: 60});
    assert.deepEqual(fromAfter(100, 0), {before: 99, after: 1});
    assert.deepEqual(fromAfter(100, 101), {before: 0, after: 100});
});

test("percent counts frames below 10000 and hundredths from there on", () => {
    assert.equal(percentCountsFrames(4000), true);
    assert.equal(percentCountsFrames(9999), true);
    assert.equal(percentCountsFrames(10000), false);
    assert.equal(percentCountsFrames(20000), false);
});

test("a small limit takes frames to the nearest", () => {
    assert.equal(framesOfPercent(4000, 5001), 2000);
    assert.equal(framesOfPercent(4000, 5002), 2001);
    assert.equal(framesOfPercent(3, 3333), 1);
});

// [limit, asked, before, percent that stands]
const before = [
    [20000, 5000, 10000, 5000],
    [20000, 1, 2, 1],
    [20000, 0, 0, 0],
    [10000, 10000, 9999, 9999], // exactly one frame a step: one is left
    [20000, 10000, 20000, 10000] // the last step is rounded up: nothing is left, and the caller keeps one
];
for (const [limit, percent, frames, stands] of before) {
    test(`${percent} hundredths before the trigger of ${limit}`, () => {
        const values = fromBeforePercent(limit, percent);
        assert.deepEqual([values.before, values.after, values.beforePer], [frames, limit - frames, stands]);
        assert.equal(values.afterPer, null);
    });
}

// [limit, asked, after, percent that stands]
const after = [
    [20000, 5000, 10000, 5000],
    [10000, 0, 1, 1],
    [20000, 0, 0, 0], // a frame is half a hundredth: the smallest percentage is rounded down to none
    [15000, 10000, 15000, 10000]
];
for (const [limit, percent, frames, stands] of after) {
    test(`${percent} hundredths after the trigger of ${limit}`, () => {
        const values = fromAfterPercent(limit, percent);
        assert.deepEqual([values.after, values.before, values.afterPer], [frames, limit - frames, stands]);
        assert.equal(values.beforePer, 10000 - stands);
    });
}

test("a spin is brought to a hundredth in its own direction, a typed value to the nearest", () => {
    assert.equal(spunHundredths(50.03, true), 5003); // 50.03 * 100 is 5003 and a bit in binary
    assert.equal(spunHundredths(0.29, false), 29); // and 0.29 * 100 a bit less than 29
    assert.equal(spunHundredths(50.031, true), 5004);
    assert.equal(spunHundredths(50.039, false), 5003);
    assert.equal(hundredths(50.035), 5004);
    assert.equal(hundredths(1.005), 101);
});

// [count, total, frames, offset, count that fits]
const counts = [
    [4, 1000, 242, 8, 4], // exactly
    [4, 1000, 243, 8, 3],
    [1, 1000, 992, 8, 1],
    [5, 1000, 1000, 8, 0], // the offset alone is too much
    [5, 1000, 1000, 0, 1]
];
for (const [count, total, frames, offset, fits] of counts) {
    test(`of ${count} recordings of ${frames} + ${offset} frames ${fits} fit into ${total}`, () => {
        assert.equal(fittingCount(count, total, frames, offset), fits);
    });
}

test("no recording fits into nothing", () => {
    assert.equal(largestCount(0, 1, 0), 0);
    assert.equal(largestCount(100, 0, 0), 0);
});

const FIELDS = {mode: 7, before: 100, after: 300, percent: 2500, randomFrames: 200, randomCount: 2};

test("another mode takes the fields along", () => {
    assert.deepEqual(valuesForMode(FIELDS, false), Object.assign({}, FIELDS, {percent: 25}));
});

test("a mode that shares out a random recording cuts the frames to it", () => {
    assert.deepEqual(valuesForMode(FIELDS, true), Object.assign({}, FIELDS, {after: 200, percent: 25}));
    const late = valuesForMode(Object.assign({}, FIELDS, {before: 201}), true);
    assert.deepEqual([late.before, late.percent], [0, 0]);
});

test("a field that can't be read counts as 0", () => {
    const values = valuesForMode({mode: 7, before: null, after: NaN, percent: 0, randomFrames: undefined, randomCount: 1},
        true);
    assert.deepEqual(values, {mode: 7, before: 0, after: 0, percent: 0, randomFrames: 0, randomCount: 1});
});
