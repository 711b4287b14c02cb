// The pages of the comment, the time code, the formats and the digits of numbers: what stands there, and when it is told.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";

const mediator = (answers) => recorder({translate: (text) => text && `~${text}`, getStyle: "light", ...answers});
const checked = (page, ...boxes) => boxes.map((box) => page.$(box).prop("checked"));
const locks = (page, ...controls) => controls.map((control) => page.locked(control));

/** What every page does at its start: the user's colors, the user's language, and a line in the log for a choice. */
function assertStarted(page) {
    assert.deepEqual([page.$("html").hasClass("style-light"), page.$("#cancel_btn").text()], [true, "~Cancel"]);
}

/** Comments of three cameras, as the dialog's script object keeps them. */
function comments(more) {
    const texts = {0: "", 1: "one", 2: "two", 3: "three"};
    let ids = [];
    let current = 0;
    return mediator({
        getDocInfos: {Records: [1, 2, 3].map((recid) => ({recid, name: `<b>${recid}`})), InitSelect: 2}, isForSelection: false,
        setSelectedItems: (list) => {
            current = list.filter((id) => !ids.includes(id)).pop() ?? (list.includes(current) ? current : list[0] ?? 0);
            ids = list;
        },
        setComment: (text) => ids.forEach((id) => { texts[id] = text; }), getComment: () => texts[current], ...more
    });
}
const commentTest = (title, more, body) => pageTest(title, "commentview.html", () => ({comment_mediator: comments(more)}),
    (page, {comment_mediator: object}) => body(page, object));
const selects = (...ids) => [["setSelectedItems", []], ["setSelectedItems", ids]];
const row = (recid) => `#documents tr[data-recid=${recid}]`;
const HINT = "~What you type is the comment of all selected cameras.";

commentTest("what is typed is the comment of all selected cameras, and who only looks changes none", {}, (page, object) => {
    const rows = () => [page.texts("#documents .ui-selected"), page.texts("#documents .current"), page.$("#hint").text()];
    assertStarted(page);
    assert.deepEqual([page.told(object), page.val("#comment"), page.focused(), page.one("#comment").selectionStart],
        [selects(2), "two", "comment", 3]);
    assert.deepEqual([rows(), page.shown("#cameras"), page.texts("#documents tr")], [[["<b>2"], [], ""], true, ["<b>1", "<b>2", "<b>3"]]);
    page.click(row(1));
    page.click(row(3), {ctrlKey: true});
    assert.deepEqual([page.told(object), rows(), page.val("#comment")],
        [[...selects(1), ...selects(1, 3)], [["<b>1", "<b>3"], ["<b>3"], HINT], "three"]);
    page.type("#comment", "both");
    assert.deepEqual(page.told(object), []);
    page.focus(row(1)).key(KEY.DOWN);
    assert.deepEqual([page.told(object), page.val("#comment"), page.$(page.document.activeElement).is(row(2))],
        [[["setComment", "both"], ...selects(2)], "two", true]);
    page.click(row(1));
    page.click("#all_btn"); // the one that shows goes on showing
    assert.deepEqual([page.told(object), rows(), page.val("#comment")],
        [[...selects(1), ...selects(2, 3, 1)], [["<b>1", "<b>2", "<b>3"], ["<b>1"], HINT], "both"]);
    page.type("#comment", "all");
    assert.equal(page.down(KEY.ENTER), true, "a new line");
    assert.deepEqual(page.told(object), []);
    assert.equal(page.down(KEY.ENTER, {ctrlKey: true}), false);
    assert.equal(page.down(KEY.SPACE, {ctrlKey: true}), true);
    page.click("#ok_btn");
    assert.deepEqual(page.told(object), [["setComment", "all"], ["comment_ok"], ["comment_ok"]]);
    page.type("#comment", "lost");
    page.click("#cancel_btn");
    assert.deepEqual(page.told(object), [["comment_cancel"]]);
});

for (const [title, more, told, seen] of [
    ["with no camera selected there is nothing to type into", {getDocInfos: {Records: [{recid: 1, name: ""}], InitSelect: 0}}, selects(),
        ["", "~Select a camera.", true, true, false]],
    ["one camera needs no list", {getDocInfos: {Records: [{recid: 1, name: ""}], InitSelect: 1}}, selects(1),
        ["one", "", false, false, false]],
    ["two cameras have one", {getDocInfos: {Records: [1, 2].map((recid) => ({recid, name: ""})), InitSelect: 2}}, selects(2),
        ["two", "", true, false, false]],
    ["without cameras there is no OK", {getDocInfos: ""}, selects(), ["", "", true, true, true]],
    ["for a selection all are selected, and the current one shows", {isForSelection: true}, selects(1, 3, 2),
        ["two", HINT, true, false, false]]]) {
    commentTest(`comment: ${title}`, more, (page, object) => {
        assert.deepEqual(page.told(object), told);
        assert.deepEqual([page.val("#comment"), page.$("#hint").text(), page.shown("#cameras"), ...locks(page, "#comment", "#ok_btn")], seen);
    });
}

/** A script object that keeps the values of its pairs of slots; `made` says what becomes of a value. */
function keeper(values, made = {}) {
    const answers = {};
    Object.keys(values).forEach((getter) => {
        answers[getter] = () => values[getter];
        answers[getter.replace(/^(get|is)/, "set")] = (value) => { values[getter] = made[getter] ? made[getter](value, values) : value; };
    });
    return mediator(answers);
}

const DELIMITER = (name, stored) => ["#delimiter", `is${name}InsertDelimiter`, stored];
for (const [file, name, controls] of [
    ["shutterspeed", "shutter_format_dlg", [["#unit", "getShutterSpeedTimeUnit", 3], ["#format", "getShutterSpeedFormat", 2],
        DELIMITER("ShutterSpeed", true)]],
    ["recordrate", "recordRateFormatDialog", [DELIMITER("RecordRate", false)]],
    ["frame", "frameFormatDialog", [DELIMITER("Frame", true)]],
    ["rectime", "rectime_format_dlg", [["#unit", "getRecTimeUnit", 2]]]]) {
    pageTest(`each choice of ${file} is stored at once, and what was stored shows`, `${file}_format_dialog.html`,
        () => ({[name]: keeper(Object.fromEntries(controls.map(([, slot, stored]) => [slot, stored])))}), (page, objects) => {
            const object = objects[name];
            assertStarted(page);
            assert.equal(page.focused(), "ok_btn");
            for (const [id, slot, stored] of controls) {
                const isBox = typeof stored === "boolean";
                const shows = () => isBox ? page.$(id).prop("checked") : Number(page.val(id));
                const choose = () => isBox ? page.check(id) : page.choose(id, "1");
                const setter = slot.replace(/^(get|is)/, "set");
                const {[setter]: store} = object.answers;
                assert.deepEqual([shows(), page.$("#unit").is(".disabled")], [stored, false]);
                object.answers[setter] = ""; // can't be stored
                choose();
                assert.equal(shows(), stored);
                object.answers[setter] = store;
                choose();
                const wished = isBox ? !stored : 1;
                assert.deepEqual([page.told(object), shows()], [[[setter, wished], [setter, wished]], wished]);
                assert.equal(page.$("#unit").is(".disabled"), id === "#format", "a fraction has no unit");
                page.$("#format").val("2").trigger("change");
                page.told(object);
            }
            page.$("#delimiter").trigger("focus");
            page.key(KEY.ENTER);
            page.click("#ok_btn");
            page.click("#cancel_btn");
            assert.deepEqual(page.told(object), [...(page.val("#delimiter") ? [["ok"]] : []), ["ok"], ["cancel"]]);
        });
}

const TIME = {Index: 0, ScopeDisplayIndex: 3, DecimalPlaceIndex: 6, ResetUnitIndex: 0, DecimalDivide: true, RealTime: false, Reset: false,
    UsingRchFileInfo: true, OverWrite: true, OneFrame: "0.2500", StartValue: "-90.0000", ResetValue: "12", DisplayUnit: "deg",
    Sample: "<b>+1"};
const timeTest = (title, more, body) => pageTest(title, "prefs_customize_timecode.html", () => ({
    timecode_custom_mediator: keeper(Object.fromEntries(Object.entries({...TIME, ...more}).map(([name, value]) =>
        [`getTimeCode${name}`, value])), {
        getTimeCodeOneFrame: (value, values) => { values.getTimeCodeSample = `+${value}`; return Number(value).toFixed(4); },
        getTimeCodeResetUnitIndex: (value, values) => { values.getTimeCodeResetValue = value ? "2.5000" : "10"; return value; }
    })}), (page, {timecode_custom_mediator: object}) => body(page, object));
const numbers = (page) => ["#one_frame", "#start_value", "#reset_value"].map((field) => page.val(field));

timeTest("the time code shows what is, and each control acts at once and shows what became of it", {}, (page, object) => {
    const blocks = () => ["#time_block", "#value_block"].map((block) => page.shown(block));
    assertStarted(page);
    assert.deepEqual([...["#kind", "#scope", "#places", "#reset_unit", "#unit_text", "#sample"].map((id) => page.val(id)), ...numbers(page)],
        ["0", "3", "6", "0", "deg", "<b>+1", "0.2500", "-90.0000", "12"]);
    assert.deepEqual([checked(page, "#divide", "#real_time", "#reset", "#use_file", "#overwrite"), blocks(), page.focused()],
        [[true, false, false, true, true], [true, false], "ok_btn"]);
    assert.deepEqual(locks(page, "#reset_value", "#reset_unit", "#overwrite"), [true, true, false]);
    page.choose("#scope", "2");
    page.choose("#places", "0");
    ["#divide", "#real_time", "#overwrite", "#use_file", "#reset"].forEach((box) => page.check(box));
    page.choose("#kind", "1");
    assert.deepEqual(page.told(object), [["setTimeCodeScopeDisplayIndex", 2], ["setTimeCodeDecimalPlaceIndex", 0],
        ["setTimeCodeDecimalDivide", false], ["setTimeCodeRealTime", true], ["setTimeCodeOverWrite", false],
        ["setTimeCodeUsingRchFileInfo", false], ["setTimeCodeReset", true], ["setTimeCodeIndex", 1]]);
    assert.deepEqual([blocks(), locks(page, "#reset_value", "#reset_unit", "#overwrite")], [[false, true], [false, false, true]]);
    page.enter("#one_frame", "0,5");
    assert.deepEqual([page.val("#one_frame"), page.val("#sample")], ["0.5000", "+0.5"]);
    page.enter("#start_value", "-1000000000");
    page.enter("#start_value", "1e9");
    page.enter("#start_value", "1000000000");
    page.focus("#start_value").down(KEY.DOWN);
    page.key(KEY.ENTER);
    assert.deepEqual(page.told(object), [["setTimeCodeOneFrame", "0.5"], ["setTimeCodeStartValue", "-999900000"],
        ["setTimeCodeStartValue", "999900000"], ["setTimeCodeStartValue", "999899999"], ["ok"]]);
});

timeTest("what ends the time code's count is a number of whole frames, or a value", {Index: 1, Reset: true}, (page, object) => {
    ["0", "100000", "2.5"].forEach((text) => page.enter("#reset_value", text));
    page.focus("#reset_value").down(KEY.DOWN);
    page.one("#reset_value").blur();
    assert.deepEqual(page.told(object).map(([slot, value]) => [slot.slice(11), value]),
        [["ResetValue", "1"], ["ResetValue", "99999"], ["ResetValue", "99998"]]);
    page.choose("#reset_unit", "1");
    assert.equal(page.val("#reset_value"), "2.5000");
    page.enter("#reset_value", "-0.12345");
    assert.deepEqual([page.told(object), page.val("#reset_value")],
        [[["setTimeCodeResetUnitIndex", 1], ["setTimeCodeResetValue", "-0.1235"]], "-0.1235"]);
    page.choose("#reset_unit", "0");
    assert.equal(page.val("#reset_value"), "10");
});

timeTest("the time code's unit is told while it is typed, and Enter takes the field, then OK", {Index: 1}, (page, object) => {
    page.type("#unit_text", "ab");
    page.one("#unit_text").setSelectionRange(1, 1);
    page.one("#unit_text").dispatchEvent(new page.window.Event("input", {bubbles: true}));
    assert.deepEqual([page.told(object), page.one("#unit_text").selectionStart],
        [[["setTimeCodeDisplayUnit", "ab"], ["setTimeCodeDisplayUnit", "ab"]], 1]);
    page.type("#one_frame", "2");
    page.key(KEY.ENTER);
    assert.deepEqual(page.told(object), [["setTimeCodeOneFrame", "2"], ["ok"]]);
    Object.assign(object.answers, {getTimeCodeIndex: 0, getTimeCodeOneFrame: "0.0000", getTimeCodeDisplayUnit: "deg"});
    page.click("#reset_btn");
    assert.deepEqual([page.val("#kind"), page.val("#unit_text"), numbers(page)[0]], ["0", "deg", "0.0000"]);
    page.click("#ok_btn");
    page.click("#cancel_btn");
    assert.deepEqual(page.told(object), [["reset"], ["ok"], ["cancel"]]);
});

const DIGITS = {cameranodigits: 3, headnodigits: 1, sessionnodigits: 4};
const numberTest = (title, more, body) => pageTest(title, "addnumberdialog.html", () => ({addnumberdialog: mediator({
    getCallbackType: 0, isFileMode: false, getPrefInt: (key) => DIGITS[/([a-z]+nodigits)$/.exec(key)[1].replace(/.*addnumber/, "")],
    getPrefString: "manual", getAutoDeviceDigits: 2, getAutoHeadDigits: 0, preview: (...digits) => digits.join("-"), ...more
})}), (page, {addnumberdialog: object}) => body(page, object));
const digits = (page) => ["camera", "head", "session"].map((part) => page.val(`#${part}_digits`));
const numberLocks = (page) => locks(page, "#camera_digits", "#head_digits", "#session_digits");
const STORES = /^(set|updateUI|accept|reject)/;
const KEY_OF = (part) => `export/groupdiraddnumber${part}`;

numberTest("the digits of the numbers in a name show in a sample, and OK alone stores them", {}, (page, object) => {
    assertStarted(page);
    assert.deepEqual([digits(page), page.val("#preview"), numberLocks(page), checked(page, "#auto", "#manual"), page.shown("#modes")],
        [["3", "1", "4"], "3-1-4", [false, false, false], [false, true], true]);
    page.enter("#camera_digits", "12");
    page.enter("#head_digits", "-1");
    assert.equal(page.val("#preview"), "9-0-4");
    page.type("#session_digits", "0");
    assert.deepEqual(page.told(object, STORES), []);
    page.key(KEY.ENTER);
    assert.deepEqual([page.told(object, STORES), page.val("#preview")],
        [[["setPrefInt", KEY_OF("cameranodigits"), 9, false], ["setPrefInt", KEY_OF("headnodigits"), 0, false],
            ["setPrefInt", KEY_OF("sessionnodigits"), 0, false], ["setPrefString", KEY_OF("format"), "manual", false],
            ["updateUI"], ["accept"]], "9-0-0"]);
    page.click("#cancel_btn");
    assert.deepEqual(page.told(object, STORES), [["reject"]]);
});

numberTest("where the cameras give the digits the user's own come back with his mode", {getPrefString: "auto"}, (page, object) => {
    assert.deepEqual([digits(page), page.val("#preview"), numberLocks(page), checked(page, "#auto", "#manual")],
        [["2", "0", "4"], "2-0-4", [true, true, false], [true, false]]);
    page.check("#manual");
    assert.deepEqual([digits(page), page.val("#preview"), numberLocks(page)], [["3", "1", "4"], "3-1-4", [false, false, false]]);
    page.enter("#camera_digits", "7");
    page.check("#auto");
    page.enter("#session_digits", "5");
    assert.deepEqual([digits(page), page.val("#preview")], [["2", "0", "5"], "2-0-5"]);
    page.check("#manual");
    assert.deepEqual([digits(page), page.val("#preview")], [["7", "1", "5"], "7-1-5"]);
    page.check("#auto");
    page.click("#ok_btn");
    assert.deepEqual(page.told(object, STORES), [["setPrefInt", KEY_OF("sessionnodigits"), 5, false],
        ["setPrefString", KEY_OF("format"), "auto", false], ["updateUI"], ["accept"]]);
});

// What a name has not got is neither shown nor stored: rows of modes, camera, head and session, and what can be pressed.
for (const [title, more, rows, focused, stored, preview] of [
    ["a file name takes no digits from the cameras", {getCallbackType: 2, getPrefString: "auto"}, [false, true, true, true],
        "camera_digits", ["camera", "head", "session"], "3-1-4"],
    ["a file has neither camera nor head", {isFileMode: true, getPrefString: "auto"}, [false, false, false, true],
        "session_digits", ["session"], "0-0-4"],
    ["a report has no camera", {getCallbackType: 11}, [false, false, false, true], "session_digits", ["session"], "0-0-4"],
    ["a name without numbers can't be changed", {getCallbackType: 9}, [false, false, false, false], "dialog add-number", [], "0-0-0"]]) {
    numberTest(`numbers: ${title}`, more, (page, object) => {
        assert.deepEqual(["#modes", "#camera_digits_row", "#head_digits_row", "#session_digits_row"].map((one) => page.shown(one)), rows);
        assert.deepEqual([page.focused(), page.val("#preview"), page.locked("#ok_btn")], [focused, preview, stored.length === 0]);
        page.click("#ok_btn");
        assert.deepEqual(page.told(object, STORES).filter(([slot]) => slot.startsWith("set"))
            .map(([slot, key]) => [slot, /addnumber([a-z]+)nodigits$/.exec(key)[1]]), stored.map((part) => ["setPrefInt", part]));
    });
}
