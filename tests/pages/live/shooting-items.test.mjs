import assert from "node:assert/strict";
import {describe, test} from "node:test";
import {translate} from "./host-constants.mjs";
import {framerateBox, resolutionBox, shutterBox} from "../../../livecontrol/resources/live/shooting/shooting-items.js";

const values = (box) => box.items.map((item) => item.value);
const texts = (box) => box.items.map((item) => item.text);
const item = (box, value) => box.items.find((entry) => entry.value === value);

const size = (value, width, height) => ({Value: value, Width: width, Height: height});

function resolutions(changes) {
    return Object.assign({
        Resolutions: [size("0", "1024", "1024"), size("1", "512", "512")],
        SelectValue: "1", Selected: true, VariablePrefix: "", ExistResolutionLockMode: 0, ResolutionLockMode: false
    }, changes);
}

function rates(changes) {
    return Object.assign({
        Framerates: [{Value: "0", Rate: "1,000 fps"}, {Value: "1", Rate: "2,000 fps"}],
        SelectValue: "0", Selected: true, VariablePrefix: "", LowLightMode: false
    }, changes);
}

function shutters(changes) {
    return Object.assign({
        ShutterSpeeds: ["1/1000 s", "1/2000 s", "1/4000 s"].map((text, i) => ({Value: String(i), ShutterSpeed: text})),
        SelectValue: "1", Selected: true, LowLightMode: false,
        ExistSupportedShutterLockMode: 0, ShutterLockMode: false,
        ExistSupportedAutoExposure: 0, AutoExposureOn: false,
        ExistSupportedDSShutter: 0, ExistSupportedDSShutterMode: 0,
        DSShutterMode: 0, DSShutterValue: 0, DSShutterAvairable: false
    }, changes);
}

const dualSlope = (changes) => shutters(Object.assign({ExistSupportedDSShutter: 3, DSShutterAvairable: true}, changes));

describe("resolution box", () => {
    test("an empty list shows (None), untranslated, as value 0", () => {
        const box = resolutionBox(resolutions({Resolutions: [], Selected: false, SelectValue: "-999"}), translate);
        assert.deepEqual(box, {items: [{value: "0", text: "(None)"}], selected: 0});
    });

    test("rows read width x height and the current one is selected", () => {
        const box = resolutionBox(resolutions(), translate);
        assert.deepEqual(texts(box), ["1024 x 1024", "512 x 512"]);
        assert.equal(box.selected, 1);
    });

    test("a size outside the list selects an empty item in front", () => {
        const box = resolutionBox(resolutions({Selected: false, SelectValue: "-999"}), translate);
        assert.deepEqual(values(box), ["", "0", "1"]);
        assert.equal(box.selected, 0);
    });

    test("the size of a channel that no row has is called by the channel", () => {
        const box = resolutionBox(resolutions({VariablePrefix: "Channel 3: ", SelectValue: "-999"}), translate);
        assert.deepEqual([box.selected, box.caption], [-1, "Channel 3"]);
        assert.equal(resolutionBox(resolutions({Selected: false}), translate).caption, undefined);
    });

    for (const [level, shown, disabled] of [[0, false, false], [1, true, true], [2, true, true], [3, true, false]]) {
        test(`lock at support level ${level}`, () => {
            const box = resolutionBox(resolutions({ExistResolutionLockMode: level, ResolutionLockMode: true}), translate);
            const lock = item(box, "-1");
            assert.equal(Boolean(lock), shown);
            if (shown) {
                assert.deepEqual(lock, {value: "-1", text: "<Locked Resolution>", id: "op_lockedResolution",
                    palegreen: true, disabled: disabled});
                assert.deepEqual(values(box), ["-1", "-999", "0", "1"]);
                assert.equal(item(box, "-999").disabled, true);
            }
        });
    }

    test("a channel's own size is selected, not the separator of the same value", () => {
        const box = resolutionBox(resolutions({Resolutions: [size("-999", "640", "480")], SelectValue: "-999",
            VariablePrefix: "Channel 3: ", ExistResolutionLockMode: 3}), translate);
        assert.equal(box.selected, 2);
        assert.equal(box.items[2].text, "Channel 3: 640 x 480");
        assert.equal(item(box, "-1").palegreen, false);
    });

    test("a channel's size that is in no row selects nothing rather than a wrong row", () => {
        const box = resolutionBox(resolutions({SelectValue: "-999", VariablePrefix: "Channel 3: "}), translate);
        assert.equal(box.selected, -1);
        assert.deepEqual(texts(box), ["Channel 3: 1024 x 1024", "512 x 512"]);
    });
});

describe("frame rate box", () => {
    test("an empty list shows a translated (None)", () => {
        assert.deepEqual(texts(framerateBox(rates({Framerates: []}), translate)), ["<(None)>"]);
    });

    test("with a channel the row outside the list comes first, labelled, and is selected", () => {
        const box = framerateBox(rates({VariablePrefix: "Channel 1: ", SelectValue: "-999",
            Framerates: [{Value: "-999", Rate: "750 fps"}, {Value: "0", Rate: "750 fps"}]}), translate);
        assert.deepEqual(texts(box), ["Channel 1: 750 fps", "750 fps"]);
        assert.equal(box.selected, 0);
    });

    test("a rate outside the list selects an empty item", () => {
        const box = framerateBox(rates({Selected: false, SelectValue: "-999"}), translate);
        assert.deepEqual([values(box), box.selected], [["", "0", "1"], 0]);
    });
});

describe("shutter box", () => {
    test("an empty list shows (None) and asks to hide the dual slope panel", () => {
        const box = shutterBox(dualSlope({ShutterSpeeds: [], DSShutterValue: 20, LowLightMode: true}), translate);
        assert.deepEqual(texts(box), ["(None)"]);
        assert.deepEqual([box.hasRows, box.opensDualSlope, box.lowLight], [false, false, null]);
    });

    test("without any mode there is no separator", () => {
        assert.deepEqual(values(shutterBox(shutters(), translate)), ["0", "1", "2"]);
    });

    test("all modes stand in order in front of one separator", () => {
        const box = shutterBox(dualSlope({ExistSupportedShutterLockMode: 2, ExistSupportedAutoExposure: 3,
            Selected: false, SelectValue: "-999"}), translate);
        assert.deepEqual(values(box), ["", "-1", "-2", "-3", "-999", "0", "1", "2"]);
        assert.deepEqual(box.items.slice(1, 5).map((entry) => [entry.id, Boolean(entry.disabled)]),
            [["op_shutterlock", true], ["op_auto_exposure", false], ["op_dss_shutter", false], ["hr", true]]);
        assert.equal(box.selected, 0);
    });

    const running = [
        ["auto exposure alone", {AutoExposureOn: true}, true],
        ["off", {AutoExposureOn: false}, false],
        ["a dual slope shutter in use", {AutoExposureOn: true, ExistSupportedDSShutter: 2, DSShutterValue: 5}, false],
        ["a dual slope value of another camera", {AutoExposureOn: true, ExistSupportedDSShutter: 1, DSShutterValue: 5}, true],
        ["a dual slope shutter at 0", {AutoExposureOn: true, ExistSupportedDSShutter: 3, DSShutterValue: 0}, true]
    ];
    for (const [what, changes, expected] of running) {
        test(`auto exposure counts as running: ${what}`, () => {
            const box = shutterBox(shutters(Object.assign({ExistSupportedAutoExposure: 3}, changes)), translate);
            assert.equal(box.items[box.selected].value, expected ? "-4" : "1");
            assert.equal(Boolean(item(box, "-4")), expected);
        });
    }

    test("running auto exposure is the selection even when the value is in no row", () => {
        const box = shutterBox(shutters({AutoExposureOn: true, Selected: false, SelectValue: "-999"}), translate);
        assert.deepEqual([values(box), box.selected], [["", "-4", "0", "1", "2"], 1]);
    });

    const exclusive = [
        [{DSShutterValue: 10}, true],
        [{DSShutterValue: 0}, false],
        [{DSShutterValue: 0, ExistSupportedAutoExposure: 2}, true],
        [{ExistSupportedDSShutterMode: 1, DSShutterMode: 0, DSShutterValue: 10}, false],
        [{ExistSupportedDSShutterMode: 3, DSShutterMode: 1, DSShutterValue: 0}, true]
    ];
    for (const [changes, disabled] of exclusive) {
        test(`auto exposure can be chosen where each camera has it and no dual slope shutter is on: ${JSON.stringify(changes)}`, () => {
            const box = shutterBox(dualSlope(Object.assign({ExistSupportedAutoExposure: 3}, changes)), translate);
            assert.equal(item(box, "-2").disabled, disabled);
        });
    }

    // [settings, item: absent (null) or [disabled, palegreen], panel refreshed]
    const slopes = [
        [{ExistSupportedDSShutter: 0}, null, false],
        [{ExistSupportedDSShutter: 1}, [true, false], false],
        [{ExistSupportedDSShutter: 2, DSShutterAvairable: false, DSShutterValue: 10}, [true, false], false],
        [{ExistSupportedDSShutter: 2, DSShutterValue: 0}, [false, false], false],
        [{ExistSupportedDSShutter: 2, DSShutterValue: 10}, [false, true], true],
        [{ExistSupportedDSShutterMode: 1, DSShutterValue: 10}, [false, true], true],
        [{ExistSupportedDSShutterMode: 2, DSShutterMode: 1, DSShutterValue: 0}, [false, true], true],
        [{ExistSupportedDSShutterMode: 2, DSShutterMode: 0, DSShutterValue: 10}, [true, false], false]
    ];
    for (const [changes, expected, opens] of slopes) {
        test(`dual slope item: ${JSON.stringify(changes)}`, () => {
            const box = shutterBox(dualSlope(changes), translate);
            const entry = item(box, "-3");
            assert.deepEqual(entry ? [Boolean(entry.disabled), Boolean(entry.palegreen)] : null, expected);
            assert.equal(box.opensDualSlope, opens);
        });
    }

    test("low light takes the modes away and moves its slider from the bright end", () => {
        const box = shutterBox(dualSlope({LowLightMode: true, ExistSupportedShutterLockMode: 3,
            ExistSupportedAutoExposure: 3, SelectValue: "0"}), translate);
        assert.deepEqual(["-1", "-2", "-3"].map((value) => item(box, value).disabled), [true, true, true]);
        assert.deepEqual(box.lowLight, {max: 2, value: 2});
        assert.equal(box.items[box.selected].value, "0");
    });

    test("low light with a value in no row selects the item of the slider", () => {
        const box = shutterBox(shutters({LowLightMode: true, Selected: false, SelectValue: "-999"}), translate);
        assert.deepEqual(box.lowLight, {max: 2, value: 2});
        assert.equal(box.items[box.selected].value, "2");
    });
});
