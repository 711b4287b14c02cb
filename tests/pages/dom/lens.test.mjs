// The lens block of the list page: its axes by mouse and keys, what locks them, and what shows of the lens.
import assert from "node:assert/strict";
import {KEY} from "../support/page.mjs";
import {LENS, axis, panelTest} from "../support/panel.mjs";

panelTest("a lens button that is held goes on, and its release does no step more", {getLensControlSettings: LENS},
    async (page, live) => {
        const button = "#livecontrol_Focus .label-end";
        const step = ["setFocusIncremental", 1, 1];
        page.mouse("mousedown", button);
        const steps = [];
        while (steps.length < 2) {
            await page.rest(20);
            steps.push(...page.told(live));
        }
        assert.deepEqual(steps.slice(0, 2), [step, step]);
        page.mouse("mouseup", button);
        page.mouse("click", button);
        assert.deepEqual(page.told(live), []);
        page.click(button);
        assert.deepEqual(page.told(live), [step]);
        page.mouse("mousedown", button);
        page.mouse("mouseout", button);
        await page.rest(700);
        assert.deepEqual(page.told(live), [], "left");
    });

panelTest("the lens: buttons, sliders and steps of each axis", {getLensControlSettings: LENS}, async (page, live) => {
    const SMALL = 0, LARGE = 1;
    for (const [name, set] of [["Iris", "Iris"], ["Focus", "Focus"], ["Zoom", "Zoom"]]) {
        const block = `#livecontrol_${name}`;
        page.click(`${block} .label-start`);
        assert.deepEqual(page.told(live), [[`set${set}Incremental`, -1, LARGE]]);
        await page.update();
        page.click(`${block} .label-end`);
        assert.deepEqual(page.told(live), [[`set${set}Incremental`, 1, LARGE]]);
        await page.update();
        page.focus(`${block} .ui-slider-handle`).down(KEY.RIGHT);
        await page.update();
        assert.equal(page.$(`${block} .slider`).slider("value"), 110, "in the hand");
        page.up(KEY.RIGHT);
        assert.deepEqual(page.told(live), [[`set${set}Value`, 110], [`set${set}Value`, 110]]);
        await page.update();
        page.focus(`${block} .spinner`);
        page.click(`${block} .zel-spinner-up`);
        assert.deepEqual(page.told(live), [[`set${set}Incremental`, 1, SMALL]]);
        await page.update();
        page.click(`${block} .zel-spinner-down`);
        assert.deepEqual(page.told(live), [[`set${set}Incremental`, -1, SMALL]]);
        assert.equal(page.val(`${block} .spinner`), {Iris: "10.0", Focus: "90", Zoom: "9.0"}[name], "the iris goes by its lens");
        await page.update();
    }
    page.answer({getLensControlCommandTime: 120});
    await page.update();
    assert.deepEqual(["Iris", "Focus", "Zoom"].map((name) => page.$(`#livecontrol_${name} .spinner`).spinnerTick("option", "timeout")),
        [120, 120, 120]);
    page.focus("#livecontrol_Iris .spinner").key(KEY.UP);
    assert.deepEqual([page.told(live), page.$("#livecontrol_Iris .spinner").prop("readonly")], [[], true]);
});

panelTest("what drives the zoom locks the others until an update", {getLensControlSettings: LENS, isAutoFocusActive: true},
    async (page, live) => {
        page.click("#livecontrol_lens_setting > .switch-expand");
        const locked = () => ["#livecontrol_Iris .spinner", "#livecontrol_Focus .slider", "#livecontrol_Zoom .spinner"]
            .map((selector) => page.locked(selector));
        for (const act of [() => page.click("#livecontrol_Zoom .label-end"),
            () => page.focus("#livecontrol_Zoom .ui-slider-handle").key(KEY.RIGHT)]) {
            act();
            assert.deepEqual(locked(), [true, true, false]);
            await page.update();
            assert.deepEqual(locked(), [false, false, false]);
        }
        page.told(live);
        page.answer({getLensControlSettings: {...LENS, LensType: "FOURTHIRDS",
            Focus: axis({AutoFocusEnable: true, Enable: false})}});
        assert.ok(page.locked("#livecontrol_Focus_AutoFocus"));
        page.click("#livecontrol_Lens_Reset");
        assert.ok(!page.shown("#livecontrol_Lens_Reset") && page.shown("#livecontrol_Lens_Close"));
        assert.deepEqual(locked(), [false, true, false]);
        page.click("#livecontrol_Focus_AutoFocus");
        assert.ok(!page.locked("#livecontrol_Lens_Close"));
        page.click("#livecontrol_Lens_Close");
        assert.deepEqual([locked(), page.locked("#livecontrol_Lens_Close"), page.locked("#livecontrol_Focus_AutoFocus")],
            [[true, true, false], true, true]);
        assert.deepEqual(page.told(live), [["resetLens"], ["openAutofocus"], ["closeLens"]]);
        const AUTO = "#livecontrol_lens_autofocus";
        assert.ok(page.shown(AUTO));
        page.answer({isAutoFocusActive: false, getLensControlSettings: {...LENS, LensName: "<L2>", CameraName: "C2",
            Zoom: axis({Enable: false})}});
        await page.update();
        assert.deepEqual([page.texts("#livecontrol_lens_name, #livecontrol_camera_name").sort(), page.shown(AUTO)],
            [["<L2>", "C2"], false]);
        assert.deepEqual([".label-start", ".label-end", ".slider", ".spinner"].map((part) => page.locked(`#livecontrol_Zoom ${part}`)),
            [true, true, true, true]);
        for (const settings of ["", {...LENS, LensType: "NONE"}]) {
            page.answer({getLensControlSettings: LENS});
            await page.update();
            assert.ok(page.shown("#livecontrol_lens_setting"));
            page.answer({getLensControlSettings: settings});
            await page.update();
            assert.ok(!page.shown("#livecontrol_lens_setting"));
        }
    });
