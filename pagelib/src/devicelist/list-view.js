import $ from "../jquery.js";
import {ROW_BUTTONS} from "./rows.js";

// Fills the element of a list and gives back what the user had: scroll position, focus, the row for the Tab key.

function focusIn(list) {
    const active = document.activeElement;
    if (!active || !$.contains(list[0], active)) {
        return null;
    }
    const button = Object.keys(ROW_BUTTONS).find((name) => $(active).hasClass(name));
    return {key: $(active).closest("[data-key]").attr("data-key"), button};
}

/** The row of a document key, empty if there is none. */
export function rowOf(list, key) {
    return list.children().filter((_, row) => row.getAttribute("data-key") === key);
}

/** Makes a row the one that the Tab key reaches. */
export function makeTabStop(list, row) {
    list.children("[tabindex=0]").attr("tabindex", -1);
    row.attr("tabindex", 0);
}

/** Gives the focus to the row of a key, if it is still there. */
export function focusRowOf(list, key) {
    const row = rowOf(list, key);
    makeTabStop(list, row);
    row.trigger("focus");
}

function restoreFocus(list, focus) {
    const row = rowOf(list, focus.key);
    const target = focus.button ? row.find(`.${focus.button}`) : row;
    if (target.length) {
        makeTabStop(list, row);
        target[0].focus();
    }
}

// What a row was made from. A row that would become what it is stays: many are dear to make, and an update changes few.
const MADE_FROM = "zelMadeFrom";

// A click on a check box shows at once, whatever comes of it.
function isAsMade(row) {
    const box = row.querySelector("input[type=checkbox]");
    return !box || box.checked === (row.getAttribute("aria-selected") === "true");
}

function keptOrMade(list, sources, make) {
    const before = {};
    list.children().each((_, row) => {
        before[$.data(row, MADE_FROM)] = row;
    });
    return sources.map((source) => {
        const kept = before[source];
        return kept && isAsMade(kept) ? kept : make(source).data(MADE_FROM, source)[0];
    });
}

function place(list, rows) {
    list.children().not(rows).remove();
    rows.forEach((row, i) => {
        if (list[0].children[i] !== row) {
            list[0].insertBefore(row, list[0].children[i] || null);
        }
    });
}

/**
 * Fills a list. Rows that stand in it already stay.
 * @param {jQuery} list
 * @param {string[]} sources what makes each row what it is; none stands twice
 * @param {function(string): jQuery} make a row from that
 */
export function fillList(list, sources, make) {
    const focus = focusIn(list);
    const stop = list.children("[tabindex=0]").attr("data-key");
    const scrolled = list.add(list.parents(".scrollarea")).get().map((node) => ({node, top: node.scrollTop}));
    place(list.attr({role: "listbox", "aria-multiselectable": "true"}), keptOrMade(list, sources, make));
    const first = [rowOf(list, stop), list.children("[aria-selected=true]").first(), list.children().first()];
    makeTabStop(list, first.find((row) => row.length) || $());
    if (focus) {
        restoreFocus(list, focus);
    }
    scrolled.forEach(({node, top}) => {
        node.scrollTop = top;
    });
}
