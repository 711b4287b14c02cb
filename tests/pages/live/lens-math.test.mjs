import assert from "node:assert/strict";
import {test} from "node:test";
import "./host-constants.mjs";
import {
    focusSpinner, irisSpinner, isBlockShown, shownButtons, sliderOf, zoomSpinner
} from "../../../livecontrol/resources/live/lens/lens-math.js";

const axis = (min, max, value, tick) =>
    ({SpinnerMin: min, SpinnerMax: max, SpinnerValue: value, SmallTick: tick, SliderMin: 3, SliderMax: 9, SliderValue: 5});

// [level, type, shown]
const blocks = [
    [3, "EF", true], [2, "EF", true], [1, "EF", false], [0, "EF2", false], [0, "FOURTHIRDS", true],
    [1, "FOURTHIRDS", true], [3, "NONE", false], [2, "Unable", true], [1, "Unable", false]
];
for (const [level, type, shown] of blocks) {
    test(`level ${level} with "${type}" ${shown ? "shows" : "hides"} the block`, () => {
        assert.equal(isBlockShown({ExistLensControl: level, LensType: type}), shown);
    });
}

test("a lens is closed or read anew, never both", () => {
    assert.deepEqual(["EF", "MYUTRON", "EF2", "Unable", "FOURTHIRDS"].map(shownButtons), [
        {close: false, reset: false}, {close: false, reset: false}, {close: false, reset: true},
        {close: false, reset: true}, {close: true, reset: false}
    ]);
});

test("the iris shows tenths, its slider the camera's own numbers", () => {
    const iris = axis(28, 220, 56, 1);
    assert.deepEqual(irisSpinner(iris),
        {min: 2.8, max: 22, step: 0.1, decimal: true, decimalPoint: 1, value: 5.6});
    assert.deepEqual(sliderOf(iris), {min: 3, max: 9, step: 1, value: 5});
});

// [spinner of the camera, type, limits]
const focuses = [
    [axis(0, 100, 50, 2), "EF", [null, null]], [axis(0, 100, 50, 2), "EF2", [0, 100]],
    [axis(0, 100, 130, 2), "MYUTRON", [0, 130]], [axis(0, 100, -4, 2), "FOURTHIRDS", [-4, 100]]
];
for (const [settings, type, [min, max]] of focuses) {
    test(`a focus of "${type}" at ${settings.SpinnerValue} goes from ${min} to ${max}`, () => {
        const spinner = focusSpinner(settings, type);
        assert.deepEqual([spinner.min, spinner.max, spinner.step, spinner.value, spinner.decimal],
            [min, max, 2, settings.SpinnerValue, false]);
    });
}

// [spinner of the camera, type, min, max, step, value]
const zooms = [
    [axis(240, 700, 351, 5), "EF2", 24, 70, 0.5, 35.1], [axis(0, 0, 0, 0), "EF2", 0, 0.1, 0.1, 0],
    [axis(8, 48, 12, 2), "MYUTRON", 8, 48, 2, 12], [axis(0, 0, 0, 0), "MYUTRON", 0, 1, 1, 0]
];
for (const [settings, type, min, max, step, value] of zooms) {
    test(`a zoom of "${type}" to ${settings.SpinnerMax} by ${settings.SmallTick} steps by ${step} to ${max}`, () => {
        const spinner = zoomSpinner(settings, type);
        assert.deepEqual([spinner.min, spinner.max, spinner.step, spinner.value], [min, max, step, value]);
        assert.equal(spinner.decimal, type === "EF2");
    });
}
