import $ from "../jquery.js";
import {makeTabStop} from "./list-view.js";

// The mouse and the keyboard on a list. A press selects that camera alone, a press with Ctrl, a check box or the space
// bar adds it to the selection or takes it out. `actions` says what that means.

const KEY = {ENTER: 13, SPACE: 32, END: 35, HOME: 36, UP: 38, DOWN: 40, A: 65};
const EVENTS = ".zelDeviceList";
const INNER_CONTROLS = "button, a, input, select";

function isDisabled(list) {
    return list.hasClass("disabled");
}

function moveFocus(list, row, distance) {
    const rows = list.children();
    const target = rows.eq(Math.max(0, Math.min(rows.length - 1, rows.index(row) + distance)));
    makeTabStop(list, target);
    target.trigger("focus");
}

const MOVES = {[KEY.UP]: -1, [KEY.DOWN]: 1, [KEY.HOME]: -Infinity, [KEY.END]: Infinity};

function onKeyDown(list, actions, event) {
    const row = $(event.target);
    if (!row.is("[role=option]")) {
        return; // keys of a button in the row
    }
    const key = event.which;
    const selects = key === KEY.SPACE || key === KEY.ENTER;
    if (MOVES[key] !== undefined) {
        moveFocus(list, row, MOVES[key]);
    } else if (selects && !isDisabled(list)) {
        actions.select(row, key === KEY.SPACE || event.ctrlKey);
    } else if (key === KEY.A && event.ctrlKey && !isDisabled(list)) {
        actions.selectAll();
    } else {
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
        actions.select(row, true);
    } else if (inner.length) {
        actions.press(row, inner);
    } else {
        actions.select(row, event.ctrlKey || event.metaKey);
    }
}

/**
 * Binds a list's events, once for each element.
 * @param {jQuery} list the list's element
 * @param {Object} actions `select(row, toggle)`, `selectAll()`, `press(row, button)`, `hold()` when a press on a row
 *   begins and `letGo()` when it has ended
 */
export function bindSelection(list, actions) {
    list.off(EVENTS)
        .on(`keydown${EVENTS}`, (event) => onKeyDown(list, actions, event))
        .on(`click${EVENTS}`, "[role=option]", (event) => onClick(list, actions, event))
        .on(`mousedown${EVENTS}`, "[role=option]", (event) => {
            if (isDisabled(list) || event.which !== 1) {
                return;
            }
            makeTabStop(list, $(event.currentTarget));
            actions.hold();
            // The click follows the release at once; without one (released elsewhere) the press ends all the same.
            $(document).one(`mouseup${EVENTS}`, () => setTimeout(actions.letGo, 0));
        });
}
