import $ from "../jquery.js";

// Rows of a table that are chosen like those of a list, by mouse and keyboard. What stands in them is the user's or a
// file's: text nodes and values only.

const ENTER = 13;
const SPACE = 32;
const UP = 38;
const DOWN = 40;

/** Kind and name tell the row in the log. */
export function rowOf(kind, name, cells, isSelected) {
    return $("<tr>", {tabindex: 0, role: "row", class: kind}).toggleClass("ui-selected", isSelected)
        .attr({"aria-selected": String(isSelected), "data-log": name})
        .append(cells.map((cell) => $("<td>", {role: "gridcell"}).append(cell)));
}

/** The row of a document; the current one is the one whose values show. */
export function documentRow(record, isSelected, isCurrent) {
    return rowOf("document-row", record.name, [document.createTextNode(record.name)], isSelected)
        .toggleClass("current", isCurrent).attr("data-recid", record.recid);
}

/** New rows for a table; the focus stays in the row that had it. */
export function fill(table, rows) {
    const body = $(table).find("tbody");
    const focused = body.find(":focus");
    const index = Math.min(focused.closest("tr").index(), rows.length - 1);
    const isTick = focused.is("input");
    body.empty().append(rows);
    if (index >= 0) {
        const row = body.children().eq(index);
        (isTick ? row.find("input") : row).trigger("focus");
    }
}

/** The number of the row's record. */
export function recordOf(row) {
    return Number($(row).attr("data-recid"));
}

/** Calls `action(row, event)` for a row that is clicked or reached by the keyboard. */
export function bindRows(table, action) {
    $(table).on("click", "tbody tr", (event) => action(event.currentTarget, event))
        .on("keydown", "tbody tr", (event) => {
            const row = $(event.currentTarget);
            const next = {[ENTER]: row, [SPACE]: row, [UP]: row.prev(), [DOWN]: row.next()}[event.which];
            if (next && next.length && !$(event.target).is("input")) {
                event.preventDefault();
                next.trigger("focus");
                window.zel4func.logChosenRow(next[0]);
                action(next[0], event);
            }
        });
}
