// The dialogs that save.
import assert from "node:assert/strict";
import {pageTest, recorder} from "../support/page.mjs";

const same = (text) => text;
const MARKUP = "<b>Marlin</b>";
const saveRow = (recid, dockey, partitionno, selected, cameraname) => ({
    recid, dockey, partitionno, selected, cameraname, totalframes: "40", resolution: "64 x 48", capacity: "10",
    capacitylabel: "0.01KB"
});
const ROWS = [saveRow(1, "7", "1", "false", MARKUP), saveRow(2, "7", "3", "true", MARKUP), saveRow(3, "9", "1", "true", "Plover")];

/** A script object over preferences that the page changes. */
function withPrefs(prefs, answers, log) {
    const get = (name) => (name in prefs ? prefs[name] : "");
    const set = (name, value) => { prefs[name] = value; };
    return recorder({
        translate: same, getStyle: "dark", getPrefString: get, getPrefBool: (name) => get(name) === true,
        setPrefString: set, setPrefBool: set, isFileMode: false, isMemoryMode: true, ...answers
    }, log);
}

function saveObjects(widget = "filesavedialog", prefs = {"export/dir": "/data/", "export/format": "PNG", "export/singlepath": true}) {
    const formats = ["BMP", "PNG", "GRAW", "AVI"];
    let cut = 1;
    const dialog = withPrefs(prefs, {
        isMultiTrimming: (key) => key === 9, getMultiTrimmingLabel: () => `cut ${cut}`, nextPreivew: () => { cut += 1; },
        list: JSON.stringify(ROWS), select: "iVBOR", getExportPath: () => prefs["export/dir"] || "", getExportGroupDir: "group",
        getExportSubDir: "", getExportFile: "shot_0001", capcityToString: ([text]) => `${text}KB`,
        isLiveMode: () => prefs.live === true,
        getSkipMode: () => prefs.skip || 0, setSkipMode: (mode) => { prefs.skip = mode; }, getSkipMinFrames: () => (prefs.skip ? 4 : 1),
        getSkipMaxFrames: 160, getSkipFrames: () => (prefs.skip ? 8 : 2), openConvertParameterEditDialog: () => prefs.agrees === true,
        getTargetItems: ["9", "7", "5"], getSelectDocKey: 7, getSelectPartitionNo: 1
    });
    return {
        [widget]: dialog,
        savefile: withPrefs(prefs, {
            getParentWidgetName: widget, getFileFormats: () => formats, getSnapFileFormats: () => formats.slice(0, 2),
            getLayoutFileFormats: () => formats, getCodecFilters: () => ["RAW", "H264"], isMovieFormat: (format) => format === "AVI",
            isRawFormat: (format) => format === "GRAW", isNeedRefreshPreview: false, getFreeSpace: "1.00GB",
            selectFolder: "/other/", getMultiPaths: JSON.stringify([{name: "left", path: "/a"}]),
            getMultiPathDevices: JSON.stringify([{
                device: "10.0.0.1", paths: [{key: "left", val: "/a"}, {key: "right", val: "/b"}], pathselector: "left", path: "/a"
            }])
        }),
        saving: recorder({
            save: () => prefs.works !== false, codecRefusal: (format, codec) => (codec === "RAW" ? "no RAW" : ""),
            bytesNeeded: (targets) => String(targets.length), currentKey: () => prefs.current || 0,
            freeSpace: "2.00GB", lacksRoom: (targets) => targets.length > 2, preview: () => prefs.preview || "",
            pathsOf: (targets) => targets.map((target, i) => `/data/shot_000${i + 1}`)
        })
    };
}

const saveTest = (title, body, ...objects) => pageTest(title, "filesavedialog.html", () => saveObjects(...objects),
    (page, all) => body(page, all));

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
    page.type("#file_name", "a");
    assert.equal(pictures(), 0);
    savefile.answers.isNeedRefreshPreview = true;
    page.type("#file_name", "b");
    assert.equal(pictures(), 1);
});

saveTest("the picture that shows is the one of a snapshot", async (page) => {
    assert.equal(page.$("#rows tbody input:checked").length, 1);
    assert.ok(page.$("#rows tr.ui-selected input").prop("checked"));
    assert.equal(page.$("#rows tr.ui-selected").index(), 2);
}, "snapshotdialog", {"snap/dir": "/data/", "snap/format": "PNG", current: 9});

saveTest("the row of what shows is in hand, and raw formats take no information", async (page) => {
    assert.equal(page.$("#rows tr.ui-selected").index(), 2);
    assert.equal(page.$("#rows tbody input:checked").length, 2, "what is selected is ticked");
    page.choose("#format", "GRAW");
    assert.ok(page.locked("#save_info"));
    page.choose("#format", "PNG");
    assert.ok(!page.locked("#save_info"));
}, "filesavedialog", {"export/dir": "/data/", "export/format": "PNG", current: 9});

saveTest("a save that fails leaves the dialog open, and without rows there is none", async (page, {filesavedialog}) => {
    page.click("#ok_btn");
    assert.ok(!page.told(filesavedialog).some(([name]) => name === "accept"));
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

saveTest("names, folders and formats are stored at once, and what they become is shown", async (page, {savefile, filesavedialog}) => {
    const told = () => page.told(savefile).filter(([name]) => /^(setPref|number|select)/.test(name));
    told();
    page.type("#file_name", "run");
    assert.deepEqual(told().pop(), ["setPrefString", "export/filename", "run", false]);
    assert.ok(page.locked("#group_name"), "no group folder is used");
    page.check("#group_on");
    assert.deepEqual(told(), [["setPrefBool", "export/groupdir", true, false]]);
    assert.ok(!page.locked("#group_name"));
    page.check("#group_asfilename");
    assert.ok(page.locked("#group_name"));
    filesavedialog.answers.getExportFile = "shot_01";
    page.click("#group_number_btn");
    assert.match(page.val("#name_preview"), /shot_01$/, "other digits");
    page.check("#file_addtime");
    assert.deepEqual(told().slice(1), [["numberSetting4GroupDir"], ["setPrefBool", "export/filenameaddtime", true, false],
        ["setPrefString", "export/filenameaddtimeformat", "yyyyMMdd_HHmmss", false]]);
    savefile.setPrefString("export/filenameaddtimeformat", "HHmm", false);
    page.check("#file_addtime");
    page.check("#file_addtime");
    assert.deepEqual(told().pop(), ["setPrefBool", "export/filenameaddtime", true, false], "another format stays");
    assert.ok(!page.shown("#codec_field"));
    page.choose("#format", "AVI");
    assert.ok(page.shown("#codec_field"));
    page.choose("#codec", "H264");
    page.choose("#codec", "RAW");
    assert.deepEqual([page.$("#codec_hint").text(), page.locked("#ok_btn")], ["no RAW", true]);
    page.choose("#codec", "H264");
    assert.deepEqual([page.$("#codec_hint").text(), page.locked("#ok_btn")], ["", false]);
    page.click("#folder_btn");
    assert.equal(page.val("#folder"), "/other/");
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

pageTest("the names of a batch save nothing themselves", "filesavedialog.html",
    () => saveObjects("convertparametereditdialog", {"convert/dir": "/data/", "export/dir": "/data/"}), async (page, all) => {
        const dialog = all.convertparametereditdialog;
        assert.ok(!page.shown("#rows_block") && !page.shown("#skip_field") && !page.shown("#apply_btn"));
        page.check("#save_info");
        assert.ok(page.told(dialog).some(([name]) => name === "list"), "each document hears of it");
        page.click("#info_btn");
        assert.deepEqual(page.told(dialog).find(([name]) => name === "saveInfoView"), ["saveInfoView", ["9", "7", "5"]]);
        page.type("#file_name", "run");
        assert.deepEqual(page.told(dialog, /^getExportGroupDir$/).map(([, key]) => key), [9, 5, 7],
            "of all, and the one in hand stays in hand");
        assert.equal(page.$("#batch_names").text(), "/data/group/shot_0001 (3 files, numbered on from here)");
        page.click("#ok_btn");
        assert.deepEqual(page.told(dialog).pop(), ["accept"]);
        assert.deepEqual(page.told(all.saving, /^save$/), []);
    });

pageTest("settings that are agreed to stay, others are given back", "filesavedialog.html",
    () => saveObjects("batchconverter", {"convert/dir": "/data/", "export/dir": "/data/"}), async (page, {saving, savefile}) => {
        assert.equal(page.$("#batch_names").text(), "/data/shot_0001\n/data/shot_0002", "each file's own name");
        page.click("#names_btn");
        savefile.setPrefBool("agrees", true);
        page.told(savefile);
        page.click("#names_btn");
        page.click("#apply_btn");
        assert.deepEqual(page.told(saving, /Settings$/), [["rememberSettings"], ["settleSettings", false], ["rememberSettings"],
            ["settleSettings", true], ["settleSettings", true], ["rememberSettings"]]);
    });

pageTest("recordings of files may go beside them", "filesavedialog.html",
    () => {
        const objects = saveObjects();
        objects.savefile.isFileMode = () => true;
        return objects;
    }, async (page, {savefile}) => {
        page.told(savefile);
        page.check("#dir_original");
        assert.ok(page.told(savefile).some((call) => call.join() === "setPrefBool,export/dirasoriginal,true,false"));
        assert.ok(page.locked("#folder_btn"));
    });
