// What the page library does for every page: spinners, sliders, boxes, locks, texts, the log.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";
import {stepTimers} from "../support/timers.mjs";

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
    assert.deepEqual([page.$("#c").attr("aria-disabled"), page.one("#e").sumo.select.attr("aria-disabled")], ["true", "true"]);
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
    page.add("<input id=h class=localize placeholder=hint><p id=u class=localize>untold</p>");
    object.answers.translate = (text) => text === "untold" ? "" : `<${text}>`;
    page.lib.localize(object, "#h, #u");
    assert.deepEqual([page.one("#h").placeholder, page.one("#u").textContent], ["<hint>", "untold"]);
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

/** A spinner of that kind at 5 of 0 to 9, what it fires, and timers in the test's hand. */
function spinnerOf(page, kind = "spinnerRealtimeFire") {
    const fired = [];
    page.add("<input id=s class=spinner>");
    page.$("#s")[kind]({min: 0, max: 9, fire: (_, ui) => { fired.push(ui.value); }});
    page.$("#s")[kind]("value", 5);
    return {...stepTimers(page), shown: () => [page.val("#s"), fired.splice(0)]};
}

dialogTest("the wheel turns a spinner that has the focus, and its rest ends the edit", (page) => {
    const {step, free, shown} = spinnerOf(page);
    const turn = (deltaY) => page.one("#s").dispatchEvent(new page.window.WheelEvent("wheel", {deltaY, bubbles: true, cancelable: true}));
    assert.deepEqual([turn(-1), shown()], [true, ["5", []]], "the page scrolls");
    page.focus("#s");
    assert.deepEqual([turn(-1), shown()], [false, ["6", []]]);
    step(299);
    turn(-1);
    step(299);
    assert.deepEqual(shown(), ["7", []]);
    step(1);
    assert.deepEqual(shown(), ["7", [7]]);
    turn(1);
    page.lib.disable("#s", true);
    step(300);
    assert.deepEqual([turn(1), shown()], [true, ["7", []]]);
    free();
});

dialogTest("a spinner's button that is held goes on until it is let go or can't be used", (page) => {
    const {step, free, shown} = spinnerOf(page);
    const UP = ".zel-spinner-up";
    page.mouse("mousedown", UP);
    assert.deepEqual([shown(), page.focused()], [["6", []], page.one("#s").id]);
    step(399);
    assert.deepEqual(shown(), ["6", []]);
    step(1);
    step(40);
    assert.deepEqual(shown(), ["8", []]);
    page.mouse("mouseup", "body");
    step(1000);
    assert.deepEqual(shown(), ["8", [8]]);
    page.one(UP).dispatchEvent(new page.window.MouseEvent("mousedown", {bubbles: true, button: 2, which: 3}));
    assert.deepEqual([page.down(KEY.DOWN, {ctrlKey: true}), page.down(KEY.DOWN, {altKey: true}), shown()], [true, true, ["8", []]]);
    page.mouse("mousedown", ".zel-spinner-down");
    page.lib.disable("#s", true);
    step(1000);
    assert.deepEqual(shown(), ["8", []], "what was not let go is not taken");
    page.lib.disable("#s", false);
    page.$("#s").spinnerRealtimeFire("option", "spin", () => page.one("#s").blur()); // as a message does
    page.mouse("mousedown", UP);
    step(1000);
    assert.deepEqual(shown(), ["8", []]);
    free();
});

dialogTest("a spinner that waits takes the last of a row of clicks, and Escape takes them back", (page) => {
    const {step, free, shown} = spinnerOf(page, "spinnerStopFire");
    page.click(".zel-spinner-up");
    step(399);
    page.click(".zel-spinner-up");
    step(399);
    assert.deepEqual(shown(), ["7", []]);
    step(1);
    assert.deepEqual(shown(), ["7", [7]]);
    page.click(".zel-spinner-up");
    page.key(KEY.ESCAPE);
    step(1000);
    assert.deepEqual(shown(), ["7", []]);
    free();
});

dialogTest("a hint says what the field takes, for a while or until something is typed", (page) => {
    const {step, free} = spinnerOf(page);
    const hints = () => page.texts(".zel-hint[role=alert]");
    for (const [options, hint] of [[{}, "<Whole numbers from 0 to 9 only>"], [{max: null}, "<Whole numbers only>"],
        [{decimal: true}, "<Numbers only>"], [{max: 1}, "<Numbers from 0 to 1 only>"]]) {
        page.$("#s").spinnerRealtimeFire("option", options);
        page.enter("#s", "x");
        assert.deepEqual(hints(), [hint]);
    }
    step(5999);
    assert.equal(hints().length, 1);
    step(1);
    assert.equal(hints().length, 0);
    page.enter("#s", "x");
    page.type("#s", "1");
    assert.equal(hints().length, 0);
    free();
});

dialogTest("a screen reader is told of spinners and sliders as they are now", (page) => {
    const told = (selector, ...names) => names.map((name) => page.$(selector).attr(name));
    page.add("<label for=s>Size</label><input id=s class=spinner><div id=f class=slider aria-label=Light></div>");
    page.$("#s").spinnerRealtimeFire({min: 1, max: 8});
    page.$("#s").spinnerRealtimeFire("value", 3);
    assert.deepEqual(told("#s", "role", "aria-label", "aria-valuemin", "aria-valuemax", "aria-valuenow"),
        ["spinbutton", "Size", "1", "8", "3"]);
    page.focus("#s").one("#s").select();
    page.$("#s").spinnerRealtimeFire("value", 4);
    assert.equal(page.one("#s").selectionStart, 0, "what is to be typed over stays so");
    page.$("label[for=s]").text("Width");
    page.$("#s").spinnerRealtimeFire("option", "max", 2);
    assert.deepEqual(told("#s", "aria-label", "aria-valuemax"), ["Width", "2"]);
    page.$("#f").slider({min: 2, max: 7, value: 4});
    const HANDLE = "#f .ui-slider-handle", RANGE = ["aria-valuemin", "aria-valuemax", "aria-valuenow"];
    assert.deepEqual(told(HANDLE, "role", "aria-label", "aria-orientation", "tabindex", ...RANGE),
        ["slider", "Light", "horizontal", "0", "2", "7", "4"]);
    page.focus(HANDLE).key(KEY.RIGHT);
    assert.equal(page.$(HANDLE).attr("aria-valuenow"), "5");
    page.lib.disable("#f", true);
    assert.deepEqual(told(HANDLE, "tabindex", "aria-disabled"), ["-1", "true"]);
    page.lib.disable("#f", false);
    assert.deepEqual(told(HANDLE, "tabindex", "aria-disabled"), ["0", "false"]);
});

dialogTest("a long drop-down box by its keys, and what its rows are", (page) => {
    const texts = ["", ...Array.from({length: 20}, (_, i) => `Row ${i}`)];
    page.add("<label for=b>Rate</label><select id=b></select><select id=c aria-labelledby=l></select>");
    page.lib.initSumoSelect("#b", 90);
    page.lib.initSumoSelect("#c");
    texts.forEach((text, i) => page.lib.addItemSumoSelect("#b", i, text, `o${i}`, "kind"));
    page.lib.disable("#o0", true);
    page.$("#o3").attr("data-note", "C1");
    page.lib.selectItemSumoSelect("#b", 2);
    page.lib.reloadSumoSelect("#b");
    const {sumo} = page.one("#b");
    const items = sumo.ul.children();
    assert.deepEqual([sumo.select.css("width"), page.$("#o1").hasClass("kind"), items.eq(1).hasClass("kind")], ["90px", true, true]);
    assert.deepEqual(["role", "aria-haspopup", "aria-label"].map((name) => sumo.select.attr(name)), ["combobox", "listbox", "Rate"]);
    const row = (i) => ["separator", "disabled", "selected"].filter((name) => items.eq(i).hasClass(name))
        .concat(["aria-selected", "aria-disabled", "data-note"].map((name) => items.eq(i).attr(name)));
    assert.deepEqual([row(0), row(2), row(3)], [["separator", "disabled", "false", "true", undefined],
        ["selected", "true", "false", undefined], ["false", "false", "C1"]]);
    const marked = () => sumo.ul.find("li.sel").text().trim();
    sumo.select[0].focus();
    page.key(KEY.SPACE, {ctrlKey: true});
    assert.ok(!sumo.is_opened);
    assert.equal(page.one("#c").sumo.select.attr("aria-labelledby"), "l");
    const heard = [];
    page.$(page.document).on("keydown", (event) => heard.push(event.which));
    page.$("#b").on("change", () => heard.push(sumo.is_opened));
    page.key(KEY.SPACE);
    for (const [key, text] of [[34, "Row 9"], [34, "Row 17"], [34, "Row 19"], [33, "Row 11"], [KEY.HOME, "Row 0"], [KEY.UP, "Row 0"]]) {
        page.key(key);
        assert.equal(marked(), text);
    }
    page.key(KEY.ESCAPE);
    page.key(KEY.UP);
    assert.equal(marked(), "Row 1", "from the one that is selected");
    page.key(KEY.DOWN);
    page.key(KEY.ENTER);
    assert.deepEqual([page.val("#b"), row(2)[0], row(3).slice(0, 2)], ["3", "false", ["selected", "true"]]);
    assert.deepEqual(heard.filter((what) => [KEY.ESCAPE, true, false].includes(what)), [false], "closed before anybody hears of it");
    page.lib.selectItemSumoSelect("#b", 4);
    assert.deepEqual([row(3)[0], row(4).slice(0, 2), sumo.CaptionCont.text().trim()], ["false", ["selected", "true"], "Row 3"]);
    const mouse = () => sumo.select.trigger("mousedown").hasClass("by-mouse");
    assert.deepEqual([mouse(), sumo.select.trigger("keydown").hasClass("by-mouse")], [true, false]);
    page.one("#b").sumo.showOpts();
    page.lib.emptySumoSelect("#b");
    assert.deepEqual([Boolean(sumo.is_opened), page.$("#b").children().length], [false, 0]);
});

dialogTest("labels of buttons get smaller until they fit, and areas lower until the page does", (page) => {
    const {window} = page;
    const size = (node, sizes) => Object.entries(sizes).forEach(([name, get]) => Object.defineProperty(node, name, {get, configurable: true}));
    page.add("<button id=k>long</button><div id=v class=scrollarea></div><div id=w class=scrollarea></div>");
    const button = page.one("#k");
    window.getComputedStyle = (node) => ({getPropertyValue: () => "", fontSize: node.style.fontSize || "14px", maxHeight: "none"});
    let needed = 11;
    size(button, {scrollWidth: () => parseFloat(button.style.fontSize || 14), clientWidth: () => needed});
    const fitted = () => {
        page.lib.applyButtonLabelFontSize("#k");
        return button.style.fontSize;
    };
    assert.equal(fitted(), "11px");
    needed = 2;
    assert.equal(fitted(), "9px", "no smaller than can be read");
    needed = 20;
    assert.equal(fitted(), "");
    const height = (id) => parseFloat(page.one(id).style.height || 200);
    ["#v", "#w"].forEach((id) => size(page.one(id), {offsetHeight: () => height(id)}));
    size(page.document.body, {scrollHeight: () => 300 + height("#v") + height("#w")});
    window.innerHeight = 500;
    const heights = (smallest) => {
        page.lib.scrollarea_resize(smallest);
        return ["#v", "#w"].map((id) => page.one(id).style.height);
    };
    assert.deepEqual([heights(400), heights(620), heights(800)], [["144px", "56px"], ["", "120px"], ["", ""]]);
});
