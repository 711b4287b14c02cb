// The options of the list page: what the selected cameras lack doesn't show, and what they have shows as it is.
import assert from "node:assert/strict";
import {ALL, TRIGGER, panelTest} from "../support/panel.mjs";

const BLOCKS = ["livespeed_block", "fan_control", "shading", "led_laser_setting", "phase_adjust", "trigger_param",
    "lowlight_block"];
const blocks = (page) => BLOCKS.filter((id) => page.$(`#livecontrol_${id}`).css("display") !== "none");

panelTest("each block shows while there is a camera that has it", {existSupportedLedLaserControl: ALL}, async (page) => {
    assert.deepEqual(blocks(page), BLOCKS);
    const lacks = {getLiveImageQualitySettings: "", getFanControlSettings: "", isSupportedShadingOn: false,
        existSupportedLedLaserControl: 0, isSupportedPhaseAdjust: false, getTriggerParameterSettings: "",
        getLowLightSettings: {SupportedLowlight: 0}};
    const kept = Object.fromEntries(Object.keys(lacks).map((name) => [name, page.live.answers[name]]));
    for (const [i, name] of Object.keys(lacks).entries()) {
        page.answer({[name]: lacks[name]});
        await page.update();
        assert.deepEqual(blocks(page), BLOCKS.filter((_, block) => block !== i), name);
        page.answer({[name]: kept[name]});
        await page.update();
    }
    page.answer({getLiveImageQualitySettings: {supported: 0, reduceMode: false},
        getFanControlSettings: {State: 1, LowLightMode: false, SupportedFanControl: 0}});
    await page.update();
    assert.deepEqual(blocks(page), BLOCKS.slice(2));
});

panelTest("live speed, low light and the phase of the links", {isWarningPhaseAdjust: true}, async (page, live) => {
    for (const on of [true, false]) {
        page.answer({getLiveImageQualitySettings: {supported: ALL, reduceMode: on},
            getLowLightSettings: {SupportedLowlight: ALL, LowLightType: 2, LowLightMode: on}});
        await page.update();
        assert.deepEqual([page.one("#livecontrol_livespeed").checked, page.$("#livecontrol_lowlight_block").is(".lowlight-on")],
            [on, on]);
    }
    const warning = page.$("#livecontrol_phase_adjust_reconfig");
    assert.deepEqual([warning.hasClass("blinking"), warning[0].style.background, warning.prop("disabled")],
        [true, "rgb(255, 35, 35)", false]);
    page.told(live);
    page.check("#livecontrol_livespeed");
    page.click("#livecontrol_phase_adjust_reconfig");
    assert.deepEqual(page.told(live), [["setLiveImageDataReduceMode", true], ["execPhaseAdjust"]]);
    page.answer({getLowLightSettings: {SupportedLowlight: 1, LowLightType: 2, LowLightMode: true}, isWarningPhaseAdjust: false});
    await page.update();
    assert.deepEqual([warning.hasClass("blinking"), warning[0].style.background, warning.prop("disabled")], [false, "", true]);
    assert.ok(!page.one("#livecontrol_lowlight_type").checked);
    assert.ok(!page.one("#livecontrol_lowlight").checked && !page.$("#livecontrol_lowlight_block").is(".lowlight-on"));
});

panelTest("the fan's note and mark say why, and go again", {}, async (page) => {
    const shown = async (State, more = {}) => {
        page.answer({getFanControlSettings: {State, LowLightMode: false, SupportedFanControl: ALL, ...more}});
        await page.update();
        const [note, mark] = ["caution", "state_mark"].map((name) => page.$(`#livecontrol_fan_${name}`));
        return [note.text(), note.attr("title"), mark.text(), mark.attr("title"), page.one("#livecontrol_fan_state").checked];
    };
    const hot = "The fan is forced to spin because inside the camera is hot. Wait for a while.";
    assert.deepEqual(await shown(2), ["Forced to spin", hot, "", "", false]);
    assert.deepEqual(await shown(4), ["", "", "\u203b", "Forced to spin", true]);
    assert.deepEqual(await shown(3), ["Error", "A fan error occurred.", "", "", false]);
    assert.deepEqual(await shown(0), ["", "", "", "", true]);
    assert.deepEqual([await shown(2, {LowLightMode: true}), page.locked("#livecontrol_fan_state")], [["", "", "", "", false], true]);
});

panelTest("in low light the trigger's block keeps what it shows", {}, async (page) => {
    const total = () => page.$("#livecontrol_trigger_total_frames").text();
    page.answer({getLowLightSettings: {SupportedLowlight: ALL, LowLightType: 3, LowLightMode: true},
        getTriggerParameterSettings: {...TRIGGER, TotalFramesLabel: "50 frames"}});
    await page.update();
    assert.equal(total(), "1000 frames");
    page.answer({getLowLightSettings: {SupportedLowlight: ALL, LowLightType: 3, LowLightMode: false}});
    await page.update();
    assert.equal(total(), "50 frames");
});
