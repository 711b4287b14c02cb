/* global zel4func */

// Index of the item that the host last reported, kept with the select.
const REPORTED = "reportedIndex";
// Text of the items that it was filled with.
const FILLED = "filledItems";
// What the page's markup shows in a box that has nothing selected.
const PLACEHOLDER = "markupPlaceholder";

/** Fills a select box with the items of a box (see shooting-items.js) and selects one of them. */
export function fillBox($select, box) {
    zel4func.emptySumoSelect($select);
    box.items.forEach((item) => addItem($select, item));
    $select.data(FILLED, JSON.stringify(box.items));
    selectInBox($select, box);
}

/** Takes out all that a box has shown: what the camera has can't be read. */
export function clearBox($select) {
    fillBox($select, {items: [], selected: -1, caption: ""});
}

/** Whether a box holds nothing: it was cleared, or never filled. An empty list of the camera's has its own item. */
export function isCleared($select) {
    return $select.children("option").length === 0;
}

/** Between two updates of the page: fills the box only if its items are others than before. */
export function followBox($select, box) {
    if ($select.data(FILLED) === JSON.stringify(box.items)) {
        selectInBox($select, box);
    } else {
        fillBox($select, box);
    }
}

/** Selects the item that the box names; with none, the closed box shows its caption, or the markup's without one. */
export function selectInBox($select, box) {
    showCaption($select, box.caption);
    if (box.selected >= 0) {
        zel4func.selectItemSumoSelect($select, box.items[box.selected].value);
    }
    // A separator may bear the same value: the index decides.
    $select.prop("selectedIndex", box.selected).data(REPORTED, box.selected);
    $select.closest(".SumoSelect").toggleClass("locked", Boolean(box.locked));
}

/**
 * Puts a box back to what the host last reported. A choice is a wish until the camera has taken it: were it refused,
 * the message would stand before a box that shows a value that no camera has.
 */
export function showReported(selector) {
    const $select = $(selector);
    $select.prop("selectedIndex", $select.data(REPORTED));
    showChanges(selector);
}

/** Shows that the mode of an item is on, in the box and in its open list. */
export function colorItem($select, value, on) {
    $select.children("option").filter((_, option) => option.value === value).each((_, option) => {
        $(option).add(listEntry($(option))).toggleClass("palegreen", on);
    });
}

/** Makes changed items show: the library's box keeps a stale caption and list otherwise. */
export function showChanges(selector) {
    zel4func.reloadSumoSelect(selector);
}

function showCaption($select, caption) {
    if ($select.data(PLACEHOLDER) === undefined) {
        $select.data(PLACEHOLDER, $select.attr("placeholder") || "");
    }
    $select.attr("placeholder", caption === undefined ? $select.data(PLACEHOLDER) : caption);
}

function addItem($select, item) {
    zel4func.addItemSumoSelect($select, item.value, item.text);
    const $option = $select.children("option").last();
    if (item.id) {
        $option.attr("id", item.id);
    }
    $option.addClass(item.className || "");
    if (item.palegreen) {
        $option.add(listEntry($option)).addClass("palegreen");
    }
    if (item.className === "hr") {
        zel4func.disable($option, true);
    } else if (item.disabled) {
        zel4func.disableItemSumoSelect($select, item.value);
    }
}

function listEntry($option) {
    const $entry = $option.data("li") || $();
    return $entry.add($entry.children("label"));
}
