// The panel's life, and what the page library does for every page: lists, boxes, spinners, locks, texts, the log.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";
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
});

panelTest("a panel that is opened again answers once, and keeps its expanders", {}, async (page, live) => {
    const body = (block) => page.$(`#livecontrol_${block}`).children(".expand-body")[0].style.display !== "none";
    assert.deepEqual([body("camera_list"), body("lens_setting"), body("trigger_param")], [true, false, true]);
    page.click("#livecontrol_camera_list > .switch-expand");
    page.click("#livecontrol_lens_setting > .switch-expand");
    const count = (name) => live[name].slots.length;
    const signals = ["open", "update", "close", "signalCallLiveControlPage", "signalPhaseAdjustWarning"];
    await page.emit(live, "close");
    assert.deepEqual(signals.map(count), signals.map(() => 0));
    assert.deepEqual(page.told(live), [["onClosed"]]);
    await page.load();
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

const dialogTest = (title, body) => pageTest(title, "custominfo.html", () => ({
    CustomInfoDialog: recorder({translate: (text) => `<${text}>`, getStyle: "light", getDeviceInfo: "",
        getCurrentDeviceRecord: 0, getCustomInfo: "[]"})
}), async (page, {CustomInfoDialog}) => {
    page.add = (html) => page.$("body").append(html);
    page.lib = page.window.zel4func;
    await body(page, CustomInfoDialog);
});

dialogTest("a spinner: keys, wheel of limits, a wrong text, an outside value, a lock", async (page) => {
    const fired = [];
    const spun = [];
    page.add("<input id=s class=spinner><label for=s>Size</label>");
    page.$("#s").spinnerRealtimeFire({min: 10, max: 50, step: 4, fire: (_, ui) => { fired.push(ui.value); },
        spin: (_, ui) => { spun.push(ui.value); return ui.value < 40; }});
    const set = (value) => page.$("#s").spinnerRealtimeFire("value", value);
    set(20);
    for (const [key, shown] of [[KEY.UP, "22"], [KEY.DOWN, "18"], [33, "20"], [KEY.DOWN, "18"]]) { // page up is refused
        page.focus("#s").key(key);
        assert.equal(page.val("#s"), shown, String(key));
        assert.equal(fired.splice(0)[0], Number(shown));
        set(20);
    }
    assert.deepEqual(spun, [22, 18, 50, 18]);
    page.type("#s", "99");
    page.key(KEY.ENTER);
    page.one("#s").blur();
    assert.deepEqual([fired.splice(0), page.val("#s")], [[50], "50"]);
    page.type("#s", "4.5");
    page.one("#s").blur();
    assert.deepEqual([fired, page.val("#s"), page.texts(".zel-hint")],
        [[], "50", ["<Whole numbers from 10 to 50 only>"]]);
    page.type("#s", "34");
    set(42); // lost by what the user enters
    page.key(KEY.ENTER);
    page.one("#s").blur();
    assert.deepEqual([fired.splice(0), page.val("#s")], [[34], "34"]);
    set(30);
    page.type("#s", "");
    page.down(KEY.DOWN);
    assert.equal(page.val("#s"), "26", "from the value in force");
    set(42); // from outside, while the key is held
    assert.equal(page.val("#s"), "26");
    page.up(KEY.DOWN);
    assert.deepEqual([fired.splice(0), page.val("#s"), page.$(".zel-hint").length], [[26], "26", 0]);
    page.type("#s", "12");
    set(30);
    page.lib.disable("#s", true);
    page.one("#s").blur();
    assert.deepEqual([fired, page.val("#s"), page.$(".zel-spinner-up").prop("disabled"),
        page.$("label[for=s]").hasClass("disabled")],
    [[], "30", true, true]);
    page.click(".zel-spinner-up");
    page.lib.disable("#s", false);
    page.click(".zel-spinner-up");
    assert.deepEqual([fired, page.$("#s").attr("aria-label")], [[34], "Size"]);
});

dialogTest("a spinner that waits makes a row of clicks one edit; one that counts tells steps", async (page) => {
    const told = [];
    page.add("<input id=w class=spinner><input id=t class=spinner>");
    page.$("#w").spinnerStopFire({min: 0, max: 9, fire: (_, ui) => { told.push(ui.value); }});
    page.$("#w").spinnerStopFire("value", 1);
    page.click("#w + .zel-spinner-buttons .zel-spinner-up");
    page.click("#w + .zel-spinner-buttons .zel-spinner-up");
    assert.deepEqual(told, []);
    page.one("#w").blur();
    assert.deepEqual(told.splice(0), [3]);
    page.$("#t").spinnerTick({min: 0, max: 100, step: 10, timeout: 30, tickup: (_, ui) => { told.push(ui.value); },
        tickdown: (_, ui) => { told.push(-ui.value); return false; }});
    page.$("#t").spinnerTick("value", 50);
    page.focus("#t").down(KEY.UP);
    page.down(KEY.UP);
    page.down(KEY.UP);
    assert.deepEqual(told.splice(0), [1], "the first at once");
    await page.rest(60);
    assert.deepEqual(told.splice(0), [2], "the others together");
    page.up(KEY.UP);
    await page.rest(60);
    page.enter("#t", "84"); // nearer to no step
    assert.deepEqual([told.splice(0), page.val("#t")], [[], "80"]);
    page.focus("#t").key(KEY.DOWN);
    assert.deepEqual([told, page.val("#t")], [[-1], "80"]);
});

dialogTest("disabling by kind, and back to where the Tab key found it", async (page) => {
    page.add(`<a id=a href="#" tabindex="3">x</a><a id=b href="#">x</a><span id=c>x</span><button id=d>x</button>
        <select id=e><option>1</select><div id=f></div><label for=d id=l>x</label>`);
    page.$("#f").slider();
    page.lib.initSumoSelect("#e");
    page.lib.disable("#a, #b, #c, #d, #e, #f", true);
    page.lib.disable("#a, #b", true); // twice is once
    const tab = (selector) => page.$(selector).attr("tabindex");
    assert.deepEqual(["#a", "#b", "#c"].map(tab), ["-1", "-1", undefined]);
    assert.deepEqual([page.$("#f").slider("option", "disabled"), tab("#f .ui-slider-handle"), page.one("#e").disabled,
        page.one("#l").className],
    [true, "-1", true, "disabled"]);
    let clicks = 0;
    page.$("#b").on("click", () => { clicks += 1; });
    page.click("#b");
    page.lib.disable("#a, #b, #c, #d, #e, #f", false);
    page.click("#b");
    assert.deepEqual([["#a", "#b", "#c"].map(tab), clicks, page.one("#d").disabled, page.$("#a").attr("aria-disabled")],
        [["3", undefined, undefined], 1, false, "false"]);
});

dialogTest("rules: any true flag disables, a failed status changes nothing, an item of its maker's stays", async (page) => {
    page.add("<button id=a></button><button id=b></button><select id=s><option value=1><option value=2></select>");
    page.lib.initSumoSelect("#s");
    page.lib.disableItemSumoSelect("#s", 2);
    const calls = [];
    const rules = {ONE: {disabled: ["#a", "option"]},
        "TWO-WORDS": {disabled: ["#a", "#b"], func: (flag) => calls.push(flag)}};
    const states = (status) => {
        page.lib.setDisable(recorder({getControlStatus: status}), rules);
        return ["#a", "#b", "#s option[value=1]", "#s option[value=2]"].map((selector) => page.one(selector).disabled);
    };
    assert.deepEqual(states({IsOne: true, IsTwoWords: false}), [true, false, true, true]);
    assert.deepEqual(states({IsOne: false, IsTwoWords: true}), [true, true, false, true]);
    assert.deepEqual(states(""), [true, true, false, true]);
    assert.deepEqual([states({IsOne: false, IsTwoWords: false}), calls],
        [[false, false, false, true], [false, true, false]]);
    page.lib.disable("#s option[value=2]", false);
    assert.deepEqual(states({IsOne: false, IsTwoWords: false}), [false, false, false, false]);
});

dialogTest("texts are translated once, markup in them stays text, the style follows the host", async (page, object) => {
    page.add("<p id=p class=localize title=\"tip\"> a <b class=localize>b</b><i>c</i></p><input id=i type=button class=localize value=v>");
    page.lib.localize(object, "#p, #i");
    page.lib.localize(object, "#p, #i");
    assert.deepEqual([page.one("#p").textContent, page.one("#p").title, page.val("#i")], [" <a> <b>c", "<tip>", "<v>"]);
    assert.ok(page.$("html").is(".style-light:not(.style-dark)"));
    page.lib.applyStyle("dark");
    assert.deepEqual([page.$("#zel_style").length, page.$("#zel_style").attr("href")], [1, "qrc:/ui-dark.css"]);
});

dialogTest("a script error is listed, and logged once", async (page, object) => {
    page.told(object, /./);
    page.window.onerror("boom", "qrc:/x.js", 3, 1, null);
    page.window.onerror("boom", "qrc:/x.js", 3, 1, null);
    assert.deepEqual(page.told(object, /^userOperationErrorLog/), [["userOperationErrorLog", "boom (qrc:/x.js:3)"]]);
    assert.equal(page.window.zel_errors.length, 2);
    for (let i = 0; i < 200; i += 1) {
        page.window.onerror(`later ${i}`, "qrc:/x.js", 3, 1, null);
    }
    assert.deepEqual(Array.from(page.window.zel_errors.slice(-2), (error) => error.message), ["later 198", "later 199"]);
    assert.equal(page.window.zel_errors.length, 200);
    page.told(object, /./);
    page.window.zel4func.pageMediator = () => null; // the page has not named its object so far
    page.window.onerror("early", "qrc:/x.js", 4, 1, null);
    assert.deepEqual(page.told(object, /^userOperationErrorLog/), [["userOperationErrorLog", "early (qrc:/x.js:4)"]]);
});

dialogTest("the host's box goes with the next press or Escape, and then no more", async (page, object) => {
    page.lib.appendDummy();
    page.focus("#item_name").key(KEY.A);
    assert.deepEqual(page.told(object, /^hide/), []);
    page.key(KEY.ESCAPE);
    page.click("#item_name");
    page.lib.appendDummy();
    page.click("#item_name");
    assert.deepEqual(page.told(object, /^hide/), [["hideSelectBox"], ["hideSelectBox"]]);
});
