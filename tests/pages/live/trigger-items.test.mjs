import assert from "node:assert/strict";
import {test} from "node:test";
import {translate} from "./host-constants.mjs";
import {countControls, limitOf, lockedButtons, parameterBlock, triggerBox}
    from "../../../livecontrol/resources/live/trigger/trigger-items.js";

const MODES = [{Value: 0, Name: "Start"}, {Value: 4, Name: "Manual"}];

function boxFor(changes) {
    return triggerBox(Object.assign({TriggerMode: MODES, SelectValue: 4, DifferentTriger: false,
        ExistSupportImageTrigger: 0, HWImageTriggerOn: false}, changes), translate);
}

function values(box) {
    return box.items.map((item) => item.value);
}

test("the box lists the camera's modes and selects the one in force", () => {
    const box = boxFor({});
    assert.deepEqual(values(box), ["0", "4"]);
    assert.equal(box.items[box.selected].text, "Manual");
});

test("cameras that differ, and a mode that is not listed, show dashes", () => {
    for (const changes of [{DifferentTriger: true}, {SelectValue: 9}]) {
        const box = boxFor(changes);
        assert.deepEqual(values(box), ["-2", "0", "4"]);
        assert.equal(box.items[box.selected].text, "<--->");
    }
});

test("the image trigger stands above the modes as far as the cameras have it", () => {
    const some = boxFor({ExistSupportImageTrigger: 2, HWImageTriggerOn: true});
    assert.deepEqual(values(some), ["-1", "", "0", "4"]);
    assert.deepEqual([some.items[0].disabled, some.items[0].palegreen, some.selected], [true, true, 3]);
    assert.equal(boxFor({ExistSupportImageTrigger: 3}).items[0].disabled, false);
});

test("no modes leave one item", () => {
    const box = boxFor({TriggerMode: [], ExistSupportImageTrigger: 3});
    assert.deepEqual(box.items, [{value: "0", text: "(None)"}]);
    assert.equal(box.hasModes, false);
});

const SETTINGS = {TotalFrames: 1000, RandomFrames: 100, RandomFramesOffset: 25, RandomTimesMax: 6,
    RandomTimesEnable: true, MaxRandomTrgCount: 7, MaxRandomEndlessTrgCount: 5, ExistSupportRandomTrgTimes: 2};

// [identifier, total, random, box, spinner, manual]
const blocks = [
    ["MANUAL_TRG", true, false, false, false, true],
    ["RANDOM_TRG", false, true, true, true, false],
    ["RANDOM_RESET_TRG", false, true, true, true, false],
    ["RANDOM_CENTER_TRG", false, true, false, true, false],
    ["RANDOM_MANUAL_TRG", false, true, false, true, true],
    ["RANDOM_LOOP_TRG", false, true, false, false, false]
];
for (const [identifier, total, random, countBox, countSpinner, manual] of blocks) {
    test(`what ${identifier} shows`, () => {
        assert.deepEqual(parameterBlock(SETTINGS, identifier), {total, random, manual, countBox, countSpinner});
    });
}

test("the other modes have no block, and the count needs a camera that counts", () => {
    for (const identifier of ["START_TRG", "TWOSTAGE_HALF_TRG", "REC_ON_CMD_TRG", ""]) {
        assert.equal(parameterBlock(SETTINGS, identifier), null);
    }
    const without = Object.assign({}, SETTINGS, {ExistSupportRandomTrgTimes: 1});
    assert.equal(parameterBlock(without, "RANDOM_TRG").countBox, false);
    assert.equal(parameterBlock(without, "RANDOM_TRG").countSpinner, false);
    assert.equal(parameterBlock(without, "RANDOM_CENTER_TRG").countSpinner, true);
});

test("only the random manual mode shares out a random recording", () => {
    assert.equal(limitOf(SETTINGS, "RANDOM_MANUAL_TRG"), 100);
    assert.equal(limitOf(SETTINGS, "MANUAL_TRG"), 1000);
    assert.equal(limitOf(SETTINGS, "RANDOM_TRG"), 1000);
});

test("a count keeps to the memory and to the camera's limit", () => {
    const on = countControls(SETTINGS, "RANDOM_TRG");
    assert.deepEqual(on, {checked: true, boxDisabled: false, spinnerDisabled: false, min: 1, max: 7, value: 6});
    const long = countControls(Object.assign({}, SETTINGS, {RandomFrames: 300}), "RANDOM_TRG");
    assert.deepEqual([long.max, long.value], [3, 3]);
    const off = countControls(Object.assign({}, SETTINGS, {RandomTimesEnable: false}), "RANDOM_TRG");
    assert.deepEqual(off, {checked: false, boxDisabled: false, spinnerDisabled: true, min: 0, max: 7, value: 0});
    const always = countControls(Object.assign({}, SETTINGS, {RandomTimesEnable: false}), "RANDOM_MANUAL_TRG");
    assert.deepEqual(always, {checked: true, boxDisabled: true, spinnerDisabled: false, min: 1, max: 5, value: 6});
});

test("one of the locks is closed, the one of the ratio for any other value", () => {
    assert.deepEqual(lockedButtons(0), {before: true, after: false, percent: false});
    assert.deepEqual(lockedButtons(1), {before: false, after: true, percent: false});
    for (const lock of [2, -1, 7]) {
        assert.deepEqual(lockedButtons(lock), {before: false, after: false, percent: true});
    }
});
