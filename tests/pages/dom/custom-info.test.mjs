// The page of the custom items: what goes to which cameras, and that nothing typed is lost unseen.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";

/** Documents with items, as the dialog's script object keeps them. */
function customInfo(more) {
    const items = {11: [{recid: 1, name: "A", value: "1", unit: "", selected: true}],
        12: [{recid: 1, name: "B", value: "2", unit: "", selected: false}]};
    let ids = [];
    return recorder({
        translate: (text) => text && `~${text}`, getStyle: "dark",
        getDeviceInfo: {Records: [{recid: 1, name: "C1", dockey: 11}, {recid: 2, name: "C2", dockey: 12}], InitSelect: 1},
        setSelectedDeviceItems: (list) => { ids = list; },
        getCurrentDeviceRecord: () => ids.length ? ids[ids.length - 1] : 0,
        getCallbackType: 17, getCustomInfo: (key) => JSON.stringify(items[key]),
        addCustomData: (keys, item) => keys.forEach((key) => items[key].push({recid: items[key].length + 1, ...item,
            selected: true})),
        deleteCustomData: (keys, [{name}]) => keys.forEach((key) => { items[key] = items[key].filter((one) => one.name !== name); }),
        load: (keys) => keys.forEach((key) => { items[key] = [{recid: 1, name: "L", value: "", unit: "",
            selected: false}]; }),
        ...more
    });
}
const customTest = (title, body, more = {}) => pageTest(title, "custominfo.html", () => ({CustomInfoDialog: customInfo(more)}),
    (page, {CustomInfoDialog}) => body(page, CustomInfoDialog));
const fieldsOf = (page) => ["name", "value", "unit"].map((field) => page.val(`#item_${field}`));
const WRITES = /^(add|edit|delete|enable|load|save|accept|reject|cancel)/;

customTest("items go to all selected cameras, and no name twice", async (page, info) => {
    assert.deepEqual([page.focused(), page.locked("#add_btn"), page.locked("#change_btn"), page.locked("#delete_btn"),
        page.$("#tick_head").text()], ["item_name", true, true, true, "~Show"]);
    assert.ok(page.texts("#documents tr").length === 2 && page.$("#documents .ui-selected").length === 2);
    page.type("#item_name", "B"); // that of the other camera
    assert.deepEqual([page.locked("#add_btn"), page.$("#item_hint").text()], [true, "~An item has this name."]);
    page.type("#item_name", "N");
    page.type("#item_value", "5");
    page.key(KEY.ENTER);
    assert.deepEqual(page.told(info, WRITES), [["addCustomData", [11, 12],
        {name: "N", value: "5", unit: "", oldname: null}]]);
    assert.deepEqual([fieldsOf(page), page.focused()], [["", "", ""], "item_name"]);
    page.click("#documents tr[data-recid=2]");
    assert.deepEqual(page.texts("#items tbody tr"), ["B2", "N5"]);
    page.click("#documents tr[data-recid=2]", {ctrlKey: true}); // one stays
    page.click("#items tr[data-recid=1]");
    assert.deepEqual([fieldsOf(page), page.locked("#change_btn"), page.locked("#delete_btn")],
        [["B", "2", ""], false, false]);
    page.click("#delete_btn");
    assert.deepEqual(page.told(info, WRITES), [["deleteCustomData", [12], [{name: "B"}]]]);
    page.focus("#items tr[data-recid=2] input").check("#items tr[data-recid=2] input");
    assert.deepEqual(page.told(info, WRITES)[0].slice(0, 2), ["enableCustomData", [12]]);
    assert.equal(page.focused(), "tick:N", "in the new row, so that the next press changes it back");
});

customTest("what waits in the fields is taken by OK and by another row, and never lost unseen", async (page, info) => {
    page.click("#documents tr[data-recid=1]");
    page.type("#item_name", "A");
    page.click("#ok_btn");
    assert.deepEqual([page.told(info, WRITES), page.focused(), page.$("#item_hint").text()],
        [[], "item_name", "~An item has this name."]);
    page.click("#save_btn"); // the file would lack it
    assert.deepEqual(page.told(info, WRITES), []);
    page.type("#item_name", "W");
    page.click("#documents tr[data-recid=2]"); // meant for the camera that is selected now
    assert.equal(fieldsOf(page)[0], "W");
    page.click("#items tr[data-recid=1]");
    assert.deepEqual([page.told(info, WRITES).map(([name, keys]) => [name, keys]), fieldsOf(page)[0]],
        [[["addCustomData", [12]]], "B"]);
    page.type("#item_value", "7"); // edited, but the camera refuses
    page.click("#change_btn");
    assert.deepEqual(page.told(info, WRITES)[0][2], {name: "B", value: "7", unit: "", oldname: "B"});
    page.click("#load_btn");
    assert.equal(page.told(info, WRITES).pop()[0], "load");
    page.click("#documents tr[data-recid=1]");
    page.click("#all_btn");
    assert.deepEqual([page.$("#documents .ui-selected").length, page.$("#documents .current").text()], [2, "C1"]);
    page.type("#item_name", "Z");
    page.focus("#add_btn").click("#add_btn");
    assert.equal(page.focused(), "item_name");
    page.type("#item_name", "Y"); // goes into the file, too
    page.click("#save_btn");
    assert.deepEqual(page.told(info, WRITES).map(([name, keys]) => [name, keys.map((one) => one.name || one)]),
        [["addCustomData", [11, 12]], ["addCustomData", [11, 12]], ["save", ["A", "Z", "Y"]]]);
    page.click("#ok_btn");
    assert.deepEqual(page.told(info, WRITES), [["accept"]]);
    page.click("#cancel_btn");
    assert.deepEqual(page.told(info, WRITES), [["cancel"], ["reject"]]);
});

const item = (name, value = "") => ({recid: 1, name, value, unit: "", selected: false});
const none = {name: "", value: "", unit: ""};
const TAKEN = "~An item has this name.";
/** What can be pressed, and the hint. */
const free = (page) => [["add", "change", "delete", "load", "save"].filter((name) => !page.locked(`#${name}_btn`)).join(" "),
    page.$("#item_hint").text()];
const rows = (page) => page.texts("#items .item-row").map((text, i) => (page.$(".item-row").eq(i).is(".ui-selected") ? `>${text}` : text));

customTest("what is selected, chosen and typed says what can be pressed", (page) => {
    const states = (...texts) => texts.map((text) => {
        page.type("#item_name", text);
        return free(page);
    });
    assert.deepEqual([free(page), page.shown("#no_items"), page.shown("#all_btn")], [["load save", ""], false, true]);
    assert.deepEqual(states("N", "A", "B", " "), [["add load save", ""], ["load save", TAKEN], ["load save", TAKEN], ["load save", ""]]);
    page.type("#item_name", "");
    page.click("#items .item-row");
    assert.deepEqual([rows(page), free(page), page.$("#items input").attr("aria-label")], [[">A1"], ["change delete load save", ""], "A"]);
    assert.deepEqual(states("B", "", "C"), [["delete load save", TAKEN], ["delete load save", ""], ["add change delete load save", ""]]);
});

customTest("a camera without items can be given some", (page) => {
    assert.deepEqual([free(page), page.texts("#no_items:visible")], [["load", ""], ["~There are no items."]]);
    page.type("#item_value", "1");
    assert.deepEqual(free(page), ["load save", ""]);
    page.type("#item_name", "N");
    assert.deepEqual(free(page), ["add load save", ""]);
}, {getCustomInfo: ""});

customTest("without a camera only the dialog's own buttons do something", (page, info) => {
    assert.deepEqual([page.told(info, /^set/), page.texts("#no_items:visible"), page.shown("#all_btn")],
        [[["setSelectedDeviceItems", []], ["setSelectedDeviceItems", []]], ["~Select a camera."], false]);
    assert.deepEqual([page.texts("#tick_head"), page.texts("#cancel_btn")], [["~Use"], ["~Cancel"]]);
    page.type("#item_name", "N");
    assert.deepEqual(free(page), ["", ""]);
    page.click("#ok_btn");
    assert.deepEqual(page.told(info, WRITES), [["accept"]]);
}, {getDeviceInfo: "", getCallbackType: 2});

for (const [title, other, typed, fields, list] of [
    ["that is untouched goes", [item("A", "2")], null, ["", "", ""], ["A2"]],
    ["that waits stays where the other camera has it too", [item("A", "2")], "9", ["A", "9", ""], [">A2"]],
    ["that waits goes where the other camera has none of its name", [item("B")], "9", ["", "", ""], ["B"]]]) {
    customTest(`another camera is selected: an item ${title}`, (page, info) => {
        page.click("#documents tr[data-recid=1]");
        page.click("#items .item-row");
        if (typed) {
            page.type("#item_value", typed);
        }
        page.click("#documents tr[data-recid=2]");
        assert.deepEqual([fieldsOf(page), rows(page), page.told(info, WRITES)], [fields, list, []]);
        page.click("#all_btn"); // the one that shows goes on showing
        assert.deepEqual([page.told(info, /^set/).slice(-2), page.texts("#documents .current")],
            [[["setSelectedDeviceItems", []], ["setSelectedDeviceItems", [1, 2]]], ["C2"]]);
    }, {getCustomInfo: (key) => JSON.stringify(key === 11 ? [item("A", "1")] : other)});
}

// What the file has, what was chosen and typed before, and what was told, stands in the fields, in the list and as a hint.
for (const [title, file, chosen, texts, told, fields, list, hint] of [
    ["show", [item("L")], true, {}, ["load"], ["", "", ""], ["L"], ""],
    ["that were not chosen change nothing", null, true, {}, ["load"], ["A", "1", ""], [">A1"], ""],
    ["wait for the change that was typed", [item("L")], true, {value: "2"}, ["editCustomData", "load"], ["", "", ""], ["L"], ""],
    ["wait for a name that can be taken", [item("L")], true, {name: ""}, [], ["", "1", ""], [">A1"], "~Enter a name."],
    ["are joined by the new one that was typed", [item("L")], false, {name: "N"}, ["load", "addCustomData"], ["", "", ""], ["L", "N"], ""],
    ["leave a new one that has the same name", [item("L")], false, {name: "L"}, ["load"], ["L", "", ""], ["L"], TAKEN],
    ["that were not chosen leave a new one where it is", null, false, {name: "N"}, ["load"], ["N", "", ""], ["A1"], ""]]) {
    const all = {11: [item("A", "1")]};
    customTest(`items from a file ${title}`, (page, info) => {
        if (chosen) {
            page.click("#items .item-row");
        }
        Object.entries(texts).forEach(([field, text]) => page.type(`#item_${field}`, text));
        page.focus("#load_btn").click("#load_btn");
        assert.deepEqual([page.told(info, WRITES).map(([name]) => name), fieldsOf(page), rows(page), page.$("#item_hint").text()],
            [told, fields, list, hint]);
        assert.deepEqual([page.focused(), page.shown("#all_btn")], [hint ? "item_name" : "load_btn", false], "a fault is mended at once");
    }, {getDeviceInfo: {Records: [{recid: 1, name: "C1", dockey: 11}], InitSelect: 1}, getCustomInfo: (key) => JSON.stringify(all[key]),
        load: () => { all[11] = file || all[11]; }, addCustomData: (_, one) => { all[11] = all[11].concat({...none, ...one}); },
        editCustomData: (_, one) => { all[11] = [{...all[11][0], ...one}]; }});
}

customTest("Enter takes the fields and goes on to the next new item, but stays at an old one", (page, info) => {
    page.click("#documents tr[data-recid=1]");
    page.type("#item_name", "N");
    page.focus("#item_unit");
    assert.deepEqual([page.down(KEY.ENTER), page.told(info, WRITES).length, page.focused()], [false, 1, "item_name"]);
    page.focus("#item_value").key(KEY.ENTER);
    page.key(KEY.DOWN);
    assert.deepEqual([page.told(info, WRITES), page.focused()], [[], "item_value"]);
    page.click("#items tr[data-recid=1]");
    page.type("#item_value", "5");
    page.key(KEY.ENTER);
    assert.deepEqual([page.told(info, WRITES).map(([name, , one]) => [name, one.value]), page.focused()],
        [[["editCustomData", "5"]], "item_value"]);
});

customTest("a tick tells its whole item, and shows what became of it", (page, info) => {
    page.click("#documents tr[data-recid=2]");
    page.check("#items input");
    assert.deepEqual([page.told(info, WRITES), page.$("#items input").prop("checked"), fieldsOf(page)],
        [[["enableCustomData", [12], [{recid: 1, name: "B", value: "2", unit: "", selected: true}]]], false, ["", "", ""]]);
    info.answers.enableCustomData = () => { info.answers.getCustomInfo = JSON.stringify([{...item("B"), selected: true}]); };
    page.check("#items input");
    assert.ok(page.$("#items input").prop("checked"));
});
