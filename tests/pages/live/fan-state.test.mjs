import assert from "node:assert/strict";
import {test} from "node:test";
import "./host-constants.mjs";
import {fanShown} from "../../../livecontrol/resources/live/options/fan-state.js";

function shownFor(state, changes) {
    return fanShown(Object.assign({State: state, LowLightMode: false, SupportedFanControl: 3}, changes));
}

// [state, box ticked, box enabled, note, mark]
const STATES = [
    [0, true, true, "", false],
    [1, false, true, "", false],
    [2, false, false, "Forced to spin", false],
    [3, false, false, "Error", false],
    [4, true, true, "", true],
    [-1, false, false, "Error", false],
    [5, false, false, "Error", false]
];

test("each state of the fan shows its own", () => {
    for (const [state, stopped, enabled, note, mark] of STATES) {
        const shown = shownFor(state);
        assert.deepEqual([shown.stopped, shown.enabled, shown.note, shown.mark], [stopped, enabled, note, mark], state);
        assert.equal(shown.tip !== "", note !== "", state);
    }
});

test("low light, and a camera without a fan among the selected, hold the box", () => {
    for (const changes of [{LowLightMode: true}, {SupportedFanControl: 2}, {SupportedFanControl: 1}]) {
        for (const [state] of STATES) {
            const shown = shownFor(state, changes);
            assert.deepEqual([shown.stopped, shown.enabled, shown.note, shown.tip], [false, false, "", ""]);
        }
    }
    assert.equal(shownFor(4, {LowLightMode: true}).mark, true);
});
