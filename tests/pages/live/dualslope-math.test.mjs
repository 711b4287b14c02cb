import assert from "node:assert/strict";
import {test} from "node:test";
import "./host-constants.mjs";
import {panelShown, sliderEnd, sliderRate, spinnerRate} from "../../../livecontrol/resources/live/shooting/dualslope-math.js";

test("the slider reaches a maximum between two steps and is cut to it there", () => {
    assert.equal(sliderEnd(0, 99), 100);
    assert.equal(sliderRate(100, 99), 99);
    assert.equal(sliderRate(95, 99), 95);
    assert.equal(sliderEnd(0, 95), 95);
    assert.equal(sliderRate(95, 95), 95);
});

const typed = [
    [98, 95], [99, 99], [100, 99], [150, 99], [7, 5], [5, 5], [4, 0], [0, 0], [-5, 0], [12.7, 10]
];
for (const [value, rate] of typed) {
    test(`of 0 to 99 the spinner makes ${rate} from ${value}`, () => {
        assert.equal(spinnerRate(value, 0, 99), rate);
    });
}

test("cutting down to a step never leaves the lower limit", () => {
    assert.equal(spinnerRate(4, 3, 99), 3);
    assert.equal(spinnerRate(3, 3, 3), 3);
});

// [settings, shown with hiding allowed, shown while the user opens the panel]
const panels = [
    [{Value: 10}, true, true],
    [{Value: 0}, false, null],
    [{Value: 10, DSShutterAvairable: false}, false, null],
    [{Value: 10, ExistSupportedDSShutter: 1}, false, null],
    [{Value: 0, ExistSupportedDSShutterMode: 2, DSShutterMode: 1}, true, true],
    [{Value: 10, ExistSupportedDSShutterMode: 2, DSShutterMode: 0}, false, false],
    [{Value: 10, ExistSupportedDSShutterMode: 1, DSShutterMode: 0}, true, true]
];
for (const [changes, hiding, opening] of panels) {
    test(`panel for ${JSON.stringify(changes)}`, () => {
        const settings = Object.assign({ExistSupportedDSShutter: 3, ExistSupportedDSShutterMode: 0,
            DSShutterAvairable: true, DSShutterMode: 0}, changes);
        assert.equal(panelShown(settings, true), hiding);
        assert.equal(panelShown(settings, false), opening);
    });
}
