import $ from "../../jquery.js";
import {startDialog} from "../dialog.js";
import {documentsOf, idOf} from "./choice.js";
import {rowList} from "./rows.js";

// The dialog that opens recordings: files, all below a folder, or what lies on a drive. What is ticked stays open.

let list = null;
const deleted = [];

function mediator() {
    return window.fileopendialog;
}

/** Where the drive is; its place in the list is another one when a card goes in or out. */
function idOfDrive(drive) {
    return [drive.drivetype, drive.driveno, drive.slotno, drive.drivename].join("|");
}

function driveButton(kind, drive) {
    return $("<button>", {type: "button", class: "drive", text: drive.drivename || `${drive.recid + 1}`})
        .attr({"data-kind": kind, "data-drive": idOfDrive(drive), "aria-pressed": "false"});
}

const SOURCES = {
    sd: {title: "SD card", read: () => mediator().getSDDrives(), open: (drive) => mediator().selectSDDrive(drive.recid)},
    fd: {
        title: "DockStore", read: () => mediator().getFDDrives(),
        open: (drive) => mediator().selectFDDrive(...numbers(drive), drive.drivename),
        ratio: (drive) => mediator().getFDUseRatio(...numbers(drive)),
        written: (drive) => mediator().getTotalWrittenAmount(...numbers(drive)),
        format: (drive) => mediator().formatDockStore(...numbers(drive))
    },
    cf: {
        title: "CFast", read: () => mediator().getCFDrives(),
        open: (drive) => mediator().selectCFDrive(...numbers(drive), drive.drivename),
        ratio: (drive) => mediator().getCFUseRatio(...numbers(drive)),
        format: (drive) => mediator().formatCFast(...numbers(drive))
    }
};

let drives = {};
let current = null; // kind and id of the drive that was opened last
let named = null; // row and name that the field of the name was filled with

function numbers(drive) {
    return [Number(drive.drivetype), Number(drive.driveno), Number(drive.slotno)];
}

/** Asks before something is lost. The last word is no: Enter alone loses nothing. */
function mayLose(text, ...values) {
    const [count] = values.splice(-1);
    const question = values.reduce((told, value, i) => told.replace(`%${i + 1}`, () => value), mediator().translate(text));
    const details = count === null ? "" : mediator().translate("Recordings on it: %1").replace("%1", count);
    return window.drives.confirmLoss(question, details);
}

function readDrives() {
    drives = {};
    $("#drives").empty();
    Object.keys(SOURCES).forEach((kind) => {
        const {record, select} = JSON.parse(SOURCES[kind].read() || "{\"record\":[]}");
        drives[kind] = record;
        // Of an earlier time, or the one that stays open when another one is refused.
        if ((!current || current.kind === "sd") && kind === "sd" && record[select]) {
            current = {kind, id: idOfDrive(record[select])};
        }
        if (drives[kind].length) {
            $("#drives").append($("<div>", {class: "drive-group"}).append(
                $("<h3>", {text: mediator().translate(SOURCES[kind].title)}),
                drives[kind].map((drive) => driveButton(kind, drive))));
        }
    });
    $("#no_drives").toggle($("#drives").children().length === 0);
    showCurrent();
}

function currentDrive() {
    return (current && drives[current.kind].find((drive) => idOfDrive(drive) === current.id)) || null;
}

function showCurrent() {
    const drive = currentDrive();
    const source = drive ? SOURCES[current.kind] : null;
    $("#drives .drive").each((_, button) => {
        const isCurrent = Boolean(drive) && button.getAttribute("data-kind") === current.kind &&
            button.getAttribute("data-drive") === current.id;
        $(button).attr("aria-pressed", String(isCurrent)).toggleClass("current", isCurrent);
    });
    const told = (text, value) => mediator().translate(text).replace("%1", value);
    $("#drive_use").text([source && source.ratio ? told("%1 used", source.ratio(drive)) : "",
        source && source.written ? told("%1 written", source.written(drive)) : ""].filter(Boolean).join(", "));
    window.zel4func.disable($("#format_btn"), !(source && source.format));
    window.zel4func.disable($("#password_btn"), !(drive && current.kind === "fd" &&
        mediator().existSetDockStorePassword(Number(drive.drivetype), Number(drive.driveno))));
}

function rowsChanged() {
    const rows = list.ticked();
    window.zel4func.disable($("#ok_btn"), rows.length === 0);
    const row = list.inHand();
    window.zel4func.disable($("#check_btn"), !row || !mediator().canSavedCheck(Number(row.dockey)));
    window.zel4func.disable($("#delete_btn"), !row || !mediator().checkDeleteFile(Number(row.dockey)));
    showName();
}

/** The name of the row in hand, where what lies on a drive can be given another one. What is typed stays with its row. */
function showName() {
    const row = list.inHand();
    const isOurs = Boolean(row) && mediator().canConvertDataName(Number(row.dockey));
    $("#rename_field").toggle(isOurs);
    const shown = isOurs ? `${idOf(row)} ${row.dataname}` : null;
    if (shown !== named) {
        named = shown;
        $("#data_name").val(isOurs ? row.dataname : "");
    }
}

function after(opened) {
    if (opened !== false) {
        list.read();
    }
    readDrives();
}

/** A row of the drive is in hand then, or none: what is done next is meant for that drive. */
function afterDrive() {
    list.readNew();
    readDrives();
}

function bind() {
    $("#files_btn").on("click", () => after(window.saving.openFiles()));
    $("#folder_btn").on("click", () => after(mediator().openFolder()));
    $("#drives").on("click", ".drive", (event) => {
        const button = $(event.currentTarget);
        current = {kind: button.attr("data-kind"), id: button.attr("data-drive")};
        SOURCES[current.kind].open(currentDrive());
        afterDrive();
    });
    $("#format_btn").on("click", () => {
        const drive = currentDrive();
        const count = window.drives.count(current.kind, Number(drive.driveno), Number(drive.slotno));
        if (mayLose("All data on %1 will be deleted.", drive.drivename, count) && currentDrive()) {
            SOURCES[current.kind].format(drive);
            afterDrive();
        }
    });
    $("#password_btn").on("click", () =>
        mediator().setDockStorePassword(Number(currentDrive().drivetype), Number(currentDrive().driveno)));
    $("#check_btn").on("click", () => {
        // All, since all that is not found is marked.
        const records = list.all().filter((row) => row.serialno).map(({serialno, datano}) => ({serialno, datano}));
        if (mediator().savedCheck(records)) {
            list.read();
        }
    });
    $("#rename_btn").on("click", () => {
        const row = list.inHand();
        const name = $("#data_name").val();
        if (row && name !== "") {
            mediator().convertDataName(Number(row.dockey), name, row.recid, true);
            named = null; // what the drive has taken
            list.read();
        }
    });
    $("#delete_btn").on("click", () => {
        const row = list.inHand();
        const isAgreed = row.serialno ? mayLose("%1 on %2 will be deleted.", row.filename, row.path, null)
            : mayLose("%1 will be deleted.", row.path || row.filename, null);
        if (isAgreed && mediator().deleteFile(Number(row.dockey))) {
            deleted.push(row.dockey); // its document is closed with the dialog
            list.read();
        }
    });
    $("#ok_btn").on("click", () => {
        mediator().importTarget(documentsOf(list.ticked()));
        mediator().accept();
    });
    $("#cancel_btn").on("click", () => mediator().reject());
}

$(() => {
    startDialog(mediator());
    list = rowList(mediator(), {
        temporary: true, from: true, isGone: (row) => deleted.includes(row.dockey), changed: () => list && rowsChanged()
    });
    bind();
    list.read();
    readDrives();
    mediator().update.connect(() => { // a card goes in or out
        list.refresh();
        readDrives();
    });
});
