import $ from "../../jquery.js";
import {startDialog} from "../dialog.js";
import {bindRows, fill, recordOf, rowOf} from "../record-rows.js";
import {isLocked, isThere, slotsOf, stateWords, titleOf} from "./storage-rows.js";

// The storage of a camera: what is on its cards and drives, formatting, and the names of records on a dock store. Names
// come from the camera: text nodes and values only.

const objects = {sd: window.savesd, store: window.savedockstore, cfast: window.savecfast, drives: window.drives};

const ADD_SEQUENCE = "convert/fd/datanameaddnumber";
const TIME_FORMAT = "yyyyMMdd_HHmmss";

let slots = [];
let current = 0;
let records = [];
let chosen = null; // number of a record
let state = ""; // of the slot, as it was shown

function translate(text) {
    return objects.sd.translate(text);
}

function dockey() {
    return Number($("#camera").val());
}

function slot() {
    return slots[current];
}

function showSlots() {
    $("#slots").empty().append(slots.map((each, i) => $("<button>", {
        type: "button", class: "drive", "data-slot": i, text: translate(titleOf(each)).replace("%1", each.slot)
    }).attr("aria-pressed", String(i === current)).toggleClass("current", i === current)));
    $("#no_slots").toggle(slots.length === 0);
}

function stateText() {
    return slot() ? stateWords(objects, dockey(), slot()).map(translate).join(", ") : "";
}

function showNumber() {
    $("#number_part").text(objects.store.getAddNumber());
}

function showCard() {
    state = stateText();
    $("#state").text(state);
    const inserted = Boolean(slot()) && isThere(objects, dockey(), slot());
    const locked = inserted && isLocked(objects, dockey(), slot());
    const there = inserted && !locked;
    $("#unlock_btn").toggle(locked);
    const info = there && slot().kind === "sd" ? objects.sd.getSDInfo(dockey(), slot().slot) : null;
    const facts = info ? [info.class, info.speed, info.size, objects.sd.getMemoryMode(dockey())]
        : there ? [translate("%1 free").replace("%1", objects[slot().kind].getFreeSpace(dockey()))] : [];
    $("#facts").text(facts.filter(Boolean).join(", "));
    records = there ? JSON.parse(objects[slot().kind].getDataList(dockey(), slot().slot) || "[]") : [];
    if (!records.some((record) => record.recid === chosen)) { // of another card
        chosen = null;
        $("#data_name").val("");
    }
    window.zel4func.disable($("#format_btn"), !there);
    $("#no_records").toggle(Boolean(slot()) && !locked && records.length === 0);
    const takesNames = there && slot().kind === "store" && objects.store.canConvertDataName(dockey());
    $("#rename_field, #name_parts").toggle(takesNames);
    if (takesNames) {
        $("#add_sequence").prop("checked", objects.store.getPrefBool(ADD_SEQUENCE));
        showNumber();
    }
    showRecords();
}

function showRecords() {
    fill("#records", records.map((record) => rowOf("record-row", record.name || String(record.recid),
        [record.recid, record.name || "", record.frame, record.date, record.time]
            .map((value) => document.createTextNode(String(value))), record.recid === chosen)
        .attr("data-recid", record.recid)));
    const record = records.find((each) => each.recid === chosen);
    window.zel4func.disable($("#data_name, #rename_btn, #add_sequence, #name_parts button"), !record);
}

function read() {
    slots = slotsOf(objects, dockey());
    current = Math.max(0, Math.min(current, slots.length - 1));
    chosen = null;
    showSlots();
    showCard();
}

/** An SD card's object asks by itself. */
function format() {
    const name = $("#camera option:selected").text();
    const question = translate("All data on %1 will be deleted.")
        .replace("%1", () => `${name}, ${translate(titleOf(slot()))}`);
    const details = translate("Recordings on it: %1").replace("%1", records.length);
    if (slot().kind === "sd" || objects.drives.confirmLoss(question, details)) {
        objects[slot().kind].format(dockey(), slot().slot);
        read();
    }
}

/** What a name may be made of besides what is typed. */
const PARTS = {
    "#camera_part": () => objects.store.getAddCameraName(dockey()),
    "#number_part": () => objects.store.getAddNumber(),
    "#time_part": () => objects.store.getAddDateTime(TIME_FORMAT)
};

function addPart(text) {
    const field = $("#data_name");
    field.val([field.val(), text].filter(Boolean).join("_").slice(0, field.prop("maxLength"))).trigger("focus");
}

function bind() {
    Object.keys(PARTS).forEach((button) => $(button).on("click", () => addPart(PARTS[button]())));
    $("#add_sequence").on("change", (event) => objects.store.setPrefBool(ADD_SEQUENCE, event.target.checked, false));
    $("#slots").on("click", ".drive", (event) => {
        current = Number($(event.currentTarget).attr("data-slot"));
        chosen = null;
        showSlots();
        showCard();
    });
    bindRows("#records", (row) => {
        chosen = recordOf(row);
        $("#data_name").val(records.find((record) => record.recid === chosen).name || "");
        showRecords();
    });
    $("#rename_btn").on("click", () => {
        const name = $("#data_name").val();
        if (name !== "") {
            objects.store.convertDataName(dockey(), slot().slot, chosen - 1, name, chosen);
            showCard();
        }
    });
    $("#number_btn").on("click", () => {
        objects.store.selectedDocCount(1); // one camera's records are named here
        objects.store.selectedDocHeadCount(1);
        objects.store.numberSetting();
        showNumber();
    });
    $("#format_btn").on("click", format);
    $("#unlock_btn").on("click", () => {
        if (objects.drives.unlock(dockey(), slot().slot)) {
            showCard();
        }
    });
    $("#refresh_btn").on("click", read);
    $("#close_btn").on("click", () => window.storagedialog.accept());
    $("#camera").on("change", read);
    window.storagedialog.update.connect(() => {
        if (slot() && state !== stateText()) {
            showCard();
        }
    });
}

$(() => {
    startDialog(window.storagedialog);
    window.zel4func.initSumoSelect($("#camera"), 220);
    objects.sd.getDeviceInfoList(false).map((text) => JSON.parse(text)).forEach((camera) =>
        window.zel4func.addItemSumoSelect($("#camera"), camera.key, camera.cameraname));
    const wanted = window.storagedialog.getSelectedDockey()[0];
    if (wanted !== undefined) {
        window.zel4func.selectItemSumoSelect($("#camera"), wanted);
    }
    window.zel4func.initializeTextfield4ProhibitionFilename("#data_name");
    bind();
    read();
});
