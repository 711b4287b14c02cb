// The list page of the panel, on the roads that a user takes: shutter, dual slope, low light, options, locks.
import assert from "node:assert/strict";
import {KEY} from "../support/page.mjs";
import {ALL, LENS, SHUTTER, cameraRow, panelTest} from "../support/panel.mjs";

const SHUTTER_BOX = "#livecontrol_shutterspeed";
const DUAL_SLOPE = {ExistSupportedDSShutter: ALL, DSShutterAvairable: true, ExistSupportedDSShutterMode: 0,
    DSShutterMode: false,
    Value: 0, Min: 0, Max: 52};
const PANEL = "#livecontrol_dsshutter_setting";
const DS_SLIDER = "#livecontrol_dsshutter_slider";
const DS_SPINNER = "#livecontrol_dsshutter_spinner";
const handle = (slider) => `${slider} .ui-slider-handle`;
const caption = (page, box) => page.$(box).closest(".SumoSelect").find(".CaptionCont span").text().trim();

panelTest("a choice is a wish until the camera reports it", {}, async (page, live) => {
    for (const [box, value, call, shown] of [
        [SHUTTER_BOX, "3", ["setShutterSpeed", "3"], "1/125"],
        ["#livecontrol_framerate", "0", ["setFrameRate", "0"], "250"],
        ["#livecontrol_resolution", "0", ["setResolution", "0"], "640 x 512"],
        [SHUTTER_BOX, "-1", ["toggleShutterLockMode"], "1/125"],
        ["#livecontrol_resolution", "-1", ["toggleResolutionLockMode"], "640 x 512"]
    ]) {
        page.choose(box, value);
        assert.deepEqual(page.told(live), [call]);
        assert.equal(caption(page, box), shown);
    }
    const locks = () => [SHUTTER_BOX, "#livecontrol_resolution"].map((box) => page.$(box).closest(".SumoSelect").is(".locked"));
    assert.deepEqual(locks(), [false, false]);
    page.answer({getShutterSpeedSettings: {...SHUTTER, ShutterLockMode: true}});
    await page.update();
    assert.deepEqual(locks(), [true, false]);
    assert.deepEqual(Array.from(page.one(SHUTTER_BOX).sumo.ul.children(".palegreen"), (li) => li.textContent.trim()),
        page.texts(`${SHUTTER_BOX} > .palegreen`));
    assert.equal(page.$(`${SHUTTER_BOX} > .palegreen`).length, 1);
});

panelTest("what can't be read shows nothing, and comes back", {
    getLowLightSettings: {SupportedLowlight: ALL, LowLightType: 3, LowLightMode: true}
}, async (page) => {
    assert.ok(!page.locked("#livecontrol_lowlight_slider"));
    page.answer({getShutterSpeedSettings: "", getFrameRateSettings: "", getResolutionSettings: "",
        getTriggerModeSettings: ""});
    await page.update();
    for (const box of [SHUTTER_BOX, "#livecontrol_framerate", "#livecontrol_resolution", "#livecontrol_trigger"]) {
        assert.deepEqual([page.$(box).children().length, caption(page, box)], [0, ""], box);
    }
    assert.ok(page.locked("#livecontrol_lowlight_slider"));
    page.answer({getShutterSpeedSettings: {...SHUTTER, Selected: false}});
    await page.update();
    assert.equal(page.val(SHUTTER_BOX), "");
    assert.equal(page.$(SHUTTER_BOX).attr("placeholder"), "Not in the list");
    page.answer({getShutterSpeedSettings: ""});
    await page.update();
    page.answer({getShutterSpeedSettings: {...SHUTTER, Selected: false}});
    await page.update();
    assert.equal(page.$(SHUTTER_BOX).attr("placeholder"), "Not in the list", "also the second time");
});

panelTest("choosing dual slope opens its panel at rate 0 until an update, each time", {getDSShutterSettings: DUAL_SLOPE},
    async (page, live) => {
        for (let visit = 0; visit < 2; ++visit) {
            assert.ok(!page.shown(PANEL));
            page.choose(SHUTTER_BOX, "-3");
            assert.ok(page.shown(PANEL) && page.shown(DS_SPINNER));
            assert.equal(page.window.zel4_obj.openDSShutter, true, "kept for the next time");
            assert.ok(page.$(handle(DS_SLIDER)).is(page.document.activeElement));
            assert.equal(page.val(SHUTTER_BOX), "1");
            page.type(DS_SPINNER, "30"); // half typed: nobody has sent it
            await page.update();
            assert.equal(page.focused(), page.$(SHUTTER_BOX)[0].sumo.select[0].className);
            await page.rest();
            assert.deepEqual(page.told(live), []);
        }
    });

panelTest("a dual slope rate is sent by slider and field, and shows what the camera took", {getDSShutterSettings: DUAL_SLOPE},
    async (page, live) => {
        page.choose(SHUTTER_BOX, "-3");
        page.focus(handle(DS_SLIDER)).down(KEY.RIGHT);
        assert.deepEqual(page.told(live), [["setDSShutterValue", 5]]);
        page.answer({getDSShutterSettings: {...DUAL_SLOPE, Value: 20}});
        await page.update();
        assert.equal(page.$(DS_SLIDER).slider("value"), 5, "held");
        assert.equal(page.val(DS_SPINNER), "20");
        page.up(KEY.RIGHT);
        assert.equal(page.$(DS_SLIDER).slider("value"), 20);
        assert.ok(page.$("option#op_auto_exposure")[0].disabled);
        const texts = () => page.texts(`${PANEL} .slider-result, ${PANEL} .label-end`).sort();
        assert.deepEqual(texts(), ["20", "52"]);
        page.focus(DS_SPINNER).down(KEY.UP);
        assert.deepEqual([page.$(DS_SLIDER).slider("value"), texts(), page.told(live)], [25, ["25", "52"], []]);
        page.up(KEY.UP);
        assert.deepEqual(page.told(live), [["setDSShutterValue", 25]]);
        for (const [typed, sent] of [["33", 30], ["900", 52], ["0", 0], ["-", null]]) {
            page.enter(DS_SPINNER, typed);
            assert.deepEqual([page.told(live), page.val(DS_SPINNER)], [sent === null ? [] : [["setDSShutterValue", sent]], "20"],
                typed);
        }
    });

panelTest("a rate that the camera did not take leaves auto exposure free", {getDSShutterSettings: DUAL_SLOPE}, async (page) => {
    page.choose(SHUTTER_BOX, "-3");
    page.focus(handle(DS_SLIDER)).key(KEY.RIGHT);
    assert.ok(page.shown(PANEL));
    assert.equal(page.$(DS_SLIDER).slider("value"), 0);
    assert.ok(!page.$("option#op_auto_exposure")[0].disabled);
});

panelTest("low light counts from the dark end and tells the end of a slide from its steps", {
    getLowLightSettings: {SupportedLowlight: ALL, LowLightType: 2, LowLightMode: true},
    getShutterSpeedSettings: {...SHUTTER, LowLightMode: true}
}, async (page, live) => {
    const slider = "#livecontrol_lowlight_slider";
    assert.deepEqual([page.$(slider).slider("value"), page.locked("#livecontrol_lowlight_type")], [2, true]);
    assert.ok(page.$("#livecontrol_lowlight_type").prop("checked"));
    assert.ok(!page.shown("#livecontrol_trigger_param"));
    const [item] = page.one(SHUTTER_BOX).options;
    page.focus(handle(slider)).down(KEY.LEFT);
    page.answer({getShutterSpeedSettings: {...SHUTTER, LowLightMode: true, SelectValue: "2"}});
    page.up(KEY.LEFT);
    assert.equal(page.one(SHUTTER_BOX).options[0], item, "the items stay");
    assert.deepEqual(page.told(live), [["setLowlightShutterSpeed", 2], ["setLowlightShutterSpeed", 2, false]]);
    assert.equal(page.val(SHUTTER_BOX), "2");
    page.down(KEY.RIGHT);
    await page.update(); // the camera is still at the row before
    assert.equal(page.$(slider).slider("value"), 2, "the handle stays in the hand");
    page.up(KEY.RIGHT);
    page.choose(SHUTTER_BOX, "0");
    assert.equal(page.$(slider).slider("value"), 3);
    const longer = [{ShutterSpeed: "1/15"}, {ShutterSpeed: "1/30"}, ...SHUTTER.ShutterSpeeds]
        .map((row, i) => ({...row, Value: String(i)}));
    page.answer({getShutterSpeedSettings: {...SHUTTER, LowLightMode: true, ShutterSpeeds: longer, SelectValue: "1"}});
    await page.update();
    assert.equal(page.$(slider).slider("value"), 4, "beyond the end of the list before");
});

panelTest("low light that not each camera has", {}, async (page, live) => {
    page.check("#livecontrol_lowlight");
    page.check("#livecontrol_lowlight_type");
    page.check("#livecontrol_lowlight_type");
    assert.deepEqual(page.told(live), [["setLowLightMode", true], ["setLowLightType", 2], ["setLowLightType", 3]]);
    for (const [level, shown, locked] of [[0, false, true], [1, true, true], [2, true, false], [ALL, true, false]]) {
        page.answer({getLowLightSettings: {SupportedLowlight: level, LowLightType: 3, LowLightMode: false}});
        await page.update();
        assert.deepEqual([page.shown("#livecontrol_lowlight_block"), page.locked("#livecontrol_lowlight")],
            [shown, locked]);
        assert.ok(page.locked("#livecontrol_lowlight_slider"));
    }
});

panelTest("lamps shine alike on all selected cameras, and a refused one stays dark", {}, async (page, live) => {
    const LED = "#livecontrol_led_control", LASER = "#livecontrol_laser_control";
    page.answer({getHeadLedLaser: (isLed) => isLed, existSupportedLedLaserControl: ALL});
    await page.update();
    assert.deepEqual(page.told(live), [["setHeadLedLaser", true, 1], ["setHeadLedLaser", false, 0]]);
    assert.deepEqual([LED, LASER].map((lamp) => page.$(lamp).attr("aria-pressed")), ["true", "false"]);
    page.click(LASER); // refused
    assert.deepEqual([page.told(live), page.$(LASER).hasClass("on_state")], [[["setHeadLedLaser", false, 1]], false]);
    page.answer({existSupportedLedLaserControl: 1});
    await page.update();
    assert.deepEqual([page.told(live), page.$(LED).hasClass("on_state"), page.locked(LED)], [[], false, true]);
    page.answer({existSupportedLedLaserControl: 2});
    await page.update();
    assert.deepEqual([page.told(live).length, page.$(LED).hasClass("on_state"), page.locked(LED)], [2, true, true]);
});

panelTest("where the selected cameras differ, and what a picked row is sent for then", {}, async (page, live) => {
    const RATE = "#livecontrol_framerate";
    const mark = (box) => page.$(box).closest(".control").children(".differs");
    const notes = () => Array.from(page.$(`${RATE} option`), (option) => option.getAttribute("data-note"));
    const camera = (name, text) => ({camera: name, text});
    const differing = {rate: [camera("<A>", "1 2 5"), camera("B", "2,5,0"), camera("C", "250"), camera("D", "1 2 5")]};
    page.window.selected_cameras = {differing: () => JSON.stringify(differing), currentKey: () => ""};
    await page.update();
    assert.deepEqual([mark(RATE).is(":visible"), mark(SHUTTER_BOX).is(":visible")], [true, false]);
    assert.equal(mark(RATE).attr("title"), "The selected cameras differ:\n1 2 5: <A>, D\n2,5,0: B\n250: C");
    assert.deepEqual(notes().slice(-3), [null, "<A> (+1)", "B"]);
    assert.equal(mark(RATE).attr("aria-label"), mark(RATE).attr("title"));
    assert.equal(page.$(RATE).attr("data-repeats"), undefined, "one is selected");
    page.list.answers.getDeviceInfoList = [1, 2].map((key) => cameraRow(key, {selected: "ui-selected"}));
    await page.update();
    page.told(live);
    page.choose(RATE, page.val(RATE));
    assert.deepEqual(page.told(live), [["setFrameRate", page.val(RATE)]]);
    differing.rate = Array.from("1234567", (name) => camera(name, "125")).concat(Array.from("abcdefgh", (name) => camera(name, name)));
    await page.update();
    assert.deepEqual(mark(RATE).attr("title").split("\n").slice(1), ["125: 1, 2, 3, 4, 5, 6 (+1)",
        ...Array.from("abcdefg", (name) => `${name}: ${name}`), "... (+1)"]);
    differing.rate = [];
    await page.update();
    assert.deepEqual([mark(RATE).is(":visible"), notes().filter(Boolean), mark(RATE).attr("title"), mark(RATE).attr("aria-label")],
        [false, [], undefined, undefined]);
    delete page.window.selected_cameras;
});

panelTest("options that are one control each", {}, async (page, live) => {
    for (const [act, call] of [
        [() => page.check("#livecontrol_livespeed"), ["setLiveImageDataReduceMode", true]],
        [() => page.check("#livecontrol_fan_state"), ["setFanControl", false]],
        [() => page.click("#livecontrol_shading_calib"), ["setShadingOn"]],
        [() => page.check("#livecontrol_showInfoCheckbox"), ["setDisplayInfoShowing", true]],
        [() => page.click("#livecontrol_io_setting"), ["openPrefsDialog", "s_io"]],
        [() => page.click("#livecontrol_recording_setting"), ["openPrefsDialog", "s_record"]],
        [() => page.click("#livecontrol_viewall_camera"), ["selectAllDocs"]],
        [() => page.check("#livecontrol_show_connected_camera"), ["setConnectedCameraShowing", true]]
    ]) {
        act();
        assert.deepEqual(page.told(live, /^(set|open|select)/), [call]);
    }
    page.list.log.splice(0);
    page.check("#livecontrol_show_connected_camera");
    assert.ok(page.list.log.some(([name]) => name === "getDeviceInfoList"), "the list shows it at once");
    assert.ok(page.locked("#livecontrol_editCustomButton"));
    page.check("#livecontrol_showInfoCheckbox");
    assert.ok(!page.one("#livecontrol_showInfoCheckbox").checked, "refused");
    page.answer({isDisplayInfoShowing: true, getFanControlSettings: {State: 4, LowLightMode: false,
        SupportedFanControl: ALL}});
    await page.update();
    assert.ok(!page.locked("#livecontrol_editCustomButton"));
    const INFO = ["Comment", "Info", "Custom"];
    INFO.forEach((name) => page.click(`#livecontrol_edit${name}Button`));
    assert.deepEqual(page.told(live, /^edit/), INFO.map((name) => [`edit${name}`]));
    page.answer({getConnectedCameraShowing: true, isUseIpCameraName: true});
    await page.update();
    assert.deepEqual(["showInfoCheckbox", "show_connected_camera"].map((id) => page.one(`#livecontrol_${id}`).checked),
        [true, true]);
    assert.deepEqual([page.$("#livecontrol_fan_state").prop("checked"), page.$("#livecontrol_fan_state_mark").text()],
        [true, "\u203b"]);
    page.answer({getFanControlSettings: {State: 2, LowLightMode: false, SupportedFanControl: ALL},
        getLiveImageQualitySettings: {supported: 1, reduceMode: true}, isSupportedShadingOn: false});
    await page.update();
    assert.deepEqual([page.locked("#livecontrol_fan_state"), page.$("#livecontrol_fan_caution").text()],
        [true, "Forced to spin"]);
    assert.deepEqual([page.locked("#livecontrol_livespeed"), page.shown("#livecontrol_shading")], [true, false]);
});

panelTest("the warning of the links takes the focus once, and never from who types", {}, async (page) => {
    const BUTTON = "livecontrol_phase_adjust_reconfig";
    const TYPED = "#livecontrol_manu_trig_after_frame";
    page.focus(TYPED);
    page.answer({isWarningPhaseAdjust: true});
    await page.update();
    assert.equal(`#${page.focused()}`, TYPED);
    page.answer({isWarningPhaseAdjust: false});
    await page.update();
    assert.ok(page.locked(`#${BUTTON}`));
    page.focus("#livecontrol_io_setting");
    page.answer({isWarningPhaseAdjust: true});
    await page.update();
    assert.equal(page.focused(), BUTTON);
    page.focus("#livecontrol_io_setting");
    await page.update();
    assert.equal(page.focused(), "livecontrol_io_setting", "led there once");
    page.answer({getControlStatus: {IsRecording: true}});
    await page.update();
    assert.ok(page.locked(`#${BUTTON}`) && !page.$(`#${BUTTON}`).hasClass("blinking"));
    assert.equal(page.one(`#${BUTTON}`).style.background, "");
});

panelTest("a camera that records locks what would change it, and frees it again", {
    getLensControlSettings: LENS, existSupportedLedLaserControl: ALL}, async (page) => {
    page.window.livecontrol_obj.changePage(1);
    await page.rest();
    const LOCKED = ["#livecontrol_deleteall", "#livecontrol_search", "#livecontrol_discovery",
        "#livecontrol_viewall_device",
        "#livecontrol_adddevice", "#livecontrol_ip1", "#livecontrol_update", "#livecontrol_load_button",
        "#livecontrol_device_item_list", "#livecontrol_shutterspeed", "#livecontrol_trig_slider",
        "#livecontrol_io_setting",
        "#livecontrol_manu_trig_before_per_lock_2", "#livecontrol_random_frames", "#livecontrol_fan_caution",
        "#livecontrol_led_control", "#livecontrol_dsshutter_spinner", "#livecontrol_useip_cameraname",
        "#livecontrol_variable_select_btn", "#livecontrol_Focus .spinner"];
    const states = () => LOCKED.map((selector) => page.locked(selector));
    for (const flag of ["IsRecording", "IsReady", "IsCTSReady", "IsBgSaving"]) {
        page.answer({getControlStatus: {[flag]: true}});
        await page.update();
        assert.ok(states().every(Boolean), `${flag} ${LOCKED.filter((_, i) => !states()[i])}`);
        assert.ok(page.$("#livecontrol_device_item_list .delete").get().every((node) => node.style.display === "none"));
        page.answer({getControlStatus: {[flag]: false, IsNoneDocument: false}});
        page.window.livecontrol_obj.changePage(0); // whose blocks free what no rule lists
        await page.update();
        page.window.livecontrol_obj.changePage(1);
        await page.update();
        const stuck = LOCKED.filter((selector) => page.locked(selector))
            .filter((selector) => !/deleteall|viewall/.test(selector)); // by the rule of no document
        assert.deepEqual(stuck, [], flag);
    }
});

panelTest("flags that lock single things", {getLensControlSettings: LENS, isDisplayInfoShowing: true}, async (page) => {
    page.click("#livecontrol_lens_setting > .switch-expand");
    const option = (id) => page.$(`option#${id}`)[0].disabled;
    const item = (box, value) => page.row(box, value).is(".disabled");
    for (const [flag, facts] of [
        ["IsMultiWindow", () => [option("op_auto_exposure"), option("op_hwimage_trigger"),
            page.locked("#livecontrol_variable_select_btn"), item(SHUTTER_BOX, "-2"), item("#livecontrol_trigger", "-1")]],
        ["IsLowlight", () => [option("op_auto_exposure"), page.locked("#livecontrol_framerate"),
            page.locked("#livecontrol_trig_slider"), item(SHUTTER_BOX, "-2")]],
        ["IsQmonLockDevice", () => [page.shown("#livecontrol_qmonlock"), ...["Iris .slider", "Lens_Reset", "Zoom .label-end",
            "Focus .label-start"].map((id) => page.locked(`#livecontrol_${id}`))]],
        ...["IsSuspendReduce", "IsImageTriggerDetecting", "IsImageTriggerCapturing"].map((name) =>
            [name, () => [page.locked("#livecontrol_livespeed")]]),
        ["IsAutoFocussing", () => ["resolution", "framerate", "trigger", "variable_select_btn", "io_setting",
            "ethernet_setting"].map((id) => page.locked(`#livecontrol_${id}`))],
        ["IsNoneDocument", () => ["viewall_camera", "deleteall", "update"].map((id) => page.locked(`#livecontrol_${id}`))],
        ["IsNoneWindow", () => ["#livecontrol_editInfoButton", "#livecontrol_showInfoCheckbox", SHUTTER_BOX].map((id) => page.locked(id))],
        ["ExistLowlight", () => [page.locked("#livecontrol_io_setting"), page.locked("#livecontrol_recording_setting")]]
    ]) {
        for (const on of [true, false]) {
            page.answer({getControlStatus: {[flag]: on}});
            await page.update();
            assert.deepEqual(facts(), facts().map(() => on), flag);
        }
    }
});

panelTest("cameras of the short list, and an update while one is being chosen", {}, async (page, live) => {
    const LIST = "#livecontrol_camera_item_list";
    page.click(`${LIST} [data-key=2]`);
    await page.rest();
    assert.deepEqual(page.told(page.list), [["setSelectDoc", "2"]]);
    page.mouse("mousedown", `${LIST} [data-key=2]`);
    const row = page.one(`${LIST} [data-key=2]`);
    await page.update();
    assert.equal(page.one(`${LIST} [data-key=2]`), row, "the row under the pointer stays");
    page.mouse("mouseup", "body");
    await page.rest();
    page.list.answers.getDeviceInfoList = [cameraRow(2, {selected: "ui-selected"})];
    await page.update();
    assert.deepEqual(page.texts(`${LIST} .device-name`), ["Camera 2"]);
    assert.deepEqual(page.told(live, /^(un)?select/), []);
});
