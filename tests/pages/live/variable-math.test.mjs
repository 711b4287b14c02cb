import assert from "node:assert/strict";
import {test} from "node:test";
import {
    blockOrder, chosenRate, correctsDown, framerateBox, initialMembers, presetBox, presetSize, rateIndexOf, settledPlace,
    startSize, turnedSize
} from "../../../livecontrol/resources/live/variable/variable-math.js";

const rate = (value, text) => ({Value: String(value), FrameRate: text});
const ALL = [rate(0, "1000 fps"), rate(1, "3000 fps"), rate(2, "4000 fps"), rate(3, "5000 fps")];
const preset = (value, width, height) => ({
    Value: String(value), Resolution: `${width}x${height}`, Width: String(width), Height: String(height)
});
const PRESETS = [preset(2, 640, 480), preset(3, 256, 128)];

test("a visit begins with frame rate priority, the first rate and no size", () => {
    const members = initialMembers();
    assert.deepEqual([members.variableFrameratePriority, members.variableSelectFramerate, members.variableInputWidth],
        [true, 0, 0]);
    assert.notEqual(initialMembers(), members);
});

test("what decides first stands first", () => {
    assert.equal(blockOrder(true)[0], ".varblock-framerate");
    assert.deepEqual(blockOrder(false), [".varblock-resolution", ".varblock-position", ".varblock-framerate"]);
});

for (const [value, count, expected] of [[-1, 4, 3], [0, 4, 0], [3, 4, 3], [4, 4, 3], [7, 1, 0]]) {
    test(`of ${count} rates the one numbered ${value} leaves ${expected}`, () => {
        assert.equal(chosenRate(value, count), expected);
    });
}

test("with resolution priority the fastest rate stands first and keeps its number", () => {
    const box = framerateBox(ALL, false, 3);
    assert.deepEqual(box.items.map((item) => item.value), ["3", "2", "1", "0"]);
    assert.equal(box.selected, 0);
    assert.equal(framerateBox(ALL, true, 3).selected, 3);
    assert.equal(framerateBox(ALL, true, -1).selected, -1);
});

// [rows that the user chose from, number of the chosen row, position in the host's list]
const indexes = [
    ["none skipped", ALL, 2, 2],
    ["one skipped before it", [ALL[0], rate(1, "5000 fps")], 1, 3],
    ["two skipped, the first chosen", [rate(0, "4000 fps")], 0, 2],
    ["no such row", [ALL[0]], 1, -1],
    ["a rate that the host has no more", [rate(0, "777 fps")], 0, -1],
    ["no rows", [], -1, -1]
];
for (const [name, rows, value, expected] of indexes) {
    test(`the position of a rate: ${name}`, () => {
        assert.equal(rateIndexOf(rows, ALL, value), expected);
    });
}

test("the size begins with the first preset, by hand with the largest", () => {
    const list = {VariableResolutionList: PRESETS, MinValue: "2", MaxPresetWidth: "640", MaxPresetHeight: "480"};
    assert.deepEqual(startSize(list, true), {width: 640, height: 480});
    assert.deepEqual(startSize(list, false), {width: 640, height: 480});
    const none = {VariableResolutionList: [], MinValue: "0", MaxPresetWidth: "0", MaxPresetHeight: "0"};
    assert.deepEqual(startSize(none, true), {width: 0, height: 0});
});

test("a preset is found by its number, which need not be its place in the rows", () => {
    assert.deepEqual(presetSize(PRESETS, "3"), {width: 256, height: 128});
    assert.equal(presetSize(PRESETS, 0), null);
    assert.equal(presetBox(PRESETS, 3).selected, 1);
});

test("a turned view exchanges width and height", () => {
    assert.deepEqual(turnedSize({width: 640, height: 480}, true), {width: 480, height: 640});
    assert.deepEqual(turnedSize({width: 640, height: 480}, false), {width: 640, height: 480});
});

// [place, size, largest, centred, expected]
for (const [place, size, max, centred, expected] of [
    [100, 640, 1280, false, 100], [100, 640, 1280, true, 320], [-1, 640, 1280, false, 320], [0, 1280, 1280, true, 0],
    [-1, 641, 1280, false, 319.5]
]) {
    test(`the place ${place} of a size ${size} of ${max}${centred ? ", centred," : ""} is ${expected}`, () => {
        assert.equal(settledPlace(place, size, max, centred), expected);
    });
}

test("only a spin upward corrects upward", () => {
    assert.equal(correctsDown(true, 480, 488), false);
    assert.equal(correctsDown(true, 488, 480), true);
    assert.equal(correctsDown(true, null, 480), false);
    assert.equal(correctsDown(false), true);
});
