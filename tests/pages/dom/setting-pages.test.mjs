// Auto exposure and image trigger: limits before values, what is sent, and the way out.
import assert from "node:assert/strict";
import {KEY} from "../support/page.mjs";
import {areaSettings, panelTest} from "../support/panel.mjs";

const AE = "#livecontrol_auto_exposure_", HW = "#livecontrol_hwimage_trigger_";
const TIMES = {AutoExposureMaxTimes: [{Value: "0", Text: "1/60"}, {Value: "1", Text: "1/125"}], SelectValue: "1"};
const exposure = (more = {}) => areaSettings("AutoExposure", {AutoExposureMaxTime: TIMES, ...more});
const imageTrigger = (more = {}) => areaSettings("HWImageTrigger", {HWImageTriggerStatus: "Waiting", ...more});
const boxes = (page, prefix) => ["area_w", "area_h", "pos_x", "pos_y"].map((name) => Number(page.val(prefix + name)));
const areas = (page, live) => page.told(live, /^sendSelectArea/).map(([, area]) => JSON.parse(area));
const area = (X, Y, Width, Height) => ({X, Y, Width, Height});

async function openExposure(page) {
    page.choose("#livecontrol_shutterspeed", "-2");
    await page.rest();
}

const EXPOSURE = {getAutoExposureSettings: exposure(), hasAutoExposureUpperLimit: true, getAutoExposureUpperLimit: 200};

panelTest("auto exposure is entered before its page shows, and left by OK and Cancel after it", EXPOSURE, async (page, live) => {
    for (const [button, calls] of [["cancel", ["setLastPage", "autoExposureEnd"]],
        ["ok", ["setAutoExposure", "setLastPage", "autoExposureEnd"]]]) {
        await openExposure(page);
        assert.deepEqual(page.told(live).map(([name]) => name), ["autoExposureStart", "setLastPage", "sendSelectArea"]);
        assert.ok(page.shown(`${AE}area_w`));
        page.click(AE + button);
        assert.deepEqual(page.told(live).map(([name]) => name), calls);
        assert.ok(!page.shown(`${AE}area_w`));
        await page.update();
        page.told(live);
    }
});

panelTest("Apply sends what stands on the page of auto exposure", EXPOSURE, async (page, live) => {
    const sent = () => JSON.parse(page.told(live, /^setAutoExposure$/)[0][1]);
    const plain = {AutoExposureOn: true, AutoExposureArea: {Width: 640, Height: 512}, AutoExposurePos: {X: 320, Y: 256},
        AutoExposureValue: 100, AutoExposureRange: 20, AutoExposureMaxTime: 1, ShowHistgram: false};
    await openExposure(page);
    page.click(`${AE}apply`);
    assert.deepEqual(sent(), plain);
    page.answer({getAutoExposureSettings: exposure({AutoExposureMaxTime: {...TIMES, SelectValue: "9"}})});
    await page.update();
    page.click(`${AE}apply`);
    assert.deepEqual(sent(), {...plain, AutoExposureMaxTime: -1}, "no row: the camera keeps its own");
    page.choose(`${AE}max_time`, "0");
    page.enter(`${AE}range`, "90");
    page.check(`${AE}on`);
    assert.deepEqual(page.told(live, /Switch$/), [["setAutoExposureSwitch", false]]);
    page.click(`${AE}apply`);
    assert.deepEqual(sent(), {...plain, AutoExposureOn: false, AutoExposureRange: 90, AutoExposureMaxTime: 0});
    page.answer({getAutoExposureSettings: ""});
    await page.update();
    assert.deepEqual([page.locked(`${AE}ok`), page.locked(`${AE}apply`), page.locked(`${AE}cancel`)],
        [true, true, false]);
    assert.equal(page.$(`${AE}max_time`).children().length, 0);
    page.answer({getAutoExposureSettings: exposure({AutoExposureOn: false,
        AutoExposureMaxTime: {AutoExposureMaxTimes: [], SelectValue: "1"}})});
    await page.update();
    assert.deepEqual([page.one(`${AE}on`).checked, page.$(`${AE}max_time option:selected`).text(), page.locked(`${AE}ok`)],
        [false, "(None)", false]);
});

panelTest("a page that the camera refused stays with what was typed, until it is taken or left", {
    ...EXPOSURE, getHWImageTriggerSettings: imageTrigger(), isPageTaken: false
}, async (page, live) => {
    await openExposure(page);
    page.enter(`${AE}value`, "150");
    page.enter(`${AE}range`, "40");
    page.choose(`${AE}max_time`, "0");
    const typed = () => ["value", "range", "max_time"].map((name) => page.val(AE + name));
    live.answers.setAutoExposure = () => page.emit(live, "update");
    page.click(`${AE}ok`);
    await page.update();
    assert.ok(page.shown(`${AE}area_w`));
    assert.deepEqual(typed(), ["150", "40", "0"]);
    page.enter(`${AE}range`, "255");
    assert.deepEqual(typed(), ["150", "50", "0"], "within what the target leaves");
    page.enter(`${AE}range`, "40");
    page.answer({isPageTaken: true});
    page.click(`${AE}apply`);
    await page.update();
    assert.deepEqual(typed(), ["100", "20", "1"], "what the camera took");
    page.click(`${AE}ok`);
    assert.ok(!page.shown(`${AE}area_w`));

    page.answer({isPageTaken: false});
    page.choose("#livecontrol_trigger", "-1");
    await page.rest();
    page.enter(`${HW}value`, "150");
    page.click(`${HW}ok`);
    await page.update();
    assert.deepEqual([page.shown(`${HW}area_w`), page.val(`${HW}value`)], [true, "150"]);
    page.click(`${HW}cancel`);
    page.choose("#livecontrol_trigger", "-1");
    await page.rest();
    assert.equal(page.val(`${HW}value`), "100");
});

panelTest("in Ready a setting page says why it is locked, and can be left", EXPOSURE, async (page) => {
    await openExposure(page);
    for (const ready of [true, false]) {
        page.answer({getControlStatus: {IsReady: ready}});
        await page.update();
        assert.deepEqual(["value", "area_w", "on", "max_time", "ok", "apply", "cancel"]
            .map((name) => page.locked(AE + name)), [...Array(6).fill(ready), false]);
        assert.equal(page.shown("#livecontrol_page_auto_exposure .page-lock"), ready);
    }
});

panelTest("target and range share the camera's limit", EXPOSURE, async (page) => {
    await openExposure(page);
    page.enter(`${AE}value`, "255");
    assert.equal(page.val(`${AE}value`), "180");
    page.enter(`${AE}value`, "150");
    page.enter(`${AE}range`, "255");
    assert.equal(page.val(`${AE}range`), "50");
    page.enter(`${AE}range`, "10");
    page.enter(`${AE}value`, "255");
    assert.equal(page.val(`${AE}value`), "190");
    page.answer({hasAutoExposureUpperLimit: false, getAutoExposureSettings: exposure({
        AutoExposureValue: {Value: 100, Max: 240, Step: 4}, AutoExposureRange: {Value: 20, Max: 240, Step: 1}})});
    await page.update();
    page.enter(`${AE}value`, "253");
    assert.equal(page.val(`${AE}value`), "240");
    page.enter(`${AE}value`, "77");
    assert.equal(page.val(`${AE}value`), "80", "raised to its step");
});

panelTest("the rectangle: steps, limits, drags, and a field in which the user types", EXPOSURE, async (page, live) => {
    await openExposure(page);
    assert.deepEqual(areas(page, live), [area(320, 256, 640, 512)]);
    for (const [name, typed, sent] of [["area_w", "650", area(320, 256, 640, 512)],
        ["area_w", "2000", area(320, 256, 960, 512)],
        ["pos_x", "9999", area(320, 256, 960, 512)], ["area_h", "1", area(320, 256, 960, 32)],
        ["pos_y", "9", area(320, 16, 960, 32)]]) {
        page.enter(AE + name, typed);
        assert.deepEqual(areas(page, live), [sent], `${name} ${typed}`);
    }
    page.answer({recvSelectArea: area(1216, 992, 64, 32)}); // dragged
    page.window.livecontrol_obj.recvRectArea();
    assert.deepEqual(boxes(page, AE), [64, 32, 1216, 992]);
    page.focus(`${AE}pos_x`).down(KEY.DOWN);
    assert.deepEqual(areas(page, live), [area(1184, 992, 64, 32)], "while the key is held");
    page.up(KEY.DOWN);
    page.told(live);
    page.type(`${AE}area_w`, "6");
    page.answer({getAutoExposureSettings: exposure({AutoExposureArea: {...exposure().AutoExposureArea, Width: 320},
        AutoExposurePos: {X: 960, Y: 256, XStep: 32, YStep: 16}})});
    await page.update();
    assert.deepEqual([areas(page, live), page.val(`${AE}area_w`)], [[area(960, 256, 320, 512)], "6"]);
    page.key(KEY.ESCAPE);
    page.one(`${AE}area_w`).blur();
    assert.deepEqual([boxes(page, AE), areas(page, live)], [[320, 512, 960, 256], []]);
});

panelTest("another camera's limits come before its values", EXPOSURE, async (page) => {
    await openExposure(page);
    for (const [Width, WidthMax, X] of [[1920, 2048, 128], [320, 640, 320], [2048, 2048, 0]]) {
        page.answer({getAutoExposureSettings: exposure({
            AutoExposureArea: {...exposure().AutoExposureArea, Width, WidthMax, WidthFrameMax: WidthMax},
            AutoExposurePos: {X, Y: 0, XStep: 32, YStep: 16}})});
        await page.update();
        assert.deepEqual(boxes(page, AE).filter((_, i) => i % 2 === 0), [Width, X]);
        assert.equal(page.$(`${AE}area_w`).attr("aria-valuemax"), String(WidthMax - X));
    }
});

panelTest("the histogram is told of only while its block shows", EXPOSURE, async (page, live) => {
    await openExposure(page);
    page.told(live);
    const order = [];
    page.answer({setHistgramVisible: (on) => { order.push([on, page.shown(`${AE}histogram_div`)]); }});
    page.check(`${AE}histogram_on`);
    page.check(`${AE}histogram_on`);
    assert.deepEqual(order, [[true, true], [false, true]]);
    assert.ok(!page.shown(`${AE}histogram_div`));
    page.answer({getAutoExposureSettings: exposure({ShowHistgram: true})});
    await page.update();
    assert.ok(page.shown(`${AE}histogram_div`));
});

panelTest("the page of the image trigger shows and sends what is its own", {
    getHWImageTriggerSettings: imageTrigger({ShowHistgram: true, HWImageTriggerOn: false,
        HWImageTriggerRange: {Value: 20, Max: 99, Step: 5}})}, async (page, live) => {
    page.choose("#livecontrol_trigger", "-1");
    assert.deepEqual([areas(page, live), boxes(page, HW)], [[area(320, 256, 640, 512)], [640, 512, 320, 256]]);
    assert.deepEqual([page.one(`${HW}on`).checked, page.shown(`${HW}histogram_div`), page.one(`${HW}histogram_on`).checked],
        [false, true, true]);
    for (const [name, typed, shown] of [["value", "300", "255"], ["range", "300", "99"], ["range", "12", "15"]]) {
        page.enter(HW + name, typed);
        assert.equal(page.val(HW + name), shown, `${name} ${typed}`);
    }
    page.check(`${HW}histogram_on`);
    assert.deepEqual(page.told(live), [["setHistgramVisible", false]]);
    page.enter(`${HW}area_h`, "31");
    page.enter(`${HW}pos_x`, "70");
    assert.deepEqual(areas(page, live), [area(320, 256, 640, 32), area(64, 256, 640, 32)]);
    page.answer({getHWImageTriggerSettings: ""});
    await page.update();
    assert.deepEqual(["ok", "apply", "cancel"].map((name) => page.locked(HW + name)), [true, true, false]);
    page.answer({getHWImageTriggerSettings: imageTrigger()});
    await page.update();
    page.told(live);
    page.click(`${HW}ok`);
    assert.deepEqual(page.told(live).map(([name]) => name), ["setHWImageTrigger", "setLastPage", "hWImageTriggerEnd"]);
    page.choose("#livecontrol_trigger", "-1");
    page.told(live);
    page.click(`${HW}cancel`);
    assert.deepEqual(page.told(live), [["setLastPage", 0], ["hWImageTriggerEnd"]]);
});

panelTest("the image trigger: its status is followed while it is on, and no longer", {
    getHWImageTriggerSettings: imageTrigger(), getHWImageTriggerStatus: "Triggered"
}, async (page, live) => {
    const asked = async () => {
        page.told(live);
        await page.rest(260);
        return live.log.splice(0).filter(([name]) => name === "getHWImageTriggerStatus").length;
    };
    const status = () => page.$(`${HW}status`).text();
    page.choose("#livecontrol_trigger", "-1");
    assert.deepEqual(page.told(live).map(([name]) => name), ["hWImageTriggerStart", "setLastPage", "sendSelectArea"]);
    assert.equal(status(), "Waiting");
    assert.ok(await asked() > 0);
    assert.deepEqual([status(), page.$(`${HW}status`).hasClass("triggered")], ["Triggered", true]);
    page.answer({getHWImageTriggerStatus: "Waiting"});
    page.check(`${HW}on`);
    assert.deepEqual(page.told(live, /^setImageTrigger/), [["setImageTriggerObserver", false]]);
    assert.deepEqual([status(), page.$(`${HW}status`).hasClass("triggered"), await asked()], ["Waiting", false, 0]);
    page.check(`${HW}on`);
    page.click(`${HW}apply`);
    assert.deepEqual(JSON.parse(page.told(live, /^setHWImageTrigger$/)[0][1]), {HWImageTriggerOn: true,
        HWImageTriggerArea: {Width: 640, Height: 512}, HWImageTriggerPos: {X: 320, Y: 256}, HWImageTriggerValue: 100,
        HWImageTriggerRange: 20, ShowHistgram: false});
    page.answer({recvSelectArea: area(64, 32, 128, 64)}); // dragged on the image
    page.window.livecontrol_obj.recvRectArea();
    assert.deepEqual(boxes(page, HW), [128, 64, 64, 32]);
    page.answer({getHWImageTriggerStatus: ""});
    await page.rest(260);
    assert.equal(await asked(), 0, "the camera has gone, of which it was told once");
    page.answer({getHWImageTriggerStatus: "Waiting"});
    await page.update();
    await page.emit(live, "close");
    assert.equal(await asked(), 0);
});
