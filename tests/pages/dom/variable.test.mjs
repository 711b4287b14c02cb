// The page of a variable channel: size, place and rate, what the limits put back, and what is stored.
import assert from "node:assert/strict";
import {KEY} from "../support/page.mjs";
import {panelTest} from "../support/panel.mjs";

const areas = (page, live) => page.told(live, /^sendSelectArea/).map(([, area]) => JSON.parse(area));
const area = (X, Y, Width, Height) => ({X, Y, Width, Height});
const SIZES = [{Value: "0", Width: "1280", Height: "1024", Resolution: "1280 x 1024"},
    {Value: "1", Width: "640", Height: "512",
        Resolution: "640 x 512"}];
const LIMITS = {WidthFrameMax: 1280, WidthMax: 1280, WidthMin: 64, WidthStep: "32", HeightFrameMax: 1024, HeightMax: 1024,
    HeightMin: 32, HeightStep: "16", PosXStep: "32", PosYStep: "16", PosXFree: true, PosYFree: true};
const V = "#livecontrol_variable_";
const boxesOf = (page) => ["resolution_width", "resolution_height", "pos_x", "pos_y"].map((name) => Number(page.val(V + name)));

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
    await openVariable(page, live);
    page.check("#variable-resolution");
    page.choose(`${V}resolution`, "1");
    page.check("#variable-framerate"); // begins anew
    assert.ok(page.$("#livecontrol_variable_blocks").children().first().is(".varblock-framerate"));
    assert.deepEqual(["framerate", "resolution", "resolution_width"].map((name) => page.val(V + name)), ["0", "0", "1280"]);
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
    page.window.livecontrol_obj.recvRectArea();
    assert.deepEqual(page.told(live, /^(send|update)/), [["updateVariableLimit", true, LIMITS]], "what was put back is there already");
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
        assert.deepEqual(page.told(live, /^(alert|change)/), [["alert",
            "There is no manually configurable resolution for the currently selected shooting speed."]]);
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
        assert.deepEqual(page.told(live, /^(confirm|erase)/), [["confirm", "Delete variable channel?"]]);
        page.answer({confirm: true});
        page.click(`${V}channel_delete`);
        assert.deepEqual(page.told(live, /^erase/), [["eraseVariableChannel", 3]]);
        page.click(`${V}channel_regist button`);
        assert.equal(page.told(page.window.main)[0].pop(), 3);
    });

panelTest("a camera that fixes both axes centers by itself", variable({
    getVariableRestriction: {...LIMITS, PosXFree: false, PosYFree: false}}), async (page, live) => {
    await openVariable(page, live);
    const locks = () => ["center", "pos_x", "pos_y"].map((name) => page.locked(V + name));
    assert.deepEqual([locks(), page.one(`${V}center`).checked], [[true, true, true], true]);
    page.click(CANCEL);
    page.answer({getVariableRestriction: {...LIMITS, PosYFree: false}});
    await openVariable(page, live);
    assert.deepEqual([locks(), page.one(`${V}center`).checked], [[false, false, true], false], "another camera");
});

panelTest("an empty list shows none, and the smallest number that a list has is chosen", variable(), async (page, live) => {
    const text = (name) => page.$(`${V}${name} option:selected`).text();
    page.answer({getVariableResolutionList: {VariableResolutionList: SIZES.slice(1), MinValue: "1", MaxPresetWidth: "640",
        MaxPresetHeight: "512"}});
    await openVariable(page, live);
    assert.deepEqual([text("resolution"), boxesOf(page)], ["640 x 512", [640, 512, 320, 256]]);
    page.answer({getVariableFramerateList: {VariableFramerateList: []}});
    await page.update();
    assert.deepEqual([text("framerate"), page.locked(OK)], ["(None)", true]);
    page.answer({getVariableFramerateList: variable().getVariableFramerateList,
        getVariableResolutionList: {VariableResolutionList: [], MinValue: "0", MaxPresetWidth: "0", MaxPresetHeight: "0"}});
    await page.update();
    assert.deepEqual([text("framerate"), text("resolution"), page.locked(OK)], ["60", "(None)", false]);
});

panelTest("the camera is asked in its own orientation, for the rate that counts", variable({isSwapResolution: true}),
    async (page, live) => {
        const asked = (name) => page.told(live, new RegExp(`^${name}$`)).pop()?.slice(1);
        await openVariable(page, live);
        page.choose(`${V}resolution`, "1");
        live.log.splice(0);
        page.choose(`${V}framerate`, "1");
        const last = (name) => live.log.filter(([slot]) => slot === name).pop().slice(1);
        assert.deepEqual([last("getVariableRestriction"), last("getVariableResolutionList"), last("getVariableFramerateList")],
            [[], [false, 1], [true, 1024, 1280]]);
        page.check("#aspect-free");
        assert.deepEqual(last("getVariableRestriction"), [1, 1024, 1280]);
        page.enter(`${V}resolution_width`, "640");
        assert.deepEqual(asked("correctVariableResolution"), [1, 1024, 640, 1280, true, true]);
        page.answer({correctVariableResolution: (rate, width) => width, isSwapResolution: false});
        page.focus(`${V}resolution_width`).down(KEY.DOWN);
        page.up(KEY.DOWN);
        assert.equal(page.told(live, /^correct/)[0].pop(), true);
        page.down(KEY.UP);
        page.up(KEY.UP);
        assert.deepEqual(page.told(live, /^correct/).map((call) => call.slice(4)), [[1280, false, false], [1280, false, true]]);
        page.check("#variable-resolution");
        assert.deepEqual(["ResolutionList", "FramerateList", "Restriction"].map((name) => last(`getVariable${name}`)[0]),
            [true, false, undefined]);
        page.told(live);
        page.enter(`${V}resolution_width`, "320");
        assert.deepEqual(page.told(live, /^correct/), [], "the rates follow the size");
    });

panelTest("a rectangle that is dragged shows, and what the limits put back goes to the image", variable(), async (page, live) => {
    await openVariable(page, live);
    page.check("#aspect-free");
    page.told(live);
    let dragged = area(64, 32, 320, 256);
    page.answer({recvSelectArea: () => dragged});
    page.window.livecontrol_obj.recvRectArea();
    assert.deepEqual([boxesOf(page), areas(page, live)], [[320, 256, 64, 32], []]);
    dragged = area(64, 32, 1280, 256);
    page.window.livecontrol_obj.recvRectArea();
    assert.deepEqual([boxesOf(page), areas(page, live)], [[1280, 256, 0, 32], [area(0, 32, 1280, 256)]]);
});

panelTest("the host's lists of channels open at their buttons, which tell the whole text", {}, async (page, live) => {
    const SELECT = "#livecontrol_variable_select";
    const {main} = page.window;
    page.one(SELECT).getBoundingClientRect = () => ({left: 10.4, top: 20.6, width: 99.5, height: 24.2});
    const button = page.$(`${SELECT} button`);
    assert.deepEqual([button.text(), button.attr("title")], ["1: 640 x 512", "1: 640 x 512"]);
    page.told(main);
    page.click(`${SELECT} button`);
    assert.deepEqual(page.told(main), [["showVariable", 10, 21, 100, 24]]);
    live.log.splice(0);
    page.mouse("mousedown", "body");
    assert.deepEqual(live.log.filter(([name]) => name === "hideSelectBox").length, 1);
    page.answer({getControlStatus: {IsLowlight: true}});
    await page.update();
    page.one(SELECT).click();
    assert.deepEqual(page.told(main), []);
    page.answer({getCurrentVariableInfo: {Supported: false, ChannelInfo: "x"}});
    await page.update();
    assert.deepEqual([page.shown("#livecontrol_variable"), button.text()], [false, ""]);
});
