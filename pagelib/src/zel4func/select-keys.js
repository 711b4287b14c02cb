import $ from "../jquery.js";

// SumoSelect's own keyboard opens the list again after Enter has chosen from it, ignores the space bar, and stops at
// disabled items; this one replaces it.

const KEY = {
    TAB: 9,
    ENTER: 13,
    ESCAPE: 27,
    SPACE: 32,
    PAGE_UP: 33,
    PAGE_DOWN: 34,
    END: 35,
    HOME: 36,
    UP: 38,
    DOWN: 40
};
const PAGE = 8; // rows
const SEARCH_PAUSE = 800; // ms after which typed letters start a new search

function choosable(sumo) {
    return sumo.ul.find("li.opt:not(.disabled):not(.hidden)");
}

function mark(sumo, item) {
    if (!item || !item.length) {
        return;
    }
    sumo.ul.find("li.sel").removeClass("sel");
    item.addClass("sel");
    const list = sumo.ul[0];
    const {offsetTop, offsetHeight} = item[0];
    if (offsetTop < list.scrollTop) {
        list.scrollTop = offsetTop;
    } else if (offsetTop + offsetHeight > list.scrollTop + list.clientHeight) {
        list.scrollTop = offsetTop + offsetHeight - list.clientHeight;
    }
}

/** Marks where the keys begin in a list that has just opened: at the selected item, else at the first. */
export function markStart(sumo) {
    const items = choosable(sumo);
    const selected = items.filter(".selected").first();
    mark(sumo, selected.length ? selected : items.first());
}

function move(sumo, distance) {
    const items = choosable(sumo);
    const from = items.index(sumo.ul.find("li.sel"));
    mark(sumo, items.eq(Math.max(0, Math.min(items.length - 1, from + distance))));
}

function choose(sumo) {
    const item = sumo.ul.find("li.sel")[0];
    if (item) {
        item.click();
    } else {
        sumo.hideOpts();
    }
}

const STEPS = {
    [KEY.UP]: -1,
    [KEY.DOWN]: 1,
    [KEY.PAGE_UP]: -PAGE,
    [KEY.PAGE_DOWN]: PAGE,
    [KEY.HOME]: -Infinity,
    [KEY.END]: Infinity
};

function onKeyDown(sumo, event) {
    const key = event.which;
    if (key === KEY.TAB) {
        sumo.hideOpts();
        return;
    }
    if (event.ctrlKey || event.metaKey || $(sumo.select).hasClass("disabled")) {
        return;
    }
    const chooses = key === KEY.ENTER || key === KEY.SPACE;
    if (!sumo.is_opened && (chooses || key === KEY.UP || key === KEY.DOWN)) {
        sumo.showOpts();
    } else if (sumo.is_opened && chooses) {
        choose(sumo);
    } else if (sumo.is_opened && key === KEY.ESCAPE) {
        sumo.hideOpts();
        event.stopPropagation(); // the dialog around an open box stays
    } else if (sumo.is_opened && STEPS[key] !== undefined) {
        move(sumo, STEPS[key]);
    } else {
        return;
    }
    event.preventDefault();
}

// Typed letters go to the next item that begins with them.
function searcher(sumo) {
    let typed = "";
    let last = 0;
    return (event) => {
        const letter = String.fromCharCode(event.which).toLowerCase();
        if (event.which <= KEY.SPACE || !sumo.is_opened) {
            return;
        }
        const now = Date.now();
        typed = now - last > SEARCH_PAUSE ? letter : typed + letter;
        last = now;
        const found = choosable(sumo).filter((_, item) => $(item).text().trim().toLowerCase().startsWith(typed));
        mark(sumo, found.first());
    };
}

/** Gives a box the keyboard: arrows, Home, End, Page Up and Down, Enter and space, Escape, letters. */
export function bindSelectKeys(sumo) {
    sumo.select
        .off("keydown.sumo")
        .on("keydown.zelSelect", (event) => onKeyDown(sumo, event))
        .on("keypress.zelSelect", searcher(sumo));
}
