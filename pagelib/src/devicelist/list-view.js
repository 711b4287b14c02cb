import $ from "../jquery.js";
import {ROW_BUTTONS} from "./rows.js";

// Fills the element of a list anew and gives back what the user had: scroll position, focus, the row for the Tab key.

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

/** Replaces the rows of a list. */
export function fillList(list, rows) {
    const focus = focusIn(list);
    const stop = list.children("[tabindex=0]").attr("data-key");
    const scrolled = list.add(list.parents(".scrollarea")).get().map((node) => ({node, top: node.scrollTop}));
    list.attr({role: "listbox", "aria-multiselectable": "true"}).empty().append(rows);
    const first = [rowOf(list, stop), list.children("[aria-selected=true]").first(), list.children().first()];
    makeTabStop(list, first.find((row) => row.length) || $());
    if (focus) {
        restoreFocus(list, focus);
    }
    scrolled.forEach(({node, top}) => {
        node.scrollTop = top;
    });
}
