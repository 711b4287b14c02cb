// The dialogs that save.
import assert from "node:assert/strict";
import {KEY} from "../support/page.mjs";
import {MARKUP, ROWS, saveTest} from "../support/saving.mjs";

saveTest("what is ticked is handed over, row by row, and the dialog ends once it is taken", async (page, {filesavedialog, saving}) => {
    assert.deepEqual(page.texts("#rows tbody td:nth-child(2)"), [MARKUP, MARKUP, "Plover"]);
    assert.equal(page.$("#last_column").text(), "Size");
    assert.equal(page.$("#rows b").length, 0);
    assert.equal(page.$("#rows tbody input:checked").length, 2);
    assert.match(page.$("#thumbnail").attr("src"), /^data:image\/png;base64,iVBOR/);
    assert.equal(page.val("#name_preview"), "/data/group/shot_0001");
    assert.equal(page.$("#capacity").text(), "2KB");
    page.click("#rows tbody tr:eq(0) input");
    page.click("#rows tbody tr:eq(1) input");
    page.told(filesavedialog);
    page.check("#save_info");
    assert.equal(page.told(filesavedialog, /^list$/).length, 1, "each document hears of it");
    const ticks = [...page.$("#rows tbody input").toArray()].map((box) => box.checked);
    assert.deepEqual(ticks, [true, false, true], "the list is read anew, and what is ticked stays as it is");
    page.click("#rows tbody tr:eq(1) input");
    assert.deepEqual(page.told(filesavedialog, /^exportDocCount$/).pop(), ["exportDocCount", 2], "two cameras, one of them twice");
    page.click("#ok_btn");
    const told = page.told(filesavedialog).filter(([name]) => /Target|Action|accept/.test(name));
    assert.deepEqual(told, [["exportTarget", 7, 1], ["exportTarget", 7, 3], ["exportTarget", 9, 1], ["saveAction"], ["accept"]]);
    assert.deepEqual(page.told(saving, /^save$/)[0][1].map((row) => `${row.dockey}:${row.partitionno}`), ["7:1", "7:3", "9:1"]);
});

saveTest("in live mode there is a live picture to save, and no recording", async (page) => {
    assert.deepEqual(page.texts("#rows tbody td:nth-child(4)"), ["Live picture", "Live picture", "Live picture"]);
    assert.match(page.$("#thumbnail").attr("src"), /base64,layout$/, "the program's own preview comes first");
}, "filesavedialog", {"export/dir": "/data/", live: true, preview: "layout"});

saveTest("a folder with too little room is told before", async (page) => {
    assert.deepEqual([page.$("#free_space").text(), page.shown("#room_hint")], ["2.00GB", false]);
    page.click("#all_rows");
    assert.ok(page.shown("#room_hint"));
});

saveTest("the cuts of a recording are shown in turn, and a picture with its name anew", async (page, {filesavedialog, savefile}) => {
    const pictures = () => page.told(filesavedialog, /^select$/).length;
    assert.ok(!page.shown("#cuts"));
    page.click("#rows tbody tr:eq(2)");
    assert.ok(page.shown("#cuts"));
    pictures();
    page.click("#cut_next");
    assert.deepEqual([page.$("#cut_label").text(), pictures()], ["cut 2", 1]);
    page.click("#cut_prev");
    assert.deepEqual([page.$("#cut_label").text(), pictures()], ["cut 1", 1]);
    page.type("#file_name", "a");
    assert.equal(pictures(), 0);
    savefile.answers.isNeedRefreshPreview = true;
    page.type("#file_name", "b");
    assert.equal(pictures(), 1);
});

saveTest("what the other buttons open and keep is told with the documents that are ticked", async (page, {filesavedialog, saving}) => {
    page.told(filesavedialog);
    page.click("#info_btn");
    assert.deepEqual(page.told(filesavedialog), [["saveInfoView", ["7", "9"]], ["select", 7, 3, 240, 180]], "the picture may have changed");
    page.click("#time_code_btn");
    page.click("#apply_btn");
    assert.deepEqual(page.told(filesavedialog), [["openCustumTimeCodeDialog"], ["applyAction"]]);
    assert.deepEqual(page.told(saving, /Settings$/), [["settleSettings", true], ["rememberSettings"]]);
});

saveTest("the picture of a layout is of all that are ticked", async (page, {saving, savefile}) => {
    page.told(saving);
    page.check("#rows tbody tr:eq(0) input");
    const [row, ...others] = [["7", "3"], ["7", "1"], ["9", "1"]].map(([dockey, partitionno]) => ({dockey, partitionno}));
    assert.deepEqual(page.told(saving, /^preview$/), [["preview", row, [others[0], row, others[1]], 240, 180]]);
    assert.deepEqual(page.told(savefile, /^selectedDocCount$/).pop(), ["selectedDocCount", 2]);
    assert.equal(page.val("#name_preview"), "/data/shot_0001", "without a folder of its group");
}, "layoutsavedialog", {"layout/dir": "/data/"});

saveTest("the picture that shows is the one of a snapshot", async (page) => {
    assert.equal(page.$("#rows tbody input:checked").length, 1);
    assert.ok(page.$("#rows tr.ui-selected input").prop("checked"));
    assert.equal(page.$("#rows tr.ui-selected").index(), 2);
}, "snapshotdialog", {"snap/dir": "/data/", "snap/format": "PNG", current: 9});

saveTest("a save that fails leaves the dialog open, and without rows there is none", async (page, {filesavedialog}) => {
    filesavedialog.answers.getExportFile = "shot_0002";
    page.click("#ok_btn");
    assert.ok(!page.told(filesavedialog).some(([name]) => name === "accept"));
    assert.match(page.val("#name_preview"), /shot_0002$/, "a part was saved");
    page.click("#all_rows");
    page.click("#all_rows");
    assert.ok(page.locked("#ok_btn"));
    page.click("#cancel_btn");
    assert.deepEqual(page.told(filesavedialog).slice(-2), [["cancelAction"], ["reject"]]);
}, "filesavedialog", {"export/dir": "/data", works: false});

saveTest("the skip is limited by what is ticked, in frames or on the grid of the rates", async (page, {filesavedialog}) => {
    const limits = () => page.told(filesavedialog).filter(([name]) => name === "refreshSkipFrame").map(([, map]) => map);
    assert.deepEqual(limits().pop(), {7: [3], 9: [1]});
    page.click("#rows tbody tr:eq(2) input");
    assert.deepEqual(limits(), [{7: [3]}]);
    page.choose("#skip_unit", "1");
    assert.equal(limits().length, 1);
    assert.equal(page.val("#skip_value"), "8");
    page.enter("#skip_value", "12");
    assert.ok(page.told(filesavedialog).some(([name, value]) => name === "setSkipFrames" && value === 12));
    assert.equal(page.val("#skip_value"), "8", "what is taken shows, not what was typed");
});

saveTest("the skip has the unit that is stored, and the steps of its unit", async (page, {filesavedialog}) => {
    const options = () => ["min", "max", "step", "decimal"].map((name) => page.$("#skip_value").spinnerStopFire("option", name));
    assert.deepEqual([page.val("#skip_unit"), ...options()], ["1", 4, 160, 4, true]);
    await page.rest();
    page.choose("#skip_unit", "0");
    assert.deepEqual([page.told(filesavedialog, /^setSkipMode$/), ...options()], [[["setSkipMode", 0]], 1, 160, 1, false]);
}, "filesavedialog", {"export/dir": "/data/", skip: 1});

saveTest("names, folders and formats are stored at once, and what they become is shown", async (page, {savefile, filesavedialog}) => {
    const told = () => page.told(savefile).filter(([name]) => /^(setPref|number|select)/.test(name));
    told();
    page.check("#group_on");
    told();
    filesavedialog.answers.getExportFile = "shot_01";
    page.click("#group_number_btn");
    assert.match(page.val("#name_preview"), /shot_01$/, "other digits");
    page.check("#file_addtime");
    assert.deepEqual(told().slice(2), [["setPrefString", "export/filenameaddtimeformat", "yyyyMMdd_HHmmss", false]]);
    savefile.setPrefString("export/filenameaddtimeformat", "HHmm", false);
    page.check("#file_addtime");
    page.check("#file_addtime");
    assert.deepEqual(told().pop(), ["setPrefBool", "export/filenameaddtime", true, false], "another format stays");
    page.check("#single_path");
    assert.ok(page.shown("#multi_paths"));
    assert.deepEqual(told().pop(), ["setPrefString", "export/multipathdevicelist", "10.0.0.1|left", false],
        "a camera without a folder gets the one that shows");
    savefile.setPrefString("export/multipathdevicelist", "10.0.0.9|left?10.0.0.1|left", false);
    page.choose("#device_rows select", "right");
    assert.deepEqual(told().pop(), ["setPrefString", "export/multipathdevicelist", "10.0.0.9|left?10.0.0.1|right", false],
        "those that are not in view keep theirs");
    savefile.setPrefBool("export/dirasoriginal", true);
    savefile.answers.selectFolder = "/data/a?b";
    page.click("#add_path_btn");
    assert.deepEqual(page.told(savefile, /^(alert|setPrefString)$/).pop(),
        ["alert", "The folder's name must not hold \"|\" or \"?\"."], "they separate what is stored");
    savefile.answers.selectFolder = "/data/c";
    page.click("#add_path_btn");
    assert.equal(page.told(savefile, /^setPrefString$/).pop()[2].split("?").pop(), "2|/data/c");
    savefile.answers.selectFolder = "/other/";
    assert.ok(!page.locked("#folder_btn"), "what was recorded just now lies beside no file");
    savefile.setPrefString("export/multipathdevicelist", "10.0.0.9|left", false);
    page.check("#single_path");
    page.check("#single_path");
    assert.deepEqual(told().pop(), ["setPrefString", "export/multipathdevicelist", "10.0.0.9|left?10.0.0.1|left", false],
        "one that is new, too");
    savefile.answers.getMultiPaths = JSON.stringify([{name: "left", path: "/a"}, {name: "3", path: "/b"}]);
    page.check("#single_path");
    page.check("#single_path");
    told();
    page.click("#add_path_btn");
    assert.deepEqual(told().find(([name]) => name === "setPrefString"),
        ["setPrefString", "export/multipathlist", "left|/a?3|/b?4|/other/", false], "a number that no folder has");
    page.click("#path_rows .path-row:eq(1) button");
    assert.deepEqual(told(), [["setPrefString", "export/multipathlist", "left|/a", false]], "it goes, though it is called by a number");
});

saveTest("the names of a batch are composed for all of it, and save nothing themselves", async (page, {convertparametereditdialog: dialog}) => {
    page.click("#info_btn");
    assert.deepEqual(page.told(dialog, /^saveInfo/), [["saveInfoView", ["9", "7", "5"]]]);
    page.told(dialog, /./);
    dialog.answers.getExportSubDir = "sub";
    page.type("#file_name", "run");
    assert.deepEqual(page.told(dialog, /^(setSelect|getExportGroup)/).map((call) => call.slice(1).join()),
        ["9", "1", "9,1", "5", "1", "5,1", "7", "1", "7,1"], "the one in hand stays in hand");
    assert.deepEqual([page.val("#name_preview"), page.$("#batch_names").text()],
        ["/data/group/sub/shot_0001", "/data/group/sub/shot_0001 (3 files, numbered on from here)"]);
    assert.deepEqual([page.shown("#batch_names"), page.$("#codec_hint").text()], [true, ""]);
    dialog.answers.getExportGroupDir = (key) => `g${key}`;
    page.type("#file_name", "b");
    assert.equal(page.$("#batch_names").text(), "/data/g9/sub/shot_0001\n/data/g5/sub/shot_0001\n/data/g7/sub/shot_0001");
    dialog.answers.getTargetItems = ["7"];
    page.type("#file_name", "c");
    assert.ok(!page.shown("#batch_names"), "of one alone the preview tells it");
}, "convertparametereditdialog", {"convert/dir": "/data/"});

saveTest("settings that are agreed to stay, others are given back", async (page, {batchconverter: dialog, saving, savefile}) => {
    assert.equal(page.$("#batch_names").text(), "/data/shot_0001\n/data/shot_0002", "each file's own name");
    page.check("#rows tbody tr:eq(1) input");
    assert.ok(!page.shown("#batch_names"));
    page.click("#names_btn");
    assert.deepEqual(page.told(dialog, /^open/), [["openConvertParameterEditDialog", ["9"]]]);
    savefile.setPrefBool("agrees", true);
    savefile.setPrefString("convert/filename", "other");
    page.click("#names_btn");
    assert.equal(page.val("#file_name"), "other");
    page.click("#apply_btn");
    assert.deepEqual(page.told(saving, /Settings$/), [["rememberSettings"], ["settleSettings", false], ["rememberSettings"],
        ["settleSettings", true], ["settleSettings", true], ["rememberSettings"]]);
}, "batchconverter", {"convert/dir": "/data/"});

saveTest("recordings of files may go beside them, and all to one folder", async (page, {savefile}) => {
    page.told(savefile);
    assert.deepEqual(["#original_field", "#single_field", "#multi_paths"].map((part) => page.shown(part)), [true, false, false]);
    assert.ok(page.$("#dir_original").prop("checked") && page.locked("#folder_btn"));
    assert.deepEqual(page.texts("#format option"), ["BMP", "PNG", "AVI"], "none that only a camera's memory gives");
    page.check("#dir_original");
    assert.deepEqual(page.told(savefile, /^set/), [["setPrefBool", "export/dirasoriginal", false, false]]);
    assert.ok(!page.locked("#folder_btn"));
}, "filesavedialog", {"export/dir": "/data/", "export/dirasoriginal": true, files: true});

saveTest("a conversion goes beside its files by a setting of its own", async (page, {savefile}) => {
    const shown = () => [page.$("#dir_original").prop("checked"), page.locked("#folder_btn")];
    assert.deepEqual(shown(), [true, true]);
    page.told(savefile);
    page.check("#dir_original");
    assert.deepEqual([page.told(savefile, /^set/), shown()], [[["setPrefBool", "convert/dirasoriginal", false, false]], [false, false]]);
}, "batchconverter", {"convert/dir": "/data/", "convert/dirasoriginal": true, "export/dirasoriginal": false});

const DIR = (family) => ({[`${family}/dir`]: "/data/", [`${family}/singlepath`]: true, [`${family}/saveinfo`]: true});
const FIELDS = ["rows_block", "original_field", "single_field", "multi_paths", "group_field", "format_field", "codec_field",
    "skip_field", "info_field", "names_btn", "apply_btn", "capacity"];
const WHOLE = ["rows_block", "group_field", "format_field", "skip_field", "info_field", "apply_btn", "capacity"];
[
    ["filesavedialog", "Save", "export", [...WHOLE, "single_field"], 4],
    ["batchconverter", "Convert", "convert", [...WHOLE, "original_field", "names_btn"], 4],
    ["convertparametereditdialog", "OK", "convert", ["original_field", "group_field", "format_field", "info_field", "capacity"], 4],
    ["reportExportDialog", "Save", "report", WHOLE.filter((field) => field !== "format_field"), 0],
    ["snapshotdialog", "Save", "snap", WHOLE.filter((field) => !/skip|capacity/.test(field)), 2],
    ["layoutsavedialog", "Save", "layout", WHOLE.filter((field) => !/group|info/.test(field)), 4]
].forEach(([widget, button, family, fields, formats]) =>
    saveTest(`a dialog has its own fields and preferences: ${widget}`, async (page, all) => {
        assert.deepEqual(FIELDS.filter((field) => page.$(`#${field}`).length && page.shown(`#${field}`)).sort(), [...fields].sort());
        assert.deepEqual([page.texts("#ok_btn"), page.locked("#ok_btn"), page.$("#format option").length], [[button], false, formats]);
        assert.equal(page.$("html").attr("class"), "style-light");
        page.told(all.savefile);
        page.type("#file_name", "run");
        assert.deepEqual(page.told(all.savefile, /^set/), [["setPrefString", `${family}/filename`, "run", false]]);
        if (fields.includes("info_field")) {
            const key = `${family === "convert" ? family : "export"}/saveinfo`;
            const before = page.$("#save_info").prop("checked");
            assert.equal(before, all.savefile.getPrefBool(key) === true);
            page.check("#save_info");
            assert.deepEqual(page.told(all.savefile, /^set/), [["setPrefBool", key, !before, false]]);
            assert.deepEqual(page.told(all[widget], /^list$/).length, 2, "each document hears of it");
        }
        page.told(all[widget]);
        page.click("#cancel_btn");
        assert.deepEqual(page.told(all[widget]), [...widget === "filesavedialog" ? [["cancelAction"]] : [], ["reject"]]);
        page.click("#ok_btn");
        assert.deepEqual(page.told(all[widget]).pop(), ["accept"]);
    }, widget, DIR(family)));

saveTest("each name has its switches, and is locked while it comes from elsewhere", async (page, {savefile, filesavedialog}) => {
    const ALL = {group: ["asfilename", "addnumber", "addtime"], sub: ["asfilename", "addnumber", "addtime"],
        file: ["asoriginal", "usecustom", "addnumber", "addtime"]};
    assert.deepEqual(page.texts("#names .field > .field-name"), ["Group folder", "Sub folder", "File name"]);
    assert.deepEqual(page.texts("#file_field .check"), ["As it was called", "Of custom items", "Add a number", "Add date and time"]);
    const told = () => page.told(savefile, /^(set|number|edit)/);
    told();
    Object.entries(ALL).forEach(([name, ends]) => {
        const stem = `export/${name === "file" ? "filename" : `${name}dir`}`;
        const parts = ends.concat("name", "number_btn").map((end) => `#${name}_${end}`);
        if (name !== "file") {
            assert.ok(parts.every((part) => page.locked(part)), "it is not used");
            page.check(`#${name}_on`);
            assert.deepEqual(told(), [["setPrefBool", stem, true, false]]);
        }
        assert.ok(parts.every((part) => !page.locked(part)));
        ends.forEach((end) => {
            told();
            page.check(`#${name}_${end}`);
            assert.deepEqual(told()[0], ["setPrefBool", `${stem}${end}`, true, false]);
            assert.equal(page.locked(`#${name}_name`), !/^add/.test(end), `${name} ${end}`);
            assert.ok(page.$(`#${name}_${end}`).prop("checked"));
            page.check(`#${name}_${end}`);
        });
        told();
        page.type(`#${name}_name`, "a/b");
        const key = name === "file" ? stem : `${stem}name`;
        assert.deepEqual([told().pop(), page.val(`#${name}_name`)], [["setPrefString", key, "ab", false], "ab"],
            "what is pasted, without what no file's name may hold");
        page.click(`#${name}_number_btn`);
        assert.deepEqual(told(), [[`numberSetting4${{group: "GroupDir", sub: "SubDir", file: "FileName"}[name]}`]]);
    });
    page.one("#file_name").setSelectionRange(1, 1);
    page.check("#file_addnumber");
    assert.equal(page.one("#file_name").selectionStart, 1, "the cursor stays where it is");
    filesavedialog.answers.getExportFile = "Marlin_12kN";
    page.click("#custom_btn");
    assert.deepEqual(told().pop(), ["editCustom", false]);
    assert.match(page.val("#name_preview"), /Marlin_12kN$/, "what was edited is in the name at once");
});

saveTest("a folder is asked for where there is none, and one that is not chosen changes nothing", async (page, {savefile}) => {
    const seen = () => [page.$("#free_space").text(), page.val("#name_preview"), page.locked("#ok_btn"), page.val("#folder")];
    assert.deepEqual(seen(), ["Choose a folder.", "", true, ""]);
    const told = () => page.told(savefile, /^(set|select)/);
    told();
    savefile.answers.selectFolder = "";
    page.click("#folder_btn");
    page.click("#add_path_btn");
    assert.deepEqual([told(), seen()[2]], [[["selectFolder", ""], ["selectFolder", ""]], true]);
    savefile.answers.selectFolder = "/other/";
    page.click("#folder_btn");
    assert.deepEqual([told(), seen()], [[["selectFolder", ""], ["setPrefString", "export/dir", "/other/", false]],
        ["2.00GB", "/other/group/shot_0001", false, "/other/"]]);
    assert.equal(page.$("#folder").attr("title"), "/other/");
    assert.deepEqual([page.texts("#path_rows span"), page.texts("#device_rows .path-row > span"), page.val("#device_rows select")],
        [["left: /a"], ["10.0.0.1", "/a"], "left"]);
    told();
    page.type("#path_name", "left");
    page.click("#add_path_btn");
    assert.deepEqual([told(), page.val("#path_name")], [[["selectFolder", "/other/"]], "left"], "another folder has that name");
    page.type("#path_name", " a|b? ");
    savefile.answers.getMultiPaths = JSON.stringify([{name: "ab", path: "/other/"}]); // from then on
    page.click("#add_path_btn");
    assert.deepEqual([told().pop(), page.val("#path_name"), page.texts("#path_rows span")],
        [["setPrefString", "export/multipathlist", "left|/a?ab|/other/", false], "", ["ab: /other/"]]);
    Object.assign(savefile.answers, {getMultiPaths: "", getMultiPathDevices: ""});
    page.check("#single_path");
    page.check("#single_path");
    assert.deepEqual([page.texts("#path_rows span"), page.shown("#device_rows")], [[], false], "there is nothing to choose from");
}, "filesavedialog", {});

saveTest("formats show what is stored, and what is chosen is stored", async (page, {savefile}) => {
    const shown = () => ["#codec_field", "#raw_hint"].map((part) => page.shown(part));
    assert.deepEqual([page.val("#format"), page.val("#codec"), shown()], ["AVI", "H264", [true, false]]);
    assert.deepEqual(Array.from(page.$("input:checked"), (box) => box.id).filter((id) => !id.includes(":")),
        ["single_path", "sub_on", "sub_asfilename", "file_usecustom", "file_addtime", "save_info"]);
    assert.equal(page.val("#file_name"), "shot");
    page.told(savefile);
    await page.rest();
    const refusal = () => [page.$("#codec_hint").text(), page.locked("#ok_btn")];
    assert.deepEqual(refusal(), ["", false]);
    page.choose("#codec", "RAW");
    assert.deepEqual(refusal(), ["no RAW", true]);
    page.choose("#format", "GRAW");
    assert.deepEqual(page.told(savefile, /^set/).map(([, ...call]) => call),
        [["export/codec", "RAW", false], ["export/format", "GRAW", false]]);
    assert.deepEqual([shown(), page.locked("#save_info")], [[false, true], true]);
}, "filesavedialog", {...DIR("export"), "export/format": "AVI", "export/codec": "H264", "export/filename": "shot",
    "export/subdir": true, "export/subdirasfilename": true, "export/filenameaddtime": true,
    "export/filenameusecustom": true});

saveTest("rows are ticked and chosen by themselves", async (page, {filesavedialog: dialog}) => {
    const rows = () => Array.from(page.$("#rows tbody tr"), (row) =>
        [row.getAttribute("aria-selected"), page.$(row).find("input").prop("checked"), row.className].join(" "));
    const all = () => page.$("#all_rows").prop("checked");
    const pictures = () => page.told(dialog, /^select$/).map(([, ...args]) => args.slice(0, 2).join(":"));
    assert.deepEqual([rows(), all(), page.shown("#recorded_column"), page.shown("#no_rows")],
        [["false false save-row", "true true save-row ui-selected", "false true save-row"], false, false, false]);
    assert.deepEqual([page.$("#rows tr:eq(1)").attr("data-log"), page.$("#rows input:eq(1)").attr("aria-label")], [MARKUP, MARKUP]);
    pictures();
    assert.deepEqual(page.texts("#rows tbody td:nth-child(4)"), ["40", "40", "40"]);
    page.focus("#rows tbody tr:eq(1)").key(KEY.DOWN);
    const [[, ...line], ...others] = page.told(dialog, /^(userOp|select$)/);
    assert.deepEqual([line.includes("Plover"), line.includes("ListItem"), others.length], [true, true, 1], "a line in the log, as of a click");
    page.key(KEY.UP);
    pictures();
    page.key(KEY.DOWN);
    assert.deepEqual([pictures(), rows()[2], page.document.activeElement.rowIndex], [["9:1"], "true true save-row ui-selected", 3]);
    page.told(dialog, /^setSelect/);
    assert.ok(page.down(KEY.DOWN) && page.down(KEY.ESCAPE), "below the last there is none; Escape is the dialog's");
    assert.ok(!page.down(KEY.SPACE) && !page.down(KEY.ENTER) && !page.down(KEY.UP), "the page does not scroll");
    page.focus("#rows tbody tr:eq(0) input");
    assert.ok(page.down(KEY.SPACE) && page.down(KEY.DOWN), "the keys of a tick are its own");
    page.check("#rows tbody tr:eq(0) input");
    assert.deepEqual([rows()[0], all(), page.document.activeElement.id], ["false true save-row", true, "tick:7:1"]);
    page.check("#all_rows");
    assert.deepEqual([rows().map((row) => row.includes("true save")), all()], [[false, false, false], false]);
    page.focus("#rows tbody tr:eq(2)");
    dialog.answers.list = JSON.stringify(ROWS.slice(0, 1));
    page.check("#save_info");
    assert.equal(page.document.activeElement.rowIndex, 1, "the focus stays in the list when it gets shorter");
    pictures();
    dialog.answers.list = "[]";
    page.check("#save_info");
    assert.deepEqual([rows(), all(), page.shown("#no_rows"), page.shown("#thumbnail"), page.shown("#cuts"), pictures()],
        [[], false, true, false, false, []]);
});
