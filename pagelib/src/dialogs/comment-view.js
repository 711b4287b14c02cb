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

/** The last one that is newly selected is the current one. */
function select(ids, current) {
    take();
    selected = ids;
    mediator().setSelectedItems(ids);
    fill("#documents", records.map((record) =>
        documentRow(record, ids.includes(record.recid), ids.length > 1 && record.recid === current)));
    $("#comment").val(mediator().getComment());
    window.zel4func.disable($("#comment"), ids.length === 0);
    $("#hint").text(mediator().translate(ids.length > 1 ? "What you type is the comment of all selected cameras." : ""));
}

function selectAll(current) {
    select([], 0);
    select(records.map((record) => record.recid).sort((a, b) => (a === current) - (b === current)), current);
}

function selectRow(row, event) {
    const recid = recordOf(row);
    const ids = selectedAfter(selected, recid, event.ctrlKey);
    select(ids, ids.includes(recid) ? recid : ids[ids.length - 1]);
}

function accept() {
    take();
    mediator().comment_ok();
}

$(() => {
    startDialog(mediator());
    const info = JSON.parse(mediator().getDocInfos() || "{\"Records\":[],\"InitSelect\":0}");
    records = info.Records;
    $("#cameras").toggle(records.length > 1);
    bindRows("#documents", selectRow);
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
    if (info.InitSelect === 0 || mediator().isForSelection()) {
        selectAll(info.InitSelect);
    } else {
        select([info.InitSelect], info.InitSelect);
    }
    window.zel4func.disable($("#ok_btn"), records.length === 0);
    $("#comment").trigger("focus");
});
