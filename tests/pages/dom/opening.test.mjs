// The dialog that opens recordings.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";

const drive = (recid, drivename, driveno, slotno) => ({recid, drivename, driveno, slotno, drivetype: "1"});
const drives = (...record) => JSON.stringify({record, select: 0});
const onDrive = (recid, dockey, name, more = {}) => ({
    recid, dockey, partitionno: "1", filename: name, dataname: name, path: "<u>store", serialno: "7", datano: String(recid),
    date: "2021/3/5", time: "09:45:01", ...more
});
const inFile = (recid, dockey) => ({recid, dockey, partitionno: "1", filename: "f.rch", path: "/data/run/f.rch", recordrate: "1000"});
const STORE = drive(0, "<u>store", "1", "0");

function openObjects(rows) {
    return {
        fileopendialog: recorder({
            translate: (text) => text, getStyle: "light", list: JSON.stringify(rows), select: "",
            getSDDrives: drives(drive(0, "D:"), drive(1, "E:")), getFDDrives: drives(STORE, drive(1, "", "2", "1")),
            getCFDrives: drives(drive(0, "card", "4", "3")),
            getFDUseRatio: "12.00%", getTotalWrittenAmount: "3.0%", getCFUseRatio: "50.00%",
            existSetDockStorePassword: (type, no) => type === 1 && no !== 2,
            canSavedCheck: true, checkDeleteFile: true, canConvertDataName: (key) => key !== 9, deleteFile: true, savedCheck: true
        }),
        drives: recorder({confirmLoss: true, count: 4}),
        saving: recorder({openFiles: true})
    };
}

const openTest = (title, rows, body) => pageTest(title, "fileopendialog.html", () => openObjects(rows),
    (page, all) => body(page, all.fileopendialog, all));
const told = (page, object) => page.told(object).filter(([name]) => !/^(list|select|can|check)$/.test(name));
const names = (page) => page.texts("#rows tbody td:nth-child(2)");
const locks = (page) => ["ok", "check", "delete"].map((button) => page.locked(`#${button}_btn`));
const current = (page) => Array.from(page.$(".drive[aria-pressed=true]"), (button) => `${button.textContent} ${button.className}`);

openTest("without rows and drives there is nothing to be done but to leave", [], async (page, dialog, {saving}) => {
    assert.deepEqual([page.shown("#no_rows"), page.shown("#rename_field"), locks(page)], [true, false, [true, true, true]]);
    assert.equal(page.$("html").attr("class"), "style-light");
    ["SD", "FD", "CF"].forEach((kind) => { dialog.answers[`get${kind}Drives`] = ""; });
    saving.answers.openFiles = false;
    const lists = () => page.told(dialog, /^list$/);
    lists();
    page.click("#files_btn");
    assert.deepEqual([page.shown("#no_drives"), page.texts("#drives *"), lists()], [true, [], []], "no file was chosen");
    dialog.answers.list = JSON.stringify([inFile(1, "5")]);
    dialog.answers.getSDDrives = drives(drive(0, "D:"));
    page.click("#folder_btn");
    assert.deepEqual([lists(), names(page), page.shown("#no_drives"), locks(page)],
        [[["list", true]], ["f.rch"], false, [false, false, false]]);
    assert.deepEqual([page.texts("#rows tbody td:nth-child(3)"), page.$("#last_column").text()], [["/data/run"], "Frame rate"]);
    saving.answers.openFiles = true;
    page.click("#files_btn");
    assert.equal(lists().length, 1);
    page.click("#all_rows");
    assert.deepEqual(locks(page), [true, false, false], "the row in hand needs no tick");
    page.told(dialog);
    page.click("#cancel_btn");
    assert.deepEqual(page.told(dialog), [["reject"]]);
});

openTest("each drive is opened by its numbers, and offers what its kind can do", [], async (page, dialog, {drives: asked}) => {
    assert.deepEqual(page.texts(".drive-group"), ["SD cardD:E:", "DockStore<u>store2", "CFastcard"], "one without a name has its number");
    assert.deepEqual(current(page), ["D: drive current"], "a card that is open from before");
    const offers = () => [page.$("#drive_use").text(), page.locked("#format_btn"), page.locked("#password_btn")];
    const open = (text) => page.$(".drive").filter((_, button) => button.textContent === text).trigger("click");
    const opens = () => page.told(dialog, /^select..Drive$/)[0];
    [["E:", ["selectSDDrive", 1], ["", true, true]],
        ["<u>store", ["selectFDDrive", 1, 1, 0, "<u>store"], ["12.00% used, 3.0% written", false, false]],
        ["2", ["selectFDDrive", 1, 2, 1, ""], ["12.00% used, 3.0% written", false, true]],
        ["card", ["selectCFDrive", 1, 4, 3, "card"], ["50.00% used", false, true]]].forEach(([text, call, offered]) => {
        dialog.answers.getSDDrives = JSON.stringify({record: [drive(0, "D:"), drive(1, "E:")], select: 1});
        open(text);
        assert.deepEqual([opens(), offers(), current(page)], [call, offered, [`${text} drive current`]]);
    });
    open("D:");
    assert.deepEqual(current(page), ["E: drive current"], "to close what is on it was refused");
    open("card");
    page.told(dialog);
    page.click("#format_btn");
    assert.deepEqual([told(page, dialog), page.told(asked)], [[["formatCFast", 1, 4, 3]],
        [["count", "cf", 4, 3], ["confirmLoss", "All data on card will be deleted.", "Recordings on it: 4"]]]);
    open("<u>store");
    page.click("#password_btn");
    assert.deepEqual(told(page, dialog).pop(), ["setDockStorePassword", 1, 1]);
    asked.answers.confirmLoss = false;
    page.click("#format_btn");
    asked.answers.confirmLoss = () => {
        dialog.answers.getFDDrives = drives(drive(1, "", "2", "1"));
        dialog.update.slots.forEach((slot) => slot());
        return true;
    };
    page.click("#format_btn");
    assert.deepEqual([told(page, dialog), current(page), offers()], [[], [], ["", true, true]], "it was pulled while the question stood");
});

openTest("rows of a drive that was opened are in hand, no others", [onDrive(1, "5", "<i>a")], async (page, dialog, all) => {
    assert.deepEqual(page.texts("#rows tbody tr:eq(0) td").slice(1, 4), ["<i>a", "<u>store", "2021/3/5 09:45:01"]);
    page.click(".drive[data-kind=fd]:first");
    assert.deepEqual([page.$("#rows tr.ui-selected").length, locks(page)], [0, [false, true, true]]);
    dialog.answers.list = JSON.stringify([onDrive(1, "5", "<i>a"), onDrive(2, "6", "$&b", {style: "background-color:red;"})]);
    page.click("#format_btn");
    assert.deepEqual(page.texts("#rows tr.ui-selected.not-saved td:nth-child(2)"), ["$&b"], "of a drive that was formatted, too");
    const other = drive(0, "other", "0", "0");
    dialog.answers.getFDDrives = drives(other, {...STORE, recid: 1});
    await page.emit(dialog, "update");
    assert.deepEqual(current(page), ["<u>store drive current"], "another one was put in before it");
    page.told(all.drives);
    page.told(dialog, /./);
    page.click("#check_btn");
    assert.deepEqual(page.told(dialog, /^(savedCheck|list)$/), [["savedCheck", [{serialno: "7", datano: "1"}, {serialno: "7", datano: "2"}]],
        ["list", true]], "of all rows, ticked or not");
    dialog.answers.savedCheck = false;
    page.click("#check_btn");
    assert.deepEqual(page.told(dialog, /^list$/), [], "no folder was chosen");
    dialog.answers.list = "[]";
    await page.emit(dialog, "update");
    assert.deepEqual(page.texts("#rows tbody tr"), [], "its card was pulled");
});

openTest("what is deleted after a question can't be opened", [onDrive(1, "5", "a"), inFile(2, "6"), onDrive(3, "7", "c")],
    async (page, dialog, {drives: asked}) => {
        dialog.answers.checkDeleteFile = (key) => key !== 7;
        dialog.answers.canSavedCheck = (key) => key !== 7;
        const remove = (row) => {
            page.click(`#rows tbody tr:eq(${row})`);
            page.told(asked);
            page.told(dialog);
            page.click("#delete_btn");
            return [page.told(asked)[0].slice(1), told(page, dialog)];
        };
        asked.answers.confirmLoss = false;
        assert.deepEqual(remove(0), [["a on <u>store will be deleted.", ""], []]);
        asked.answers.confirmLoss = true;
        dialog.answers.deleteFile = false;
        assert.deepEqual(remove(1), [["/data/run/f.rch will be deleted.", ""], [["deleteFile", 6]]]);
        assert.equal(names(page).length, 3, "it could not be deleted");
        dialog.answers.deleteFile = true;
        remove(1);
        assert.deepEqual(names(page), ["a", "c"]);
        page.click("#rows tbody tr:eq(1)");
        assert.deepEqual(locks(page), [false, true, true]);
        page.told(dialog);
        page.click("#ok_btn");
        assert.deepEqual(told(page, dialog), [["importTarget", ["5", "7"]], ["accept"]]);
    });

openTest("a record gets another name, and what is typed stays until then", [onDrive(1, "5", "<i>a"), onDrive(2, "9", "b")],
    async (page, dialog) => {
        page.type("#data_name", "crash");
        page.told(dialog, /./);
        await page.emit(dialog, "update");
        assert.deepEqual(page.told(dialog, /^select$/), [], "the same list is not shown anew");
        page.click("#rows tbody tr:eq(1) input");
        page.told(dialog, /./);
        page.click("#rename_btn");
        assert.deepEqual(page.told(dialog, /^(convert|list)/), [["convertDataName", 5, "crash", 1, true], ["list", true]]);
        assert.equal(page.val("#data_name"), "<i>a", "what the drive has taken");
        page.type("#data_name", "");
        page.click("#rename_btn");
        assert.deepEqual(page.told(dialog, /^convert/), [], "a record without a name has none to be found by");
        page.focus("#rows tbody tr:eq(0)").key(KEY.DOWN);
        assert.deepEqual([page.shown("#rename_field"), page.val("#data_name")], [false, ""], "this one keeps its name");
    });
