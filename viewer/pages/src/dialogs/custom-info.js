import $ from "../jquery.js";
import { fault, selectedAfter, writable } from "./custom-items.js";
import { startDialog } from "./dialog.js";

// The custom items of one document, which all changes give to the selected ones too. What stands in them is the
// user's or a file's: text nodes and values only.

const OVERLAY = 17;
const BUTTONS = "#add_btn, #change_btn, #delete_btn, #load_btn, #save_btn";
const FIELDS = ["name", "value", "unit"];

let records = [];
let selected = [];
let items = [];
let chosen = null; // name of the chosen item

function mediator() {
    return window.CustomInfoDialog;
}

function targets() {
    return records.filter(record => selected.includes(record.recid)).map(record => record.dockey);
}

function rowOf(cells, isSelected) {
    return $("<tr>", { tabindex: 0, class: isSelected ? "ui-selected" : "" }).attr("aria-selected", String(isSelected))
        .append(cells.map(cell => $("<td>").append(cell)));
}

function textCell(text) {
    return document.createTextNode(text);
}

function showRecords() {
    const current = mediator().getCurrentDeviceRecord();
    $("#documents tbody").empty().append(records.map(record =>
        rowOf([textCell(record.name)], selected.includes(record.recid))
            .toggleClass("current", record.recid === current).attr("data-recid", record.recid)));
}

function select(ids) {
    selected = ids;
    mediator().setSelectedDeviceItems(ids);
    showRecords();
    choose(null);
    refreshItems();
}

function refreshItems() {
    const current = records.find(record => record.recid === mediator().getCurrentDeviceRecord());
    items = current ? JSON.parse(mediator().getCustomInfo(Number(current.dockey)) || "[]") : [];
    $("#items tbody").empty().append(items.map(item => {
        const tick = $("<input>", { type: "checkbox", checked: item.selected }).attr("aria-label", item.name);
        return rowOf([tick, ...FIELDS.map(field => textCell(item[field]))], item.name === chosen)
            .attr("data-recid", item.recid);
    }));
    $("#no_items").toggle(items.length === 0);
    rule();
}

function choose(item) {
    chosen = item ? item.name : null;
    FIELDS.forEach(field => $(`#item_${field}`).val(item ? item[field] : ""));
}

function entered() {
    const item = { oldname: chosen };
    FIELDS.forEach(field => {
        item[field] = writable($(`#item_${field}`).val());
    });
    return item;
}

function rule() {
    const name = $("#item_name").val();
    const addFault = fault(name, items, null);
    const changeFault = fault(name, items, chosen);
    const none = targets().length === 0;
    const disable = window.zel4func.disable;
    disable($(BUTTONS), none);
    disable($("#add_btn"), none || addFault !== "");
    disable($("#change_btn"), none || chosen === null || changeFault !== "");
    disable($("#delete_btn"), none || chosen === null);
    disable($("#save_btn"), none || items.length === 0);
    const told = name === "" ? "" : chosen === null ? addFault : changeFault;
    $("#item_hint").text(told ? mediator().translate(told) : "");
}

/** Sends a change to all selected documents; what they made of it shows. */
function change(action, next) {
    action(targets());
    choose(next || null);
    refreshItems();
}

function itemOfRow(row) {
    return items.find(item => item.recid === Number($(row).attr("data-recid")));
}

function bindRows(table, action) {
    $(table).on("click", "tbody tr", event => action(event.currentTarget, event))
        .on("keydown", "tbody tr", event => {
            const row = $(event.currentTarget);
            const next = { 38: row.prev(), 40: row.next() }[event.which];
            if (next && next.length) {
                event.preventDefault();
                const index = next.index();
                action(next[0], event);
                $(table).find("tbody tr").eq(index).trigger("focus");
            }
        });
}

function bindItems() {
    bindRows("#items", (row, event) => {
        if ($(event.target).is("input")) {
            return;
        }
        choose(itemOfRow(row));
        refreshItems();
    });
    $("#items").on("change", "input", event => {
        const item = Object.assign({}, itemOfRow($(event.target).closest("tr")), { selected: event.target.checked });
        mediator().enableCustomData(targets(), [item]);
        refreshItems();
    });
    $("#item_name, #item_value, #item_unit").on("input keyup", rule);
}

function bindButtons() {
    $("#add_btn").on("click", () => change(keys => mediator().addCustomData(keys, entered())));
    $("#change_btn").on("click", () => {
        const item = entered();
        change(keys => mediator().editCustomData(keys, item), item);
    });
    $("#delete_btn").on("click", () => change(keys => mediator().deleteCustomData(keys, [{ name: chosen }])));
    $("#load_btn").on("click", () => change(keys => mediator().load(keys)));
    $("#save_btn").on("click", () => mediator().save(items));
    $("#ok_btn").on("click", () => mediator().accept());
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
        select(selectedAfter(selected, Number($(row).attr("data-recid")), event.ctrlKey)));
    bindItems();
    bindButtons();
    const info = JSON.parse(mediator().getDeviceInfo() || "{\"Records\":[],\"InitSelect\":0}");
    records = info.Records;
    select(info.InitSelect ? [info.InitSelect] : []);
});
