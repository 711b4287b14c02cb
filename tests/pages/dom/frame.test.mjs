// The panel's life, and what the page library does for every page: lists, boxes, spinners, locks, texts, the log.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";
import {areaSettings, cameraRow, panelTest} from "../support/panel.mjs";

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

const LIST = "#livecontrol_device_item_list";
const row = (key) => `${LIST} [data-key=${key}]`;

async function openDevices(page, live) {
    page.window.livecontrol_obj.changePage(1);
    await page.rest();
    page.told(live);
    page.told(page.list);
}

panelTest("rows of devices: buttons, marks and the question before all go", {}, async (page, live) => {
    page.list.answers.getDeviceInfoList = [cameraRow(1), cameraRow(2, {found: "", shutdown: "", "sup-wifi": ""})];
    await openDevices(page, live);
    assert.deepEqual([1, 2].map((key) => page.$(row(key)).find("button:visible").get().map((node) => node.className.split(" ")[0]).join()),
        ["wifi,power,edit,delete", "edit,delete"]);
    for (const [button, call] of [["wifi", "wifiSetting"], ["power", "controlCameraPower"], ["edit", "editDoc"],
        ["delete", "deleteDoc"]]) {
        page.click(`${row(1)} .${button}`);
        assert.deepEqual(page.told(page.list), [[call, "1"]]);
        await page.rest();
    }
    page.click("#livecontrol_adddevice");
    page.list.answers.confirm = false;
    page.click("#livecontrol_deleteall");
    assert.deepEqual(page.told(page.list, /^(add|delete)/), [["addDoc"]]);
    page.click(row(2)); // not connected: only marked
    assert.deepEqual(page.told(page.list), [["selectDoc", "2"], ["updateUI"]]);
});

panelTest("keys in the list of devices, and the focus over an update", {}, async (page, live) => {
    page.list.answers.getDeviceInfoList = [1, 2,
        3].map((key) => cameraRow(key, {selected: key === 1 ? "ui-selected" : ""}));
    await openDevices(page, live);
    const at = () => page.$(page.document.activeElement).closest("[data-key]").attr("data-key");
    page.focus(row(1)).key(KEY.DOWN);
    assert.deepEqual([at(), page.told(page.list)], ["2", []]);
    page.key(KEY.SPACE);
    assert.deepEqual([page.told(live), page.told(page.list)], [[["selectDoc", "2"]], [["updateUI"]]]);
    page.focus(row(1)).key(KEY.SPACE);
    assert.deepEqual(page.told(live), [["unselectDoc", "1"]]);
    page.key(KEY.END);
    page.key(KEY.ENTER);
    page.key(KEY.A, {ctrlKey: true});
    assert.deepEqual([at(), page.told(page.list)], ["3", [["updateUI"], ["setSelectDoc", "3"], ["selectAllDocs"]]]);
    page.click(row(2), {ctrlKey: true});
    assert.deepEqual(page.told(live), [["selectDoc", "2"]]);
    await page.rest();
    page.focus(`${row(3)} .edit`);
    await page.update();
    assert.deepEqual([page.document.activeElement.className.split(" ")[0], at()], ["edit", "3"]);
    assert.deepEqual(page.$(`${LIST} > [tabindex=0]`).attr("data-key"), "3");
    page.told(page.list);
    page.key(KEY.SPACE); // the button's own
    assert.deepEqual(page.told(page.list), []);
    page.answer({getControlStatus: {IsRecording: true}});
    await page.update();
    page.focus(row(1)).key(KEY.SPACE);
    page.click(row(1));
    assert.deepEqual([page.told(live), page.told(page.list)], [[], []]);
});

panelTest("the address to search: only a right one, and never over what is being typed", {}, async (page, live) => {
    const SEARCH = "#livecontrol_search";
    await openDevices(page, live);
    page.type("#livecontrol_ip2", "300");
    assert.ok(page.locked(SEARCH));
    await page.update();
    assert.deepEqual([page.val("#livecontrol_ip2"), page.locked(SEARCH)], ["300", true]);
    page.type("#livecontrol_ip2", "20");
    page.click(SEARCH);
    page.click("#livecontrol_discovery");
    page.check("#livecontrol_useip_cameraname");
    assert.deepEqual(page.told(live), [["findCameras", "192.20.0.0"], ["discoverySearch"], ["setUseIpCameraName", true],
        ["updateUI"]]);
    page.one("#livecontrol_ip2").blur();
    await page.update();
    assert.equal(page.val("#livecontrol_ip2"), "168");
    page.click("#livecontrol_load_button");
    assert.deepEqual(page.told(live), [["load"], ["updateUI"], ["checkRestoredPrefs"]]);
    page.click("#livecontrol_devicesetting_closebutton");
    assert.deepEqual(page.told(live, /^setLastPage/), [["setLastPage", 0]]);
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
