import assert from "node:assert/strict";
import {test} from "node:test";
import {liveRules} from "../../../livecontrol/resources/live/frame/rules.js";

const ACTIONS = ["recording", "multiWindow", "lowLight", "noneWindow", "multiToolLock", "liveSpeed"];
const actions = Object.fromEntries(ACTIONS.map((name) => [name, () => name]));
const rules = liveRules(actions);

const actionOf = (key) => rules[key].func && rules[key].func();

test("every state has its rule and its action", () => {
    assert.deepEqual(Object.fromEntries(Object.keys(rules).map((key) => [key, actionOf(key)])), {
        "NONE-DOCUMENT": undefined, "MULTI-WINDOW": "multiWindow", "CTSREADY": "recording", "READY": "recording",
        "RECORDING": "recording", "BACKGROUND-SAVING": "recording", "EXIST-LOWLIGHT": undefined,
        "LOWLIGHT": "lowLight", "AUTOFOCUS": undefined, "NONE-WINDOW": "noneWindow",
        "QMON-LOCK-DEVICE": "multiToolLock", "IMAGETRIGGER-DETECTING": "liveSpeed",
        "IMAGETRIGGER-CAPTURING": "liveSpeed", "SUSPEND-REDUCE": "liveSpeed"
    });
});

test("saving in the background locks just what recording locks", () => {
    for (const key of ["CTSREADY", "READY", "BACKGROUND-SAVING"]) {
        assert.deepEqual(rules[key].disabled, rules.RECORDING.disabled, key);
    }
    assert.equal(rules.RECORDING.disabled.length, 16);
});

test("the shutter stays free in low light and while focusing, the other shooting boxes don't", () => {
    for (const key of ["LOWLIGHT", "AUTOFOCUS"]) {
        assert.ok(!rules[key].disabled.includes("#livecontrol_shutterspeed"), key);
        assert.ok(rules[key].disabled.includes("#livecontrol_framerate"), key);
    }
    assert.ok(rules["NONE-WINDOW"].disabled.includes("#livecontrol_shutterspeed"));
});

test("no rule names a control twice, and all lists are selectors", () => {
    for (const [key, rule] of Object.entries(rules)) {
        assert.equal(new Set(rule.disabled).size, rule.disabled.length, key);
        for (const selector of rule.disabled) {
            assert.match(selector, /^(option)?[#.]|^\[id\^=/, key);
        }
    }
});
