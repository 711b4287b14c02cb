import assert from "node:assert/strict";
import {test} from "node:test";
import {flagOfRule, parseStatus, resolveRules} from "../../../pagelib/src/zel4func/rules.js";

const STATUS = {
    IsNoneDocument: false, IsMultiWindow: false, IsCTSReady: false, IsReady: false, IsNotRecording: true,
    IsRecording: false, IsBgSaving: false, IsLowlight: false, ExistLowlight: false, IsAllLowlightON: false,
    IsAutoFocussing: false, IsNotCurrentAutoFocus: true, IsNoneWindow: false, IsQmon: true, IsQmonLockDevice: false,
    IsAllQmonLockDevice: false, IsImageTriggerDetecting: false, IsImageTriggerCapturing: false, IsSuspendReduce: false
};

test("each rule finds its own flag among those that look alike", () => {
    const flags = {
        "NONE-DOCUMENT": "IsNoneDocument", "MULTI-WINDOW": "IsMultiWindow", "CTSREADY": "IsCTSReady",
        "READY": "IsReady", "RECORDING": "IsRecording", "BACKGROUND-SAVING": "IsBgSaving",
        "EXIST-LOWLIGHT": "ExistLowlight", "LOWLIGHT": "IsLowlight", "AUTOFOCUS": "IsAutoFocussing",
        "NONE-WINDOW": "IsNoneWindow", "QMON-LOCK-DEVICE": "IsQmonLockDevice",
        "IMAGETRIGGER-DETECTING": "IsImageTriggerDetecting", "IMAGETRIGGER-CAPTURING": "IsImageTriggerCapturing",
        "SUSPEND-REDUCE": "IsSuspendReduce"
    };
    for (const [rule, flag] of Object.entries(flags)) {
        assert.equal(flagOfRule(rule, STATUS), flag);
    }
    assert.equal(flagOfRule("NO-SUCH-THING", STATUS), null);
});

test("an element under several rules is free only when all their flags are false", () => {
    const controls = {
        "RECORDING": {disabled: ["#rate", "#list"]},
        "BACKGROUND-SAVING": {disabled: ["#rate"]},
        "NONE-WINDOW": {disabled: ["#rate", "#info"]}
    };
    const verdict = (flags) => {
        const {disabled, free} = resolveRules(controls, {...STATUS, ...flags});
        return {disabled, free};
    };
    assert.deepEqual(verdict({}), {disabled: [], free: ["#rate", "#list", "#info"]});
    assert.deepEqual(verdict({IsBgSaving: true}), {disabled: ["#rate"], free: ["#list", "#info"]});
    assert.deepEqual(verdict({IsBgSaving: true, IsNoneWindow: true}), {disabled: ["#rate", "#info"], free: ["#list"]});
});

test("each function is to be called once, with its flag, false included", () => {
    const func = () => {};
    const {calls} = resolveRules({
        "QMON-LOCK-DEVICE": {func},
        "RECORDING": {disabled: "#rate", func},
        "NO-SUCH-THING": {func}
    }, {...STATUS, IsRecording: true});
    assert.deepEqual(calls, [{func, flag: false}, {func, flag: true}]);
});

test("a rule that no flag feeds is named and disables nothing", () => {
    const {unknown, disabled, free} = resolveRules({"NO-SUCH-THING": {disabled: ["#rate"]}}, STATUS);
    assert.deepEqual([unknown, disabled, free], [["NO-SUCH-THING"], [], []]);
});

test("a failed getter gives no status", () => {
    for (const text of ["", null, undefined, "{", "null", "3"]) {
        assert.equal(parseStatus(text), null);
    }
    assert.deepEqual(parseStatus("{\"IsReady\":true}"), {IsReady: true});
});
