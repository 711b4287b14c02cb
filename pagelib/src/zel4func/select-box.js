import $ from "../jquery.js";
import {nameOf} from "../ui/labels.js";
import {disableOption, keepDisabled} from "./disable.js";
import {bindSelectKeys, markStart} from "./select-keys.js";
import {placeList} from "./select-place.js";

// The select boxes are SumoSelect's. What it does not do by itself is done here:
// - It copies the options into a list of its own and shows a stale caption until that list is built again. Its reload()
//   would take the keyboard focus away and leave a window handler behind each time, so the list is rebuilt in place.
// - Opening one box leaves another one open.
// - It reports a change when the item is chosen that was selected already, and closes the list only after the report.

const DIRTY = "zelListStale";
const OPTIONS = {
    placeholder: "",
    floatWidth: 0, // a list, never a window-filling sheet, however narrow the panel
    nativeOnDevice: []
};

function eachSelect(select, action) {
    $(select).each((_, node) => {
        if (node.nodeName === "SELECT") {
            action(node);
        }
    });
}

function describe(node) {
    const {select, ul} = node.sumo;
    const labelledBy = node.getAttribute("aria-labelledby");
    select.attr({
        role: "combobox",
        "aria-haspopup": "listbox",
        "aria-labelledby": labelledBy,
        "aria-label": labelledBy ? null : nameOf(node)
    });
    ul.attr("role", "listbox").find("li.opt").each((_, item) => {
        const state = $(item);
        state.attr({
            role: "option",
            "aria-selected": String(state.hasClass("selected")),
            "aria-disabled": String(state.hasClass("disabled"))
        });
        // An item without text that can't be chosen parts the items above it from those below.
        state.toggleClass("separator", state.hasClass("disabled") && !state.text().trim());
        state.attr("data-note", $.data(item, "opt").attr("data-note") || null);
    });
}

/** Touches only a row whose state changes: a list may be long, and a slider moves its selection at each step. */
function markSelected(item, selected) {
    if (item.classList.contains("selected") !== selected) {
        item.classList.toggle("selected");
        item.setAttribute("aria-selected", String(selected));
    }
}

function rebuild(node) {
    const sumo = node.sumo;
    $.removeData(node, DIRTY);
    if (!sumo) {
        return;
    }
    sumo.hideOpts();
    sumo.selectedCount = 0;
    sumo.ul.empty().append(sumo.prepItems(sumo.E.children()));
    sumo.setText();
    describe(node);
}

// Pages that fill a box and never ask for a reload get one as soon as their script has ended.
function markStale(node) {
    if (!$.data(node, DIRTY)) {
        $.data(node, DIRTY, true);
        setTimeout(() => {
            if ($.data(node, DIRTY)) {
                rebuild(node);
            }
        }, 0);
    }
}

function closeOthers(node) {
    $("select.SumoUnder").not(node).each((_, other) => other.sumo && other.sumo.hideOpts());
}

function ignoreSameItem(sumo) {
    sumo.ul[0].addEventListener("click", (event) => {
        const chosen = $(event.target).closest("li.opt").hasClass("selected");
        if (chosen && !sumo.E.attr("data-repeats")) {
            event.stopPropagation();
            sumo.hideOpts();
        }
    }, true);
}

// The list closes before the page hears of a choice, since its handler may open a message that the list would lie over;
// but not before the operation log, on the document, has seen that the list was open.
function closeBeforeChange(sumo) {
    sumo.select[0].addEventListener("change", () => sumo.hideOpts(), true);
}

// The focus ring is for the keyboard: a box that the mouse has used keeps the focus, but looks as it did before.
function markMouseUse(sumo) {
    sumo.select
        .on("mousedown.zelSelect", () => sumo.select.addClass("by-mouse"))
        .on("keydown.zelSelect blur.zelSelect", () => sumo.select.removeClass("by-mouse"));
}

/**
 * Turns selects into SumoSelect boxes. An option's attribute `data-note` stands at its row in the open list; with
 * `data-repeats` on the select a choice of the item that is selected already counts as one too.
 * @param {jQuery|string} selector the selects
 * @param {number} [width] width in pixels; as wide as its place if left out
 * @param {boolean} [up] the list opens upwards where there is room
 */
export function initSumoSelect(selector, width, up) {
    eachSelect(selector, (node) => {
        if (node.sumo) {
            return;
        }
        $(node).SumoSelect($.extend({}, OPTIONS, {up: Boolean(up)}));
        const {sumo} = node;
        if (width) {
            sumo.select.css("width", `${Number(width)}px`);
        }
        bindSelectKeys(sumo);
        ignoreSameItem(sumo);
        closeBeforeChange(sumo);
        markMouseUse(sumo);
        $(node)
            .on("focus.zelSelect", () => sumo.select.trigger("focus"))
            .on("sumo:opening.zelSelect", () => closeOthers(node))
            .on("sumo:opened.zelSelect", () => {
                placeList(sumo, Boolean(up));
                markStart(sumo);
            })
            .on("change.zelSelect", () => describe(node));
        describe(node);
    });
}

/** Takes all items out of a box; an open list closes. */
export function emptySumoSelect(select) {
    eachSelect(select, (node) => {
        $(node).empty();
        if (node.sumo) {
            node.sumo.hideOpts();
            markStale(node);
        }
    });
}

/**
 * Appends an item.
 * @param {string|number} value value of the item
 * @param {string} text what it shows, never taken as markup
 * @param {string} [id] id of the option
 * @param {string} [className] class of the option and of its row in the open list
 */
export function addItemSumoSelect(select, value, text, id, className) {
    eachSelect(select, (node) => {
        const option = $("<option>").attr("value", String(value)).text(text);
        if (id) {
            option.attr("id", id);
        }
        if (className) {
            option.addClass(className);
        }
        $(node).append(option);
        markStale(node);
    });
}

/** Selects the item of that value without any event; without such an item nothing is selected. */
export function selectItemSumoSelect(select, value) {
    eachSelect(select, (node) => {
        $(node).val(String(value));
        if (node.sumo && !$.data(node, DIRTY)) {
            node.sumo.setText();
            node.sumo.ul.children("li.opt").each((_, item) => {
                const option = $.data(item, "opt");
                markSelected(item, Boolean(option) && option[0].selected);
            });
        }
    });
}

/** Disables the item of that value for good: until it is rebuilt or the page itself enables it. */
export function disableItemSumoSelect(select, value) {
    eachSelect(select, (node) => {
        $(node).find("option").filter((_, option) => option.value === String(value)).each((_, option) => {
            disableOption(option, true);
            keepDisabled(option);
        });
    });
}

/** Rebuilds what the boxes show from their options; an open list closes. */
export function reloadSumoSelect(selector) {
    eachSelect(selector, rebuild);
}
