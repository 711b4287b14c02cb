// Auto exposure, image trigger and variable channels: limits before values, what is sent, and the way out.
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
    page.click(`${AE}apply`);
    assert.deepEqual(sent(), {...plain, AutoExposureOn: false, AutoExposureRange: 90, AutoExposureMaxTime: 0});
    page.answer({getAutoExposureSettings: ""});
    await page.update();
    assert.deepEqual([page.locked(`${AE}ok`), page.locked(`${AE}apply`), page.locked(`${AE}cancel`)],
        [true, true, false]);
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

const SIZES = [{Value: "0", Width: "1280", Height: "1024", Resolution: "1280 x 1024"},
    {Value: "1", Width: "640", Height: "512",
        Resolution: "640 x 512"}];
const LIMITS = {WidthFrameMax: 1280, WidthMax: 1280, WidthMin: 64, WidthStep: "32", HeightFrameMax: 1024, HeightMax: 1024,
    HeightMin: 32, HeightStep: "16", PosXStep: "32", PosYStep: "16", PosXFree: true, PosYFree: true};
const V = "#livecontrol_variable_";

/** A plug-in that keeps the rectangle as it is sent. */
function variable(more = {}) {
    let held = null;
    return {
        prepareVariableSetting: true, getVariableRestriction: LIMITS, getMaxResolution: {Width: "1280", Height: "1024"},
        getVariableResolutionList: {VariableResolutionList: SIZES, MinValue: "0", MaxPresetWidth: "1280",
            MaxPresetHeight: "1024"},
        getVariableFramerateList: {VariableFramerateList: [{Value: "0", FrameRate: "60"},
            {Value: "1", FrameRate: "125"}]},
        sendSelectArea: (text) => { held = JSON.parse(text); }, recvSelectArea: () => held || area(0, 0, 0, 0),
        resetSelectArea: () => { held = null; }, unsetSelectArea: () => held === null, isSwapResolution: false,
        convertUserviewRect: (X, Y, Width, Height) => area(X, Y, Width, Height),
        correctVariableResolution: (rate, width, height, max, isHeight) => isHeight ? height : width,
        validateFrameRateOnManual: true, getVariableInfo: {ChannelInfo: "3: free", Registered: false},
        isVariableChannelStored: true, confirm: true, ...more
    };
}

async function openVariable(page, live, channel = 3) {
    await page.emit(live, "signalSetVariableRegist", channel);
    await page.emit(live, "signalCallLiveControlPage", 2);
    page.window.livecontrol_obj.variableSelectChannel = channel;
    await page.update();
    page.told(live);
}

panelTest("the page of a channel opens if the host lets it, and begins anew when the panel was closed on it", variable(),
    async (page, live) => {
        const {livecontrol_obj} = page.window;
        for (const on of [true, false]) {
            page.answer({getLastPage: 2, getControlStatus: {IsVariableSetting: on}});
            await page.open();
            assert.deepEqual(page.told(live, /^change/), on ? [["changeVariableResolutionInputType", true]] : []);
        }
        livecontrol_obj.changePage(0);
        await page.emit(live, "signalCallLiveControlPage", 1);
        assert.equal(livecontrol_obj.pageNo, 0, "no other page can be asked for");
        page.answer({prepareVariableSetting: false});
        await page.emit(live, "signalCallLiveControlPage", 2);
        assert.equal(livecontrol_obj.pageNo, 0);
    });

const stored = (page, live) => page.told(live, /^setVariableChannelInfo/).map((call) => call.slice(1));
const OK = "#livecontrol_variablesetting_okbutton", CANCEL = "#livecontrol_variablesetting_cancelbutton";

panelTest("a channel is stored as the page shows it, and the page goes when it was", variable(), async (page, live) => {
    await openVariable(page, live);
    assert.deepEqual(page.texts(`${V}channel_regist button`), ["3: free"]);
    page.choose(`${V}resolution`, "1");
    page.choose(`${V}framerate`, "1");
    page.check("#livecontrol_apply_same_camera");
    page.answer({isVariableChannelStored: false});
    page.click(OK);
    assert.deepEqual(stored(page, live), [[3, 1, 1280, 1024, 0, 0, true]]);
    assert.ok(page.shown(OK));
    page.answer({isVariableChannelStored: true});
    page.choose(`${V}resolution`, "1");
    page.click(OK);
    assert.deepEqual(page.told(live, /^(set(Variable|Last)|finalize|cancel)/),
        [["setVariableChannelInfo", 3, 1, 640, 512, 320, 256, true],
            ["setLastPage", 0], ["finalizeVariableSetting"]]);
    await openVariable(page, live);
    assert.ok(!page.$("#livecontrol_apply_same_camera").prop("checked"));
    page.click(CANCEL);
    assert.deepEqual(page.told(live, /^(set(Variable|Last)|finalize|cancel)/),
        [["cancelVariableSetting"], ["setLastPage", 0], ["finalizeVariableSetting"]]);
});

panelTest("with resolution priority the size comes first and takes its fastest rate", variable(), async (page, live) => {
    await openVariable(page, live);
    page.check("#variable-resolution");
    assert.ok(page.$("#livecontrol_variable_blocks").children().first().is(".varblock-resolution"));
    assert.equal(page.val(`${V}framerate`), "1");
    page.choose(`${V}framerate`, "0");
    assert.equal(page.val(`${V}framerate`), "0");
    page.choose(`${V}resolution`, "1");
    assert.equal(page.val(`${V}framerate`), "1");
    page.click(OK);
    assert.deepEqual(stored(page, live), [[3, 1, 640, 512, 320, 256, false]]);
});

panelTest("a size by hand is limited before it is sent, and centered where that is wished", variable(), async (page, live) => {
    await openVariable(page, live);
    page.check("#aspect-free");
    assert.deepEqual(page.told(live, /^changeVariable/), [["changeVariableResolutionInputType", false]]);
    assert.ok(page.shown(`${V}resolution_width`) && !page.shown(".resolution-preset"));
    const shown = () => ["resolution_width", "resolution_height", "pos_x",
        "pos_y"].map((name) => Number(page.val(V + name)));
    page.enter(`${V}resolution_width`, "650");
    assert.deepEqual([shown(), areas(page, live).pop()], [[640, 1024, 0, 0], area(0, 0, 640, 1024)]);
    page.enter(`${V}pos_x`, "700");
    assert.deepEqual([shown(), areas(page, live).pop()], [[640, 1024, 640, 0], area(640, 0, 640, 1024)]);
    page.check(`${V}center`);
    assert.deepEqual([shown(), page.locked(`${V}pos_x`), areas(page, live).pop()],
        [[640, 1024, 320, 0], true, area(320, 0, 640, 1024)]);
    page.enter(`${V}resolution_width`, "320");
    assert.deepEqual([shown(), areas(page, live).pop()], [[320, 1024, 480, 0], area(480, 0, 320, 1024)]);
    page.answer({getVariableRestriction: {...LIMITS, WidthMax: 640, WidthFrameMax: 640}}); // of a fast rate
    page.enter(`${V}resolution_height`, "512");
    assert.deepEqual(areas(page, live).pop(), area(480, 256, 320, 512), "the center is not limited");
    page.answer({getVariableRestriction: LIMITS});
    page.check("#aspect-preset");
    assert.deepEqual(shown().slice(0, 2), [1280, 1024]);
    page.click(CANCEL);
    assert.equal(page.window.livecontrol_obj.variableOpticalCenter, false, "of this page alone");
    assert.equal(page.window.livecontrol_obj.variableResolutionPreset, true);
});

panelTest("what a rate does not allow by hand is told and goes back", variable({validateFrameRateOnManual: (rate) => rate === 0}),
    async (page, live) => {
        await openVariable(page, live);
        page.choose(`${V}framerate`, "1");
        page.check("#aspect-free");
        assert.deepEqual(page.told(live, /^(alert|change)/).map(([name]) => name), ["alert"]);
        assert.ok(page.$("#aspect-preset").prop("checked") && page.shown(".resolution-preset"));
        page.choose(`${V}framerate`, "0");
        page.check("#aspect-free");
        assert.deepEqual(page.told(live, /^(alert|change)/).map(([name]) => name), ["changeVariableResolutionInputType"]);
        page.choose(`${V}framerate`, "1");
        assert.deepEqual([page.told(live, /^alert/).length, page.val(`${V}framerate`)], [1, "0"]);
        page.click(OK);
        assert.equal(stored(page, live)[0][1], 0);
    });

panelTest("what can't be read can't be stored", variable(), async (page, live) => {
    await openVariable(page, live);
    for (const getter of ["getVariableFramerateList", "getVariableRestriction", "getVariableResolutionList"]) {
        page.answer({[getter]: ""});
        await page.update();
        assert.ok(page.locked(OK), getter);
        page.answer({[getter]: variable()[getter]});
        await page.update();
        await page.update();
        assert.ok(!page.locked(OK), getter);
    }
});

panelTest("a camera that fixes an axis, and a channel in use", variable({getVariableRestriction: {...LIMITS, PosXFree: false}}),
    async (page, live) => {
        await openVariable(page, live);
        assert.deepEqual([page.locked(`${V}pos_x`), page.locked(`${V}pos_y`), page.locked(`${V}center`)],
            [true, false, false]);
        assert.ok(page.locked(`${V}channel_delete`));
        page.answer({getVariableInfo: {ChannelInfo: "3: 640 x 512", Registered: true}, confirm: false});
        await page.update();
        page.click(`${V}channel_delete`);
        assert.deepEqual(page.told(live, /^erase/), []);
        page.answer({confirm: true});
        page.click(`${V}channel_delete`);
        assert.deepEqual(page.told(live, /^erase/), [["eraseVariableChannel", 3]]);
        page.click(`${V}channel_regist button`);
        assert.equal(page.told(page.window.main)[0].pop(), 3);
    });
