// The panel's life: how it opens and closes, its keys and boxes, and where its buttons lead.
import assert from "node:assert/strict";
import {KEY} from "../support/page.mjs";
import {areaSettings, panelTest} from "../support/panel.mjs";

const EXPOSURE = areaSettings("AutoExposure", {AutoExposureMaxTime: {AutoExposureMaxTimes: [], SelectValue: "0"}});

panelTest("the panel opens where it was left; an exposure page enters its mode first", {getAutoExposureSettings: EXPOSURE},
    async (page, live) => {
        for (const [last, calls] of [
            [3, ["onOpen", "autoExposureStart", "setLastPage", "sendSelectArea"]],
            [4, ["onOpen", "hWImageTriggerStart", "setLastPage"]], [1, ["onOpen", "setLastPage"]]
        ]) {
            page.answer({getLastPage: last});
            await page.open();
            assert.deepEqual(page.told(live).map(([name]) => name), calls);
            assert.deepEqual([1, 3, 4].filter((no) => page.$(page.window.livecontrol_obj.pages[no]).css("display") !== "none"), [last]);
        }
        let last = 0;
        page.answer({getPrefBool: true, getLastPage: () => last, setLastPage: (no) => { last = no; }});
        await page.open();
        assert.deepEqual(page.told(live).map(([name]) => name), ["onOpen", "setLastPage", "setPrefBool"]);
        assert.equal(page.window.livecontrol_obj.pageNo, 1, "the host asks for the devices");
        page.answer({isConnected: false});
        page.window.livecontrol_obj.changePage(3);
        await page.update();
        assert.equal(page.window.livecontrol_obj.pageNo, 0, "a page that needs a camera goes with its link");
    });

panelTest("what the host's document lacks is told", {}, async (page, live) => {
    page.told(live);
    await page.open();
    assert.deepEqual(page.told(live, /^alert$/), []);
    const {Hogan} = page.window;
    const {spinnerStopFire} = page.$.fn;
    page.window.Hogan = undefined;
    page.$.fn.spinnerStopFire = undefined;
    await page.open();
    assert.deepEqual(page.told(live, /^alert$/),
        [["alert", "The control panel can't work: hogan.js, custom_control.js is missing."]]);
    page.window.Hogan = Hogan;
    await page.open();
    assert.deepEqual(page.told(live, /^alert$/),
        [["alert", "The control panel can't work: custom_control.js is missing."]], "one alone, too");
    const {devicelist_obj} = page.window;
    page.window.devicelist_obj = undefined;
    await page.open();
    const told = page.told(live, /^(alert|errorLog)$/);
    assert.deepEqual(told[0],
        ["alert", "The control panel can't work: custom_control.js, devicelist.js is missing."],
        "before it fails for the want of it");
    assert.match(told[1][1], /^livecontrol - open: TypeError/);
    page.window.devicelist_obj = devicelist_obj;
    page.$.fn.spinnerStopFire = spinnerStopFire; // the document outlives the test
});

panelTest("no update while the host holds it back or plays", {isUpdateIgnore: true}, async (page, live) => {
    const reads = async (answers) => {
        page.answer(answers);
        live.log.splice(0);
        await page.update();
        return live.log.filter(([name]) => name === "getShutterSpeedSettings").length;
    };
    assert.deepEqual([await reads({}), await reads({isUpdateIgnore: false, isLiveMode: false}),
        await reads({isLiveMode: true})], [0, 0, 1]);
    live.log.splice(0);
    await page.update();
    assert.ok(live.log.some(([name]) => name === "hideSelectBox"), "the host's list goes with what it was opened over");
});

panelTest("a panel that is opened again answers once, and keeps its expanders", {}, async (page, live) => {
    const body = (block) => page.$(`#livecontrol_${block}`).children(".expand-body")[0].style.display !== "none";
    assert.deepEqual([body("camera_list"), body("lens_setting"), body("trigger_param")], [true, false, true]);
    const said = () => ["camera_list", "lens_setting"].map((block) => page.$(`#livecontrol_${block} > .switch-expand`).attr("aria-expanded"));
    assert.deepEqual(said(), ["true", "false"]);
    const bound = () => page.$._data(page.window, "events").resize.length;
    const before = bound();
    page.click("#livecontrol_camera_list > .switch-expand");
    page.click("#livecontrol_lens_setting > .switch-expand");
    const count = (name) => live[name].slots.length;
    const signals = ["open", "update", "close", "signalCallLiveControlPage", "signalPhaseAdjustWarning"];
    await page.emit(live, "close");
    assert.deepEqual(signals.map(count), signals.map(() => 0));
    assert.deepEqual(page.told(live), [["onClosed"]]);
    await page.load();
    assert.deepEqual([bound(), said()], [before, ["false", "true"]]);
    assert.deepEqual(signals.map(count), signals.map(() => 1));
    assert.deepEqual([body("camera_list"), body("lens_setting"), body("trigger_param")], [false, true, true]);
    await page.open();
    await page.emit(live, "signalPhaseAdjustWarning");
    page.told(live);
    page.click("#livecontrol_shading_calib");
    page.choose("#livecontrol_framerate", "0");
    page.window.livecontrol_obj.changePage(1);
    page.click("#livecontrol_deleteall");
    assert.deepEqual([page.told(live), page.told(page.list, /^delete/)],
        [[["setShadingOn"], ["setFrameRate", "0"], ["setLastPage", 1]], [["deleteAllDocs"]]]);
});

panelTest("each button leads where it says", {getIPAddressSettings: {IPAddress: "10.0.7.0"}}, async (page, live) => {
    const {livecontrol_obj} = page.window;
    for (const [button, ...calls] of [
        ["open_devicesetting", ["setLastPage", 1]], ["devicesetting_closebutton", ["setLastPage", 0]],
        ["io_setting", ["openPrefsDialog", "s_io"]], ["recording_setting", ["openPrefsDialog", "s_record"]],
        ["save_button", ["save"]], ["load_button", ["load"], ["updateUI"], ["checkRestoredPrefs"]],
        ["ethernet_setting", ["openPrefsEthernetSettings"]], ["search", ["findCameras", "10.0.7.0"]],
        ["discovery", ["discoverySearch"]], ["update", ["updateCameras"]],
        ["useip_cameraname", ["setUseIpCameraName", true], ["updateUI"]]
    ]) {
        livecontrol_obj.changePage(button === "open_devicesetting" ? 0 : 1);
        page.told(live);
        page.click(`#livecontrol_${button}`);
        assert.deepEqual(page.told(live), calls, button);
    }
    page.type("#livecontrol_ip3", "8");
    page.key(KEY.ENTER);
    page.type("#livecontrol_ip3", "");
    assert.equal(page.down(KEY.ENTER), false);
    assert.deepEqual(page.told(live), [["findCameras", "10.0.8.0"], ["alert", "Input IPAddress"]]);
    page.answer({translate: (text) => `<${text}>`});
    await page.load();
    assert.deepEqual(["save_button", "update"].map((id) => page.$(`#livecontrol_${id}`).text()), ["<Save setting>", "<Update>"]);
});

panelTest("Tab goes on where a page was left, and begins a new one at its first control", {}, async (page) => {
    const {changePage} = page.window.livecontrol_obj;
    const tab = (init) => {
        const taken = !page.down(KEY.TAB, init);
        return [taken, page.focused()];
    };
    page.focus("#livecontrol_recording_setting");
    changePage(1);
    assert.deepEqual(tab({shiftKey: true}), [false, page.document.body.className]);
    const [, first] = tab();
    assert.ok(page.$("#livecontrol_page_devicesetting").find(page.document.activeElement).length, first);
    page.focus("#livecontrol_adddevice");
    changePage(0);
    assert.deepEqual(tab(), [true, "livecontrol_recording_setting"]);
    assert.deepEqual(tab(), [false, "livecontrol_recording_setting"], "from there on it is the engine's");
    changePage(1);
    assert.deepEqual(tab(), [true, "livecontrol_adddevice"]);
    changePage(0);
    page.$("#livecontrol_recording_setting").hide();
    assert.notEqual(tab()[1], "livecontrol_recording_setting");
});

panelTest("drop-down boxes by key: one open at a time, disabled rows passed over", {}, async (page, live) => {
    const FIRST = "#livecontrol_shutterspeed", SECOND = "#livecontrol_framerate";
    const sumo = (box) => page.one(box).sumo;
    const open = () => [FIRST, SECOND].map((box) => Boolean(sumo(box).is_opened));
    const marked = () => sumo(FIRST).ul.find("li.sel").text().trim();
    sumo(FIRST).select[0].focus();
    page.key(KEY.SPACE);
    assert.deepEqual([open(), marked()], [[true, false], "1/125"]);
    page.key(KEY.ESCAPE);
    assert.deepEqual(open(), [false, false]);
    page.key(KEY.DOWN);
    page.key(KEY.UP);
    page.key(KEY.UP);
    assert.equal(marked(), "Dual Slope Shutter", "over the line between");
    page.letters("1/2");
    assert.equal(marked(), "1/250", "letters join");
    const {now} = page.window.Date;
    page.window.Date.now = () => now() + 1000;
    page.letters("d");
    page.window.Date.now = now;
    assert.equal(marked(), "Dual Slope Shutter", "a pause begins a new search");
    page.key(KEY.END);
    page.key(KEY.ENTER);
    assert.deepEqual([open(), page.told(live)], [[false, false], [["setShutterSpeed", "3"]]]);
    page.key(KEY.ENTER);
    page.key(KEY.ENTER); // the row in force is no change
    assert.deepEqual([open(), page.told(live)], [[false, false], []]);
    sumo(FIRST).showOpts();
    sumo(SECOND).showOpts();
    assert.deepEqual(open(), [false, true]);
    sumo(SECOND).select[0].focus();
    page.key(KEY.TAB);
    assert.deepEqual(open(), [false, false]);
    page.key(KEY.SPACE);
    page.answer({getControlStatus: {IsRecording: true}});
    await page.update();
    assert.deepEqual(open(), [false, false]);
    page.key(KEY.SPACE);
    assert.deepEqual(open(), [false, false]);
});
