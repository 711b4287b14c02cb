import $ from "../jquery.js";
import {labelsOf} from "../ui/labels.js";
import {describeSlider} from "../ui/slider-names.js";

const KEPT = "zelKeptDisabled";
const TAB_STOP = "zelTabStop";

// A tooltip explains a control also while it is disabled.
const UNTOUCHED_WIDGETS = ["ui-tooltip"];

function widgetsOf(node) {
    const data = $.data(node);
    return Object.keys(data)
        .map((name) => data[name])
        .filter((value) => value && value.widgetFullName && UNTOUCHED_WIDGETS.indexOf(value.widgetFullName) < 0);
}

/** Disables one item of a select box, in the box's own list too if that is built already. */
export function disableOption(option, flag) {
    option.disabled = flag;
    const item = $.data(option, "li");
    if (item) {
        item.toggleClass("disabled", flag).attr("aria-disabled", String(flag));
    }
}

/** Notes that an item's maker disabled it: no rule frees it again. */
export function keepDisabled(option) {
    $.data(option, KEPT, true);
}

export function isKeptDisabled(node) {
    return $.data(node, KEPT) === true;
}

function disableSelectBox(select, flag) {
    if (flag) {
        select.sumo.hideOpts();
        select.sumo.disable();
    } else {
        select.sumo.enable();
    }
    select.sumo.select.attr("aria-disabled", String(flag));
}

// Links and other elements that are no form controls leave the tab order while they are disabled.
function disablePlain(node, flag) {
    const element = $(node).attr("aria-disabled", String(flag));
    if (flag && $.data(node, TAB_STOP) === undefined) {
        $.data(node, TAB_STOP, node.getAttribute("tabindex"));
        if (node.tabIndex >= 0) {
            element.attr("tabindex", "-1");
        }
    } else if (!flag && $.data(node, TAB_STOP) !== undefined) {
        const before = $.data(node, TAB_STOP);
        $.removeData(node, TAB_STOP);
        element.attr("tabindex", before); // null takes the attribute away
    }
}

function disableNode(node, flag) {
    const name = node.nodeName.toLowerCase();
    if (name === "option") {
        disableOption(node, flag);
        if (!flag) {
            $.removeData(node, KEPT);
        }
        return;
    }
    const widgets = widgetsOf(node);
    widgets.forEach((widget) => widget.option("disabled", flag));
    describeSlider(node);
    if (node.sumo) {
        disableSelectBox(node, flag);
    } else if ("disabled" in node) {
        node.disabled = flag;
    } else {
        disablePlain(node, flag);
        if (!widgets.length && $(node).is(".slider, .spinner")) {
            disable($(node).find("input, button, select"), flag);
        }
    }
    $(node).toggleClass("disabled", flag);
    labelsOf(node).toggleClass("disabled", flag);
}

/**
 * Disables or enables controls of any kind: form controls, select boxes and their items, sliders, spinners, links,
 * lists and plain texts. What is no form control gets the class `disabled` and leaves the tab order.
 * @param {jQuery|Element|string} element a selection
 * @param {boolean} flag true disables
 */
export function disable(element, flag) {
    $(element).each((_, node) => disableNode(node, Boolean(flag)));
}
