import $ from "../jquery.js";
import {rowAfterKey} from "./list-keys.js";

// The list of the native select box. The host sends the rows, {value, text, selected, empty, separated}; the value of
// the row that is picked goes to the slot that belongs to the list.

const KEY_ENTER = 13;
const KEY_ESCAPE = 27;
const KEY_SPACE = 32;

const items = window.items;
let notify = null; // name of the slot that takes the choice

function rowOf(row) {
    return $("<li>", {role: "option", text: row.text, title: row.text})
        .attr("data-value", row.value)
        .attr("aria-selected", String(Boolean(row.selected)))
        .toggleClass("selected", Boolean(row.selected))
        .toggleClass("empty", Boolean(row.empty))
        .toggleClass("separated", Boolean(row.separated));
}

function activate(index) {
    const $rows = $("#select_list li").removeClass("active");
    const $row = $rows.eq(Math.max(0, index)).addClass("active");
    if ($row[0] && $row[0].scrollIntoViewIfNeeded) {
        $row[0].scrollIntoViewIfNeeded(false);
    }
}

function show(rows, slot) {
    notify = slot;
    window.zel4func.applyStyle(items);
    $("#select_list").empty().append(rows.map(rowOf)).trigger("focus");
    activate(rows.findIndex((row) => row.selected));
}

function pick($row) {
    if (notify && $row.length > 0) {
        items[notify]($row.attr("data-value"));
    }
}

function onKey(event) {
    const $rows = $("#select_list li");
    const next = rowAfterKey(event.which, $rows.index($rows.filter(".active")), $rows.length);
    if (next !== null) {
        activate(next);
    } else if (event.which === KEY_ENTER || event.which === KEY_SPACE) {
        pick($rows.filter(".active"));
    } else if (event.which === KEY_ESCAPE) {
        items.hideSelectBox();
    } else {
        return;
    }
    event.preventDefault();
}

// At once, not when the document is ready: the host fills the list as soon as the page has loaded.
items.signalShowPartition.connect((rows) => show(rows, "slotNotifyPartition"));
items.signalShowVariable.connect((text) => show(JSON.parse(text), "slotNotifyVariable"));
items.signalShowVariableRegist.connect((text) => show(JSON.parse(text), "slotNotifyVariableRegist"));
items.signalSetHeight.connect((height) => $("#select_list").css("height", height));
$(document).on("click", "#select_list li", (event) => pick($(event.currentTarget))).on("keydown", onKey);
$(() => window.zel4func.enableUserOperationLog(items, "body"));
