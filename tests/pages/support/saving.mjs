// The dialogs that save: their page, and script objects over preferences that it changes.
import {pageTest, recorder} from "./page.mjs";

const same = (text) => text;
export const MARKUP = "<b>Marlin</b>";
const saveRow = (recid, dockey, partitionno, selected, cameraname) => ({
    recid, dockey, partitionno, selected, cameraname, totalframes: "40", resolution: "64 x 48", capacity: "10",
    capacitylabel: "0.01KB"
});
export const ROWS = [saveRow(1, "7", "1", "false", MARKUP), saveRow(2, "7", "3", "true", MARKUP), saveRow(3, "9", "1", "true", "Plover")];

/** A script object over preferences that the page changes. */
function withPrefs(prefs, answers, log) {
    const get = (name) => (name in prefs ? prefs[name] : "");
    const set = (name, value) => { prefs[name] = value; };
    return recorder({
        translate: same, getStyle: "light", getPrefString: get, getPrefBool: (name) => get(name) === true,
        setPrefString: set, setPrefBool: set, isFileMode: () => prefs.files === true,
        isMemoryMode: () => prefs.files !== true, ...answers
    }, log);
}

function saveObjects(widget = "filesavedialog", prefs = {"export/dir": "/data/", "export/format": "PNG", "export/singlepath": true}) {
    const formats = ["BMP", "PNG", "GRAW", "AVI"];
    let cut = 1;
    const slots = ["isMultiTrimming", "exportDocCount", "exportTarget", "saveAction", "applyAction", "cancelAction"];
    const own = widget === "filesavedialog" ? {isMultiTrimming: (key) => key === 9}
        : Object.fromEntries(slots.map((name) => [name, null]));
    const dialog = withPrefs(prefs, {
        ...own, getMultiTrimmingLabel: () => `cut ${cut}`, nextPreivew: () => { cut += 1; }, prevPreivew: () => { cut -= 1; },
        list: JSON.stringify(ROWS), select: "iVBOR", getExportGroupDir: "group",
        getExportPath: () => prefs[Object.keys(prefs).find((key) => key.endsWith("/dir"))] || "",
        getExportSubDir: "", getExportFile: "shot_0001", capcityToString: ([text]) => `${text}KB`,
        isLiveMode: () => prefs.live === true,
        getSkipMode: () => prefs.skip || 0, setSkipMode: (mode) => { prefs.skip = mode; }, getSkipMinFrames: () => (prefs.skip ? 4 : 1),
        getSkipMaxFrames: 160, getSkipFrames: () => (prefs.skip ? 8 : 2), openConvertParameterEditDialog: () => prefs.agrees === true,
        getTargetItems: ["9", "7", "5"], getSelectDocKey: 7, getSelectPartitionNo: 1
    });
    return {
        [widget]: dialog,
        savefile: withPrefs(prefs, {
            getParentWidgetName: widget,
            getFileFormats: (fromDevice) => formats.filter((format) => fromDevice || format !== "GRAW"),
            getSnapFileFormats: () => formats.slice(0, 2), getLayoutFileFormats: () => formats,
            getCodecFilters: () => ["RAW", "H264"], isMovieFormat: (format) => format === "AVI",
            isRawFormat: (format) => format === "GRAW", isNeedRefreshPreview: false, getFreeSpace: "1.00GB",
            selectFolder: "/other/", getMultiPaths: JSON.stringify([{name: "left", path: "/a"}]),
            getMultiPathDevices: JSON.stringify([{
                device: "10.0.0.1", paths: [{key: "left", val: "/a"}, {key: "right", val: "/b"}], pathselector: "left", path: "/a"
            }])
        }),
        // The names of a batch stand over a dialog that has this object.
        saving: widget === "convertparametereditdialog" ? undefined : recorder({
            save: () => prefs.works !== false, codecRefusal: (format, codec) => (codec === "RAW" ? "no RAW" : ""),
            bytesNeeded: (targets) => String(targets.length), currentKey: () => prefs.current || 0,
            freeSpace: "2.00GB", lacksRoom: (targets) => targets.length > 2, preview: () => prefs.preview || "",
            pathsOf: (targets) => targets.map((target, i) => `/data/shot_000${i + 1}`)
        })
    };
}

/** A test of the dialog whose widget has that name, with what is stored at first. */
export const saveTest = (title, body, ...objects) => pageTest(title, "filesavedialog.html", () => saveObjects(...objects),
    (page, all) => body(page, all));
