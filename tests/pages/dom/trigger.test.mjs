// The trigger's box and its parameters: what is sent when, in which order, and what an update leaves in the hand.
import assert from "node:assert/strict";
import {KEY} from "../support/page.mjs";
import {TRIGGER, panelTest} from "../support/panel.mjs";

const id = (name) => `#livecontrol_manu_trig_${name}`;
const BEFORE = id("before_frame"), AFTER = id("after_frame"), BEFORE_PER = id("before_per"), AFTER_PER = id("after_per");
const SLIDER = "#livecontrol_trig_slider", HANDLE = `${SLIDER} .ui-slider-handle`;
const FRAMES = "#livecontrol_random_frames", TIMES = "#livecontrol_random_times_max",
    TIMES_BOX = "#livecontrol_random_times_enable";
const MODE = {START: "0", MANUAL: "1", RANDOM: "2", SHARED: "3"};
const fields = (page) => [BEFORE, AFTER, BEFORE_PER, AFTER_PER].map((box) => Number(page.val(box)));

/** A trigger mode in force, with its parameters. */
const inMode = (mode, more = {}) => ({
    getTriggerModeSettings: {TriggerMode: [0, 1, 2, 3].map((Value) => ({Value, Name: `Mode ${Value}`})),
        SelectValue: Number(mode),
        DifferentTriger: false, ExistSupportImageTrigger: 3, HWImageTriggerOn: false},
    getTriggerParameterSettings: {...TRIGGER, ...more}
});

panelTest("each field of the trigger point sends the whole share under its own lock", inMode(MODE.MANUAL), async (page, live) => {
    assert.deepEqual(fields(page), [600, 400, 60, 40]);
    for (const [box, typed, sent] of [
        [BEFORE, "250", [0, 1, 250, 750, 25, 0, 0]], [BEFORE, "1000", [0, 1, 999, 1, 99.9, 0, 0]],
        [AFTER, "100", [1, 1, 900, 100, 90, 0, 0]], [AFTER, "0", [1, 1, 999, 1, 99.9, 0, 0]],
        [BEFORE_PER, "10", [2, 1, 100, 900, 10, 0, 0]], [AFTER_PER, "10", [2, 1, 900, 100, 90, 0, 0]]
    ]) {
        page.enter(box, typed);
        sent[5] = 100; // of the hidden block of random recordings
        assert.deepEqual(page.told(live), [["applyTriggerParameter", ...sent]], `${box} ${typed}`);
        assert.deepEqual(fields(page), [600, 400, 60, 40], "what the camera took");
        assert.deepEqual(page.told(page.timeline), [["appUpdate"]]);
    }
    page.enter(AFTER, "");
    assert.deepEqual([page.told(live), page.val(AFTER)], [[], "400"]);
});

panelTest("the slider of the trigger point, held over an update", inMode(MODE.MANUAL), async (page, live) => {
    page.focus(HANDLE).down(KEY.RIGHT);
    assert.deepEqual([page.told(live), fields(page)], [[], [601, 399, 60.1, 39.9]]);
    page.answer(inMode(MODE.MANUAL, {TrgAfterFrame: 100}));
    await page.update();
    assert.deepEqual([page.$(SLIDER).slider("value"), fields(page)[0]], [601, 601]);
    page.up(KEY.RIGHT);
    assert.deepEqual(page.told(live), [["applyTriggerParameter", 1, 1, 601, 399, 60.1, 100, 0]]);
    assert.deepEqual(fields(page), [900, 100, 90, 10]);
    page.focus(HANDLE).key(KEY.END); // one frame stays after the trigger
    assert.deepEqual(page.told(live), [["applyTriggerParameter", 1, 1, 999, 1, 99.9, 100, 0]]);
});

panelTest("an update leaves the field in which the user types, Escape and a lost block drop it", inMode(MODE.MANUAL),
    async (page, live) => {
        page.type(AFTER, "12");
        page.answer(inMode(MODE.MANUAL, {TrgAfterFrame: 100}));
        await page.update();
        assert.deepEqual([page.val(AFTER), page.val(BEFORE)], ["12", "900"]);
        page.key(KEY.ESCAPE);
        assert.equal(page.val(AFTER), "100");
        page.type(AFTER, "12");
        page.answer(inMode(MODE.START));
        await page.update();
        assert.ok(!page.shown("#livecontrol_trigger_param"));
        page.answer(inMode(MODE.MANUAL));
        await page.update();
        assert.deepEqual([page.val(AFTER), page.told(live)], ["400", []]);
        page.type(AFTER, "");
        page.key(KEY.UP); // from the value in force
        page.one(AFTER).blur();
        assert.deepEqual(page.told(live), [["applyTriggerParameter", 1, 1, 599, 401, 59.9, 100, 0]]);
    });

panelTest("a memory of less than 10000 frames counts a step of the percentage as a frame", inMode(MODE.MANUAL, {TotalFrames: 50,
    TrgAfterFrame: 10}), async (page, live) => {
    for (const [box, key, before] of [[BEFORE_PER, KEY.UP, 41], [BEFORE_PER, KEY.DOWN, 39], [AFTER_PER, KEY.UP, 39]]) {
        page.focus(box).down(key);
        assert.deepEqual([page.val(BEFORE), page.told(live)], [String(before), []]);
        page.up(key);
        assert.deepEqual(page.told(live), [["applyTriggerParameter", 2, 1, before, 50 - before, before * 2, 100, 0]]);
    }
});

panelTest("locks show what the host holds and ask for another", inMode(MODE.MANUAL, {LockTriggerParam: 1}), async (page, live) => {
    const pressed = () => ["before_frame_lock", "after_frame_lock", "before_per_lock", "before_per_lock_2"]
        .map((name) => page.$(id(name)).attr("aria-pressed") === "true");
    assert.deepEqual(pressed(), [false, true, false, false]);
    const tips = ["number of frames before trigger input", "number of frames after trigger input",
        "ratio before and after the trigger input", "ratio before and after the trigger input"].map((tip) => `Maintain the ${tip}`);
    for (const name of ["title", "aria-label"]) {
        assert.deepEqual(["before_frame_lock", "after_frame_lock", "before_per_lock", "before_per_lock_2"]
            .map((button) => page.$(id(button)).attr(name)), tips);
    }
    [["before_frame_lock", 0], ["after_frame_lock", 1], ["before_per_lock_2", 2]].forEach(([name, lock]) => {
        page.click(id(name));
        assert.deepEqual(page.told(live), [["setLockTriggerParam", lock]]);
    });
    page.answer(inMode(MODE.MANUAL, {LockTriggerParam: 2}));
    await page.update();
    assert.deepEqual(pressed(), [false, false, true, true]);
    assert.deepEqual(["before_frame_lock", "before_per_lock"].map((name) => [page.$(id(name)).is(".unlock"), page.$(id(name)).is(".lock")]),
        [[true, false], [false, true]]);
});

panelTest("another mode takes along what stands in the fields", inMode(MODE.MANUAL), async (page, live) => {
    page.choose("#livecontrol_trigger", MODE.SHARED); // after is cut to the length, before does not fit
    assert.deepEqual(page.told(live), [["setTriggerMode", 3, 0, 100, 0, 100, 0]]);
    await page.update();
    page.choose("#livecontrol_trigger", MODE.START);
    assert.deepEqual(page.told(live), [["setTriggerMode", 0, 600, 400, 60, 100, 0]]);
    await page.update();
    page.choose("#livecontrol_trigger", "-1");
    assert.deepEqual(page.told(live).slice(0, 2), [["hWImageTriggerStart"], ["setLastPage", 4]]);
});

panelTest("rows of the block by mode", {}, async (page) => {
    const ROWS = ["#livecontrol_trigger_total_frames_div", FRAMES, TIMES_BOX, TIMES, BEFORE];
    for (const [mode, shown] of [[MODE.START, [0, 0, 0, 0, 0]], [MODE.MANUAL, [1, 0, 0, 0, 1]],
        [MODE.RANDOM, [0, 1, 1, 1, 0]],
        [MODE.SHARED, [0, 1, 0, 1, 1]]]) {
        page.answer(inMode(mode));
        await page.update();
        assert.deepEqual(ROWS.map((row) => Number(page.shown(row))), shown, mode);
    }
    page.answer({isQmonRunning: true});
    await page.update();
    assert.ok(!page.shown("#livecontrol_trigger_param"));
});

panelTest("the length of a random recording that is shared out keeps the frames after the trigger",
    inMode(MODE.SHARED, {RandomFrames: 100, TrgAfterFrame: 30}), async (page, live) => {
        assert.deepEqual(fields(page), [70, 30, 70, 30]);
        page.enter(TIMES, "50");
        assert.equal(page.told(live)[0].pop(), 5, "the most of such recordings");
        page.enter(FRAMES, "200");
        assert.deepEqual(page.told(live), [["applyTriggerParameter", -1, 3, 170, 30, 85, 200, 3]]);
    });

panelTest("the count of random recordings follows their length", inMode(MODE.RANDOM, {RandomTimesEnable: true, RandomTimesMax: 8}),
    async (page, live) => {
        const sent = () => page.told(live, /^apply/).map((call) => call.slice(-2));
        assert.deepEqual([page.val(TIMES), page.locked(TIMES)], ["8", false]);
        assert.ok(page.one(TIMES_BOX).checked);
        page.answer(inMode(MODE.RANDOM, {RandomTimesEnable: true, RandomTimesMax: 8, RandomFramesOffset: 50}));
        await page.update();
        page.enter(FRAMES, "150"); // with what lies between them
        assert.deepEqual(sent(), [[150, 5]]);
        page.answer(inMode(MODE.RANDOM, {RandomTimesEnable: true, RandomTimesMax: 8, ExistSupportRandomTrgTimes: 1}));
        await page.update();
        assert.deepEqual([page.shown(TIMES_BOX), page.shown(TIMES)], [false, false]);
        page.answer(inMode(MODE.RANDOM, {RandomTimesEnable: true, RandomTimesMax: 8}));
        await page.update();
        page.enter(FRAMES, "300");
        assert.deepEqual(sent(), [[300, 3]]);
        page.enter(FRAMES, "5000");
        assert.deepEqual(sent(), [[1000, 1]]);
        page.enter(TIMES, "50");
        assert.deepEqual(sent(), [[100, 8]]);
        page.check(TIMES_BOX);
        assert.deepEqual(sent(), [[100, 0]]);
        page.answer(inMode(MODE.RANDOM, {RandomTimesEnable: false}));
        await page.update();
        assert.deepEqual([page.val(TIMES), page.locked(TIMES)], ["0", true]);
        page.check(TIMES_BOX);
        assert.deepEqual(sent(), [[100, 1]]);
        page.answer(inMode(MODE.RANDOM, {RandomTimesEnable: true, RandomTimesMax: 8, RandomFrames: 125}));
        await page.update();
        page.focus(FRAMES).down(KEY.UP); // 8 of 126 are more than there is
        assert.deepEqual([page.val(FRAMES), page.val(TIMES), sent()], ["126", "7", []]);
        page.up(KEY.UP);
        assert.deepEqual(sent(), [[126, 7]]);
    });

panelTest("the fields follow each other while a key is held", inMode(MODE.MANUAL), async (page, live) => {
    for (const [box, key, shown] of [[BEFORE, KEY.UP, [601, 399, 60.1, 39.9]], [AFTER, KEY.UP, [599, 401, 59.9, 40.1]],
        [AFTER, KEY.DOWN, [601, 399, 60.1, 39.9]]]) {
        page.focus(box).down(key);
        assert.deepEqual([fields(page), page.$(SLIDER).slider("value"), page.told(live)], [shown, shown[0], []]);
        page.up(key);
        assert.equal(page.told(live).length, 1);
    }
    page.answer(inMode(MODE.MANUAL, {TotalFrames: 20000, TrgAfterFrame: 10000}));
    await page.update();
    page.focus(BEFORE_PER).down(KEY.UP);
    assert.deepEqual([fields(page), page.told(live)], [[10002, 9998, 50.01, 49.99], []]);
    page.up(KEY.UP);
    page.answer(inMode(MODE.MANUAL, {TrgAfterFrame: 1}));
    await page.update();
    page.focus(BEFORE).down(KEY.UP);
    assert.deepEqual(fields(page).slice(0, 2), [999, 1], "one frame stays after the trigger");
    page.up(KEY.UP);
});

panelTest("the box of modes: what no list has, none at all, and the note of the image trigger", inMode(MODE.MANUAL), async (page) => {
    const settings = inMode(MODE.MANUAL).getTriggerModeSettings;
    const shown = async (more) => {
        page.answer({getTriggerModeSettings: {...settings, ...more}});
        await page.update();
        return [page.$("#livecontrol_trigger option:selected").text(), page.$("#livecontrol_trigger_param").css("display") !== "none",
            page.$("#livecontrol_image_trigger_note").css("display") !== "none"];
    };
    assert.deepEqual(await shown({}), ["Mode 1", true, false]);
    assert.deepEqual(await shown({DifferentTriger: true}), ["---", false, false]);
    assert.deepEqual(await shown({SelectValue: 9}), ["---", false, false]);
    assert.deepEqual((await shown({HWImageTriggerOn: true}))[2], true);
    assert.deepEqual((await shown({HWImageTriggerOn: true, ExistSupportImageTrigger: 0}))[2], false);
    assert.deepEqual((await shown({TriggerMode: []}))[1], false);
});

panelTest("the count of random recordings is open while it is counted", inMode(MODE.RANDOM, {RandomTimesEnable: true}), async (page, live) => {
    live.answers.applyTriggerParameter = (lock, mode, before, after, percent, frames, count) => {
        page.answer(inMode(MODE.RANDOM, {RandomTimesEnable: count > 0, RandomTimesMax: count}));
    };
    for (const on of [false, true]) {
        page.check(TIMES_BOX);
        await page.update();
        assert.deepEqual([page.val(TIMES), page.locked(TIMES)], [on ? "1" : "0", !on]);
    }
});
