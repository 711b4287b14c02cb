import $ from "../jquery.js";
import {selectedAfter} from "./custom-items.js";
import {startDialog} from "./dialog.js";
import {bindRows, documentRow, fill, recordOf} from "./record-rows.js";

// The comment of the current document. What is typed goes to all selected ones, and only then: who looks at one and
// selects another changes nothing.

const ENTER = 13;

let records = [];
let selected = [];
let isTyped = false;

function mediator() {
    return window.comment_mediator;
}

function take() {
    if (isTyped) {
        mediator().setComment($("#comment").val());
        isTyped = false;
    }
}

function hintFor(ids) {
    if (ids.length === 0 && records.length > 0) {
        return "Select a camera.";
    }
    return ids.length > 1 ? "What you type is the comment of all selected cameras." : "";
}

/** Of several the last one is the current one: the dialog makes the last one current that was not selected before. */
function select(ids) {
    take();
    selected = ids;
    mediator().setSelectedItems([]);
    mediator().setSelectedItems(ids);
    const current = ids.length > 1 ? ids[ids.length - 1] : null;
    fill("#documents", records.map((record) =>
        documentRow(record, ids.includes(record.recid), record.recid === current)));
    $("#comment").val(mediator().getComment());
    window.zel4func.disable($("#comment"), ids.length === 0);
    $("#hint").text(mediator().translate(hintFor(ids)));
}

function selectAll(current) {
    select(records.map((record) => record.recid).sort((a, b) => (a === current) - (b === current)));
}

function accept() {
    take();
    mediator().comment_ok();
}

$(() => {
    startDialog(mediator());
    const info = JSON.parse(mediator().getDocInfos() || "{\"Records\":[],\"InitSelect\":0}");
    records = info.Records;
    $("#cameras").toggle(records.length > 1 || info.InitSelect === 0);
    bindRows("#documents", (row, event) => select(selectedAfter(selected, recordOf(row), event.ctrlKey)));
    $("#all_btn").on("click", () => selectAll(selected[selected.length - 1]));
    $("#comment").on("input", () => {
        isTyped = true;
    }).on("keydown", (event) => {
        if (event.which === ENTER && event.ctrlKey) {
            event.preventDefault();
            accept();
        }
    });
    $("#ok_btn").on("click", accept);
    $("#cancel_btn").on("click", () => mediator().comment_cancel());
    if (mediator().isForSelection()) {
        selectAll(info.InitSelect);
    } else {
        select(info.InitSelect === 0 ? [] : [info.InitSelect]);
    }
    window.zel4func.disable($("#ok_btn"), records.length === 0);
    const box = $("#comment").trigger("focus")[0];
    box.setSelectionRange(box.value.length, box.value.length);
});
