import $ from "../jquery.js";
import {FIELDS, edited, fault, isPending, selectedAfter} from "./custom-items.js";
import {startDialog} from "./dialog.js";
import {bindRows, documentRow, fill, recordOf, rowOf} from "./record-rows.js";

// The custom items of one document, which all changes give to the selected ones too. What stands in them is the
// user's or a file's: text nodes and values only.

const OVERLAY = 17;
const BUTTONS = "#add_btn, #change_btn, #delete_btn, #load_btn, #save_btn";
const ENTER = 13;
const EMPTY = {name: "", value: "", unit: ""};

let records = [];
let selected = [];
let items = [];
let names = []; // of the items of all selected documents
let chosen = null; // name of the chosen item
let source = EMPTY; // what the fields were filled with
let shown = EMPTY; // what they made of it: one line
let filled = EMPTY; // what that would be as an item

function mediator() {
    return window.CustomInfoDialog;
}

function targets() {
    return records.filter((record) => selected.includes(record.recid)).map((record) => record.dockey);
}

function showRecords() {
    const current = mediator().getCurrentDeviceRecord();
    fill("#documents", records.map((record) =>
        documentRow(record, selected.includes(record.recid), record.recid === current)));
}

/** What waits in the fields may be meant for the cameras that are selected now. */
function select(ids) {
    const waits = isPending(entered(), filled);
    selected = ids;
    mediator().setSelectedDeviceItems(ids);
    showRecords();
    readItems();
    if (waits && (chosen === null || itemCalled(chosen))) {
        showItems();
    } else {
        choose(null);
    }
}

/** The last one that is newly selected is what shows. */
function selectAll(current) {
    mediator().setSelectedDeviceItems([]);
    select(records.map((record) => record.recid).sort((a, b) => (a === current) - (b === current)));
}

function itemsOf(dockey) {
    return JSON.parse(mediator().getCustomInfo(Number(dockey)) || "[]");
}

function readItems() {
    const current = records.find((record) => record.recid === mediator().getCurrentDeviceRecord());
    items = current ? itemsOf(current.dockey) : [];
    const others = targets().filter((key) => !current || key !== current.dockey);
    names = others.reduce((all, key) => all.concat(itemsOf(key)), items).map((item) => item.name);
    $("#no_items").toggle(items.length === 0)
        .text(mediator().translate(current ? "There are no items." : "Select a camera."));
}

function showItems() {
    fill("#items", items.map((item) => {
        const tick = $("<input>", {type: "checkbox", checked: item.selected})
            .attr({id: `tick:${item.name}`, "aria-label": item.name});
        const texts = FIELDS.map((field) => $("<span>", {text: item[field], title: item[field]}));
        return rowOf("item-row", item.name, [tick, ...texts], item.name === chosen).attr("data-recid", item.recid);
    }));
    rule();
}

/** The item of that name; undefined without one. */
function itemCalled(name) {
    return items.find((item) => item.name === name);
}

function choose(item) {
    chosen = item ? item.name : null;
    source = item || EMPTY;
    FIELDS.forEach((field) => $(`#item_${field}`).val(source[field]));
    shown = fieldTexts();
    filled = entered();
    showItems();
}

function fieldTexts() {
    return Object.assign({}, ...FIELDS.map((field) => ({[field]: $(`#item_${field}`).val()})));
}

function entered() {
    return Object.assign(edited(source, shown, fieldTexts()), {oldname: chosen});
}

function rule() {
    const item = entered();
    const name = item.name;
    const changeFault = fault(name, names, chosen);
    const none = targets().length === 0;
    const disable = window.zel4func.disable;
    disable($(BUTTONS), none);
    disable($("#add_btn"), none || fault(name, names, null) !== "");
    disable($("#change_btn"), none || chosen === null || changeFault !== "");
    disable($("#delete_btn"), none || chosen === null);
    disable($("#save_btn"), none || (items.length === 0 && !isPending(item, filled)));
    showHint(name === "" ? "" : changeFault);
}

function showHint(text) {
    $("#item_hint").text(text ? mediator().translate(text) : "");
}

/**
 * Sends a change to all selected documents and shows what they made of it. What failed can be tried again.
 * @param {Function} isDone - whether it was taken
 * @param {Function} [next] - the item that is chosen then; none without it
 */
function change(action, isDone, next) {
    action(targets());
    readItems();
    if (isDone()) {
        choose(next ? next() : null);
    } else {
        showItems();
    }
}

function add() {
    const item = entered();
    change((keys) => mediator().addCustomData(keys, item), () => itemCalled(item.name));
}

function edit() {
    const item = entered();
    const taken = () => itemCalled(item.name);
    change((keys) => mediator().editCustomData(keys, item), taken, taken);
}

function remove() {
    change((keys) => mediator().deleteCustomData(keys, [{name: chosen}]), () => !itemCalled(chosen));
}

/** Takes what stands in the fields, if anything waits there. False if it can't be taken; the page says why. */
function takeEntered() {
    if (targets().length === 0 || !isPending(entered(), filled)) {
        return true;
    }
    const wrong = fault(entered().name, names, chosen);
    if (wrong) {
        showHint(wrong);
        $("#item_name").trigger("focus");
        return false;
    }
    (chosen === null ? add : edit)();
    return !isPending(entered(), filled);
}

/** Other items take the place of all; a new one that waits in the fields joins them. */
function loadItems() {
    if (chosen !== null && !takeEntered()) {
        return;
    }
    const waits = isPending(entered(), filled);
    const before = JSON.stringify(items);
    change((keys) => mediator().load(keys), () => !waits && JSON.stringify(items) !== before);
    if (waits && JSON.stringify(items) !== before) {
        takeEntered();
    }
}

function saveItems() {
    if (takeEntered()) {
        mediator().save(items);
    }
}

/** Takes what stands in the fields; after a new item the next one can be typed at once. */
function takeAndGoOn() {
    const adds = chosen === null && isPending(entered(), filled);
    if (takeEntered() && adds) {
        $("#item_name").trigger("focus");
    }
}

function itemOfRow(row) {
    return items.find((item) => item.recid === recordOf(row));
}

function bindItems() {
    bindRows("#items", (row, event) => {
        if ($(event.target).is("input")) {
            return;
        }
        const name = itemOfRow(row).name;
        if (takeEntered()) {
            choose(itemCalled(name));
        }
    });
    $("#items").on("change", "input", (event) => {
        const item = Object.assign({}, itemOfRow($(event.target).closest("tr")), {selected: event.target.checked});
        mediator().enableCustomData(targets(), [item]);
        readItems();
        showItems();
    });
    $("#item_name, #item_value, #item_unit").on("input", rule).on("keydown", (event) => {
        if (event.which === ENTER) {
            event.preventDefault();
            takeAndGoOn();
        }
    });
}

function bindButtons() {
    $("#add_btn").on("click", () => {
        add();
        $("#item_name").trigger("focus");
    });
    $("#change_btn").on("click", edit);
    $("#delete_btn").on("click", remove);
    $("#load_btn").on("click", loadItems);
    $("#save_btn").on("click", saveItems);
    $("#ok_btn").on("click", () => {
        if (takeEntered()) {
            mediator().accept();
        }
    });
    $("#cancel_btn").on("click", () => {
        mediator().cancel();
        mediator().reject();
    });
}

$(() => {
    startDialog(mediator());
    const overlay = mediator().getCallbackType() === OVERLAY;
    $("#tick_head").text(mediator().translate(overlay ? "Show" : "Use"));
    bindRows("#documents", (row, event) =>
        select(selectedAfter(selected, recordOf(row), event.ctrlKey)));
    $("#all_btn").on("click", () => selectAll(mediator().getCurrentDeviceRecord()));
    bindItems();
    bindButtons();
    const info = JSON.parse(mediator().getDeviceInfo() || "{\"Records\":[],\"InitSelect\":0}");
    records = info.Records;
    $("#all_btn").toggle(records.length > 1);
    selectAll(info.InitSelect);
    $("#item_name").trigger("focus");
});
