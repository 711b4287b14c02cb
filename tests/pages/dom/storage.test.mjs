// The page of a camera's storage.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";

const MARKUP = "<b>Marlin</b>";
const record = (recid, name) => ({recid, name, frame: 9, date: "2021/3/5", time: "09:45:01"});

/** Camera 7 has all kinds of storage, 8 a CFast card, 9 none. */
function storageObjects() {
    const prefs = {};
    const has = (...keys) => ({isManaged: (key) => keys.includes(key)});
    const common = {
        translate: (text) => text, getStyle: "light", isEnabaleSlot: true, isFormatted: true, getFreeSpace: "2.00GB",
        getDataList: JSON.stringify([record(1, "<u>x"), record(2, "y")])
    };
    return {
        storagedialog: recorder({getSelectedDockey: () => ["7"], translate: common.translate, getStyle: "light"}),
        savesd: recorder({
            ...common, ...has(7), isInserted: (key, slot) => slot === 2, isProtected: (key, slot) => slot !== 2,
            getSDInfo: () => Object.assign([], {class: "Class10", speed: "High", size: "1.00GB"}), // a map, no text
            getMemoryMode: "Normal", getDataList: JSON.stringify([record(1), record(2)]),
            getDeviceInfoList: () => ["7", "8", "9"].map((key) => JSON.stringify({key, cameraname: key === "7" ? MARKUP : `C${key}`}))
        }),
        savedockstore: recorder({
            ...common, ...has(7), isConnected: true, getSlotNo: (key, index) => 3 + index, canConvertDataName: true,
            getAddCameraName: MARKUP, getAddNumber: "C1S1", getAddDateTime: (format) => format.replace(/\W/g, ""),
            getPrefBool: (name) => prefs[name] || false, setPrefBool: (name, value) => { prefs[name] = value; }
        }),
        savecfast: recorder({...common, ...has(7, 8), isInserted: true}),
        drives: recorder({isLinked: true, isLocked: (key, slot) => slot !== 3, unlock: true, confirmLoss: true})
    };
}

const storageTest = (title, body) => pageTest(title, "camerastorage.html", storageObjects,
    (page, all) => body(page, all, (slot) => page.click(`#slots button:eq(${slot})`)));
const [EMPTY_SD, SD, STORE, CFAST] = [0, 1, 2, 3];
const told = (page, store) => page.told(store, /^(convertDataName|format|setPref|selected|numberSetting)/);
const pressed = (page) => Array.from(page.$("#slots button"), (button) => `${button.getAttribute("aria-pressed")} ${button.className}`);

storageTest("the page tells of a slot what is in it, and offers what can be done to it", async (page, all, choose) => {
    const {storagedialog, drives, savesd, savedockstore, savecfast} = all;
    assert.deepEqual(page.texts("#slots button"), ["SD card 1", "SD card 2", "DockStore", "CFast"]);
    assert.equal(page.$("html").attr("class"), "style-light");
    assert.equal(pressed(page)[EMPTY_SD], "true drive current", "the first one");
    const seen = () => [page.$("#state").text(), page.$("#facts").text(), page.texts("#records tbody tr").length];
    const offered = () => [...["#no_records", "#unlock_btn", "#rename_field", "#name_parts"].filter((part) => page.shown(part)),
        ...(page.locked("#format_btn") ? [] : ["#format_btn"])];
    const NAMES = ["#rename_field", "#name_parts"];
    const rows = [
        [EMPTY_SD, {}, ["Empty slot", "", 0], ["#no_records"]],
        [SD, {}, ["Formatted", "Class10, High, 1.00GB, Normal", 2], ["#format_btn"]],
        [SD, {isFormatted: false, isProtected: true, getDataList: ""},
            ["Not formatted, Write protected", "Class10, High, 1.00GB, Normal", 0], ["#no_records", "#format_btn"]],
        [CFAST, {}, ["Formatted", "2.00GB free", 2], ["#format_btn"]],
        [CFAST, {isInserted: false}, ["Empty slot", "", 0], ["#no_records"]],
        [STORE, {}, ["Formatted", "2.00GB free", 2], [...NAMES, "#format_btn"]],
        [STORE, {canConvertDataName: false}, ["Formatted", "2.00GB free", 2], ["#format_btn"]],
        [STORE, {isConnected: false}, ["Empty slot", "", 0], ["#no_records"]],
        [STORE, {isLocked: true}, ["Locked by a password", "", 0], ["#unlock_btn"]],
        [STORE, {isLinked: false}, ["There is no link to the camera", "2.00GB free", 2], [...NAMES, "#format_btn"]]
    ];
    const objects = [savesd, savesd, savedockstore, savecfast];
    rows.forEach(([slot, answers, facts, offers]) => {
        const object = "isLocked" in answers || "isLinked" in answers ? drives : objects[slot];
        const before = {...object.answers};
        Object.assign(object.answers, answers);
        choose(slot);
        assert.deepEqual([seen(), offered()], [facts, offers], `${slot} ${JSON.stringify(answers)}`);
        assert.deepEqual(pressed(page), [0, 1, 2, 3].map((each) => each === slot ? "true drive current" : "false drive"));
        Object.assign(object.answers, before);
    });
    page.told(savesd, /./);
    savecfast.answers.isInserted = false;
    choose(CFAST);
    savecfast.answers.isInserted = true;
    await page.emit(storagedialog, "update");
    assert.deepEqual(seen(), ["Formatted", "2.00GB free", 2], "the card went in");
    page.click("#close_btn");
    assert.deepEqual(page.told(storagedialog), [["accept"]]);
});

storageTest("the camera that is selected shows first, and another one brings its own slots", async (page, all, choose) => {
    const {savesd, savecfast, storagedialog} = all;
    assert.deepEqual(page.texts("#camera option"), [MARKUP, "C8", "C9"]);
    assert.deepEqual(page.told(savesd, /^getDeviceInfoList$/), [["getDeviceInfoList", false]]);
    assert.ok(!page.shown("#no_slots"));
    choose(CFAST);
    page.click("#records tbody tr:eq(1)");
    await page.rest();
    page.choose("#camera", "8");
    assert.deepEqual([page.texts("#slots .current"), page.$("#state").text(), page.locked("#rename_btn")], [["CFast"], "Formatted", true],
        "its only slot is the one that shows");
    page.click("#records tbody tr:eq(1)");
    savecfast.answers.isManaged = false;
    page.click("#refresh_btn");
    assert.deepEqual([page.shown("#no_slots"), page.shown("#no_records"), page.$("#state").text(), page.locked("#format_btn")],
        [true, false, "", true]);
    await page.emit(storagedialog, "update");
    savecfast.answers.isManaged = true;
    page.click("#refresh_btn");
    assert.deepEqual([page.texts("#slots button"), page.$("#records .ui-selected").length], [["CFast"], 0], "no record was chosen since");
    savecfast.answers.isEnabaleSlot = (key, slot) => slot !== 0;
    page.click("#refresh_btn");
    assert.deepEqual(page.texts("#slots button"), []);
});

pageTest("the camera that is selected in the viewer is the one that shows", "camerastorage.html", () => {
    const all = storageObjects();
    all.storagedialog.answers.getSelectedDockey = () => ["8", "7"];
    return all;
}, async (page, {savecfast}) => {
    assert.deepEqual([page.val("#camera"), page.texts("#slots button")], ["8", ["CFast"]]);
    assert.deepEqual(page.told(savecfast, /^getDataList$/), [["getDataList", 8, 0]]);
});

storageTest("a medium is formatted once it was agreed to, and shows what is on it then", async (page, all, choose) => {
    const {savesd, savecfast, drives} = all;
    choose(SD);
    page.click("#records tbody tr:eq(0)");
    savesd.answers.getDataList = "[]";
    page.click("#format_btn"); // its object asks by itself
    assert.deepEqual([told(page, savesd), page.told(drives), page.texts("#records tbody tr")], [[["format", 7, 2]], [], []]);
    choose(CFAST);
    drives.answers.confirmLoss = false;
    page.click("#format_btn");
    assert.deepEqual(page.told(drives), [["confirmLoss", `All data on ${MARKUP}, CFast will be deleted.`, "Recordings on it: 2"]]);
    assert.deepEqual(told(page, savecfast), []);
    drives.answers.confirmLoss = true;
    page.click("#format_btn");
    assert.deepEqual(told(page, savecfast), [["format", 7, 0]]);
    assert.deepEqual(page.texts("#slots .current"), ["CFast"]);
});

storageTest("a drive that asks for its password shows its records once it has it", async (page, {drives}, choose) => {
    drives.answers.isLocked = true;
    drives.answers.unlock = () => false;
    choose(STORE);
    page.click("#unlock_btn");
    assert.ok(page.shown("#unlock_btn"));
    drives.answers.unlock = (key, slot) => {
        drives.answers.isLocked = false;
        return key === 7 && slot === 3;
    };
    page.click("#unlock_btn");
    assert.deepEqual([page.shown("#unlock_btn"), page.texts("#records tbody tr").length], [false, 2]);
});

storageTest("a record is chosen by mouse or keys and gets another name", async (page, {savedockstore: store}, choose) => {
    choose(SD);
    page.click("#records tbody tr:eq(0)");
    assert.deepEqual([page.texts("#records tr:eq(1) td"), page.val("#data_name")], [["1", "", "9", "2021/3/5", "09:45:01"], ""]);
    assert.equal(page.$("#records tr:eq(1)").attr("data-log"), "1", "without a name it is told by its number");
    choose(STORE);
    const locks = () => ["#data_name", "#rename_btn", "#add_sequence", "#camera_part", "#number_btn"].map((part) => page.locked(part));
    const chosen = () => Array.from(page.$("#records tbody tr"), (row) => `${row.getAttribute("aria-selected")} ${row.className}`);
    assert.deepEqual([locks(), chosen()], [Array(5).fill(true), ["false record-row", "false record-row"]], "that was one of another slot");
    page.focus("#records tbody tr:eq(0)").key(KEY.DOWN);
    assert.deepEqual([locks(), chosen()], [Array(5).fill(false), ["false record-row", "true record-row ui-selected"]]);
    page.key(KEY.UP);
    assert.deepEqual([page.val("#data_name"), page.$("#records tr:eq(1)").attr("data-log")], ["<u>x", "<u>x"]);
    page.told(store);
    page.type("#data_name", "whe/el");
    store.answers.getDataList = JSON.stringify([record(1, "wheel")]);
    page.click("#rename_btn");
    assert.deepEqual(told(page, store), [["convertDataName", 7, 3, 0, "wheel", 1]], "without what no file's name may hold");
    assert.deepEqual([page.texts("#records td:nth-child(2)"), chosen()[0]], [["wheel"], "true record-row ui-selected"]);
    page.type("#data_name", "");
    page.click("#rename_btn");
    assert.deepEqual(told(page, store), [], "a record without a name has none to be found by");
});

storageTest("a name is put together from parts, as long as it may be", async (page, {savedockstore: store}, choose) => {
    store.answers.getPrefBool = true;
    choose(STORE);
    assert.ok(page.$("#add_sequence").prop("checked"));
    page.click("#records tbody tr:eq(1)");
    page.click("#number_part");
    assert.deepEqual([page.val("#data_name"), page.focused(), page.$("#number_part").text()], ["y_C1S1", "data_name", "C1S1"]);
    ["#time_part", "#camera_part"].forEach((button) => page.click(button));
    assert.equal(page.val("#data_name"), `y_C1S1_yyyyMMdd_HHmmss_${MARKUP}`.slice(0, 32));
    page.told(store);
    page.check("#add_sequence");
    assert.deepEqual(told(page, store), [["setPrefBool", "convert/fd/datanameaddnumber", false, false]]);
    store.answers.getAddNumber = "C001S1";
    page.click("#number_btn");
    assert.deepEqual(told(page, store), [["selectedDocCount", 1], ["selectedDocHeadCount", 1], ["numberSetting"]]);
    assert.equal(page.$("#number_part").text(), "C001S1");
});

storageTest("what is typed stays while others change something, and goes with its card", async (page, all, choose) => {
    const {savedockstore: store, storagedialog} = all;
    choose(STORE);
    page.click("#records tbody tr:eq(0)");
    page.type("#data_name", "wh");
    page.told(store, /./);
    await page.emit(storagedialog, "update");
    assert.deepEqual([page.val("#data_name"), page.told(store, /^getDataList$/)], ["wh", []]);
    store.answers.isConnected = false;
    await page.emit(storagedialog, "update");
    store.answers.isConnected = true;
    await page.emit(storagedialog, "update");
    assert.deepEqual([page.$("#records .ui-selected").length, page.locked("#rename_btn"), page.val("#data_name")], [0, true, ""],
        "what is in now is another card");
});
