import $ from "../../jquery.js";
import {startDialog} from "../dialog.js";
import {documentsOf, saveTargets, skipTargets} from "./choice.js";
import {folderFields} from "./folders.js";
import {kindOf} from "./kinds.js";
import {nameFields} from "./names.js";
import {rowList} from "./rows.js";
import {skipFields} from "./skip.js";

// The dialogs that save: recordings, pictures, reports, layouts, and the names of a batch. One page serves them all; the
// widget that holds it tells which one it is.

const widget = window.savefile.getParentWidgetName();
const kind = kindOf(widget);

function mediator() {
    return window[widget];
}

let list = null;
let skip = null;
let names = null;
let folders = null;

/** Where a row would be saved, and under what name; empty without a folder. */
function pathOf(row) {
    if (row) {
        mediator().setSelectDocKey(Number(row.dockey));
        mediator().setSelectPartitionNo(Number(row.partitionno));
    }
    const path = mediator().getExportPath();
    const group = kind.group && row ? mediator().getExportGroupDir(Number(row.dockey), Number(row.partitionno)) : "";
    const sub = mediator().getExportSubDir();
    const parts = [path.replace(/\/$/, ""), group, sub, mediator().getExportFile()];
    return path === "" ? "" : parts.filter((part) => part !== "").join("/");
}

/** The row in hand; of a batch, whose rows stand in the dialog before, the one that was in hand there. */
function rowInHand() {
    return list ? list.inHand() : {dockey: mediator().getSelectDocKey(), partitionno: mediator().getSelectPartitionNo()};
}

/** Names that are alike here get numbers that count on when they are saved. */
function linesOf(paths) {
    const unlike = paths.filter((path, i) => paths.indexOf(path) === i);
    return unlike.map((path) => {
        const count = paths.filter((each) => each === path).length;
        const note = window.savefile.translate("(%1 files, numbered on from here)").replace("%1", count);
        return count === 1 ? path : `${path} ${note}`;
    });
}

/** In a dialog of several files, what each of them will be called. */
function namesOfTicked() {
    const rows = list.ticked();
    return kind.names && rows.length > 1 && mediator().getExportPath() !== "" ? window.saving.pathsOf(saveTargets(rows)) : [];
}

/** Of a batch each name stands there, so that two that are alike are seen before. */
function previewNames() {
    const row = rowInHand();
    const others = list ? [] : mediator().getTargetItems().filter((key) => String(key) !== String(row.dockey));
    const paths = others.map((dockey) => pathOf({dockey, partitionno: row.partitionno}));
    const path = pathOf(row); // the last one: it is in hand again
    $("#name_preview").val(path);
    const lines = list ? namesOfTicked() : linesOf(paths.concat(path));
    $("#batch_names").toggle(lines.length > 1 || paths.length > 0).text(lines.join("\n"));
    return {hasPath: path !== ""};
}

/** Gives why what is chosen can't be saved; empty if it can. */
function showFormat() {
    if (!kind.formats) {
        return "";
    }
    const format = window.savefile.getPrefString(`${kind.family}/format`);
    const codec = window.savefile.getPrefString(`${kind.family}/codec`);
    window.zel4func.selectItemSumoSelect($("#format"), format);
    window.zel4func.selectItemSumoSelect($("#codec"), codec);
    $("#codec_field").toggle(window.savefile.isMovieFormat(format));
    $("#raw_hint").toggle(window.savefile.isRawFormat(format));
    window.zel4func.disable($("#save_info"), window.savefile.isRawFormat(format));
    const refusal = window.saving ? window.saving.codecRefusal(format, codec) : "";
    $("#codec_hint").text(refusal);
    return refusal;
}

function show() {
    names.show();
    folders.show();
    const refusal = showFormat();
    if (kind.info) {
        $("#save_info").prop("checked", window.savefile.getPrefBool(kind.info));
    }
    const {hasPath} = previewNames();
    const rows = list ? list.ticked() : [];
    $("#capacity").toggle(Boolean(kind.skip)).text(kind.skip && list
        ? mediator().capcityToString([window.saving.bytesNeeded(saveTargets(rows))]) : "");
    $("#room_hint").toggle(Boolean(kind.skip) && rows.length > 0 && window.saving.lacksRoom(saveTargets(rows)));
    window.zel4func.disable($("#ok_btn"), !kind.plain && (rows.length === 0 || !hasPath || refusal !== ""));
}

/** A recording that is cut in several places shows one of its cuts. */
function showCuts() {
    const row = list.inHand();
    const isCut = Boolean(row && mediator().isMultiTrimming && mediator().isMultiTrimming(Number(row.dockey)));
    $("#cuts").toggle(isCut);
    if (isCut) {
        $("#cut_label").text(mediator().getMultiTrimmingLabel(Number(row.dockey)));
    }
}

/** The picture is composed anew only if it shows the name. */
function namesChanged() {
    show();
    if (list && window.savefile.isNeedRefreshPreview()) {
        list.showPicture();
    }
}

/** What is ticked decides how the frame skip is limited; the names follow the row in hand. */
function rowsChanged() {
    const rows = list.ticked();
    if (kind.family === "layout") {
        list.showPicture(); // of all that are ticked
    }
    if (skip) {
        skip.refresh();
    }
    if (mediator().exportDocCount) {
        mediator().exportDocCount(documentsOf(rows).length);
    } else {
        window.savefile.selectedDocCount(documentsOf(rows).length);
    }
    showCuts();
    show();
}

function fillFormats() {
    if (!kind.formats) {
        $("#format_field, #codec_field").hide();
        return;
    }
    const formats = window.savefile[kind.formats](mediator().isMemoryMode());
    formats.forEach((format) => window.zel4func.addItemSumoSelect($("#format"), format, format));
    window.savefile.getCodecFilters().forEach((codec) => window.zel4func.addItemSumoSelect($("#codec"), codec, codec));
    [["#format", "format"], ["#codec", "codec"]].forEach(([select, end]) => {
        window.zel4func.initSumoSelect($(select), 130);
        $(select).on("change", () => {
            window.savefile.setPrefString(`${kind.family}/${end}`, $(select).val(), false);
            show();
        });
    });
}

/** Hands the ticked rows over; the dialog ends once the host has taken them. */
function save() {
    if (kind.plain) {
        mediator().accept();
        return;
    }
    const rows = list.ticked();
    if (mediator().exportTarget) {
        rows.forEach((row) => mediator().exportTarget(Number(row.dockey), Number(row.partitionno)));
    }
    if (window.saving.save(saveTargets(rows))) {
        if (mediator().saveAction) {
            mediator().saveAction();
        }
        mediator().accept();
    } else {
        show();
    }
}

function bindButtons() {
    const keys = () => (list ? documentsOf(list.ticked()) : mediator().getTargetItems());
    $("#save_info").on("change", (event) => {
        window.savefile.setPrefBool(kind.info, event.target.checked, false);
        if (list) {
            list.read();
        } else {
            mediator().list(); // tells each document
        }
    });
    $("#info_btn").on("click", () => {
        mediator().saveInfoView(keys());
        if (list) {
            list.showPicture();
        }
    });
    [["#cut_prev", "prevPreivew"], ["#cut_next", "nextPreivew"]].forEach(([button, slot]) => $(button).on("click", () => {
        mediator()[slot](Number(list.inHand().dockey));
        showCuts();
        list.showPicture();
    }));
    $("#time_code_btn").on("click", () => mediator().openCustumTimeCodeDialog());
    $("#names_btn").toggle(Boolean(kind.names)).on("click", () => {
        window.saving.rememberSettings();
        window.saving.settleSettings(mediator().openConvertParameterEditDialog(keys()));
        show();
    });
    $("#ok_btn").text(window.savefile.translate(kind.button)).on("click", save);
    $("#apply_btn").toggle(!kind.plain).on("click", () => {
        window.saving.settleSettings(true);
        window.saving.rememberSettings();
        if (mediator().applyAction) {
            mediator().applyAction();
        }
    });
    $("#cancel_btn").on("click", () => {
        if (mediator().cancelAction) {
            mediator().cancelAction();
        }
        mediator().reject();
    });
}

$(() => {
    startDialog(mediator());
    $("#rows_block").toggle(!kind.plain);
    $("#info_field").toggle(Boolean(kind.info));
    $("#skip_field").toggle(Boolean(kind.skip) && !kind.plain);
    names = nameFields(kind, namesChanged);
    folders = folderFields(kind, show);
    fillFormats();
    bindButtons();
    if (kind.plain) {
        mediator().list();
        show();
        return;
    }
    list = rowList(mediator(), {
        preview: (row, width, height) => window.saving.preview(saveTargets([row])[0], saveTargets(list ? list.ticked() : []),
            width, height),
        changed: () => list && rowsChanged(),
        current: () => window.saving.currentKey(),
        isSingle: kind.family === "snap"
    });
    skip = kind.skip ? skipFields(mediator(), () => skipTargets(list.ticked())) : null;
    list.read();
});
