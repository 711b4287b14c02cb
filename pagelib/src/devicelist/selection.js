import $ from "../jquery.js";
import {makeTabStop, rowOf} from "./list-view.js";
import {matchFrom} from "./row-data.js";
import {ROW_BUTTONS} from "./rows.js";

// The mouse and the keyboard on a list. A press selects that camera alone, a press with Ctrl, a check box or the space
// bar adds it to the selection or takes it out, a press with Shift selects from the last such one to this. `actions`
// says what that means. The list is one stop of the Tab key: arrows go on inside, to a row's buttons too.

const KEY = {ENTER: 13, SPACE: 32, END: 35, HOME: 36, LEFT: 37, UP: 38, RIGHT: 39, DOWN: 40, DELETE: 46, A: 65, MENU: 93,
    F2: 113, F10: 121};
const EVENTS = ".zelDeviceList";
const INNER_CONTROLS = "button, a, input, select";
const BUTTONS = Object.keys(ROW_BUTTONS).map((name) => `button.${name}`).join(", ");
const MOVES = {[KEY.UP]: -1, [KEY.DOWN]: 1, [KEY.HOME]: -Infinity, [KEY.END]: Infinity};
const WORD_PAUSE_MS = 1000; // keys that come faster belong to one word

function isDisabled(list) {
    return list.hasClass("disabled");
}

function shown(elements) {
    return elements.filter((_, element) => $(element).css("display") !== "none");
}

function focusRow(list, row) {
    makeTabStop(list, row);
    row.trigger("focus");
}

function neighbor(list, row, distance) {
    const rows = shown(list.children());
    return rows.eq(Math.max(0, Math.min(rows.length - 1, rows.index(row) + distance)));
}

/** The rows from the one that was chosen last to this one, that one first. */
function rangeTo(list, row) {
    const rows = shown(list.children());
    const anchor = rowOf(list, list.data("anchor"));
    const start = rows.index(anchor.length ? anchor : row);
    const end = rows.index(row);
    const range = rows.slice(Math.min(start, end), Math.max(start, end) + 1).get();
    return $(start > end ? range.reverse() : range);
}

function select(list, actions, row, isToggle) {
    list.data("anchor", row.attr("data-key"));
    actions.select(row, isToggle);
}

function selectRange(list, actions, row, keepsOthers) {
    const range = rangeTo(list, row);
    list.data("anchor", range.first().attr("data-key"));
    actions.selectRange(range, keepsOthers);
}

function moveToButton(row, target, step) {
    const stops = row.add(shown(row.find(BUTTONS)));
    stops.eq(Math.max(0, Math.min(stops.length - 1, stops.index(target) + step))).trigger("focus");
}

// A word that is typed goes to the next row whose name begins so.
function onKeyPress(list, event) {
    if (event.which <= KEY.SPACE || event.ctrlKey || event.metaKey || event.altKey) {
        return;
    }
    const before = list.data("word") || {text: "", time: -Infinity};
    const isNext = event.timeStamp - before.time < WORD_PAUSE_MS;
    const text = (isNext ? before.text : "") + String.fromCharCode(event.which);
    list.data("word", {text, time: event.timeStamp});
    const rows = shown(list.children());
    const names = rows.get().map((row) => $(row).find(".device-name").text());
    const found = matchFrom(names, text, rows.index($(event.target).closest("[data-key]")));
    if (found >= 0) {
        focusRow(list, rows.eq(found));
        event.preventDefault();
    }
}

function onRowKey(list, actions, row, event) {
    const key = event.which;
    if (key === KEY.SPACE || key === KEY.ENTER) {
        select(list, actions, row, key === KEY.SPACE || event.ctrlKey);
    } else if (key === KEY.A && event.ctrlKey) {
        actions.selectAll();
    } else if (key === KEY.F2) {
        actions.call(row, "edit");
    } else if (key === KEY.DELETE) {
        actions.call(row, "delete");
    } else if (key === KEY.MENU || (key === KEY.F10 && event.shiftKey)) {
        const box = row[0].getBoundingClientRect();
        actions.showMenu(row, {x: box.left + box.height, y: box.bottom});
    } else {
        return false;
    }
    return true;
}

function onKeyDown(list, actions, event) {
    const target = $(event.target);
    const row = target.closest("[data-key]");
    const isRow = target.is("[role=option]");
    const key = event.which;
    if (MOVES[key] !== undefined) {
        const to = neighbor(list, row, MOVES[key]);
        focusRow(list, to);
        if (event.shiftKey && !isDisabled(list)) {
            selectRange(list, actions, to, event.ctrlKey);
        }
    } else if (key === KEY.LEFT || key === KEY.RIGHT) {
        moveToButton(row, target, key === KEY.LEFT ? -1 : 1);
    } else if (!isRow || isDisabled(list) || !onRowKey(list, actions, row, event)) {
        return;
    }
    event.preventDefault();
}

function onClick(list, actions, event) {
    const row = $(event.currentTarget);
    if (isDisabled(list)) {
        event.preventDefault();
        return;
    }
    const inner = $(event.target).closest(INNER_CONTROLS);
    if (inner.is("input[type=checkbox]")) {
        select(list, actions, row, true);
    } else if (inner.length) {
        actions.press(row, inner);
    } else if (event.shiftKey) {
        selectRange(list, actions, row, event.ctrlKey || event.metaKey);
    } else {
        select(list, actions, row, event.ctrlKey || event.metaKey);
    }
}

function onMouseDown(list, actions, event) {
    if (isDisabled(list)) {
        return;
    }
    const row = $(event.currentTarget);
    if (event.which === 3) {
        focusRow(list, row);
        actions.showMenu(row, {x: event.clientX, y: event.clientY});
        event.preventDefault();
    }
    if (event.which !== 1) {
        return;
    }
    if (event.shiftKey) {
        event.preventDefault(); // no marking of text
        row.trigger("focus");
    }
    makeTabStop(list, row);
    actions.hold();
    // The click follows the release at once; without one (released elsewhere) the press ends all the same.
    $(document).one(`mouseup${EVENTS}`, () => setTimeout(actions.letGo, 0));
}

/**
 * Binds a list's events, once for each element.
 * @param {jQuery} list the list's element
 * @param {Object} actions `select(row, toggle)`, `selectRange(rows, keepsOthers)`, `selectAll()`, `press(row, button)`,
 *   `call(row, name)` for what a row's button of that name does, `showMenu(row, {x, y})`, `hold()` when a press on a
 *   row begins and `letGo()` when it has ended
 */
export function bindSelection(list, actions) {
    list.off(EVENTS)
        .on(`keydown${EVENTS}`, (event) => onKeyDown(list, actions, event))
        .on(`keypress${EVENTS}`, (event) => onKeyPress(list, event))
        .on(`click${EVENTS}`, "[role=option]", (event) => onClick(list, actions, event))
        .on(`mousedown${EVENTS}`, "[role=option]", (event) => onMouseDown(list, actions, event))
        .on(`contextmenu${EVENTS}`, () => false)
        .on(`dblclick${EVENTS}`, "[role=option]", (event) => {
            if (!isDisabled(list) && !$(event.target).closest(INNER_CONTROLS).length) {
                actions.call($(event.currentTarget), "edit");
            }
        });
}
