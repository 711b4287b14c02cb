import $ from "../jquery.js";

// Values of a row's data that are class names of the row, each either set or empty.
const FLAGS = ["selected", "found", "mobile", "dummy", "shutdown", "sup-wifi", "con-wifi", "sup-linkspeed"];

// Row buttons by class: the slot that each calls, and the flag without which a camera has no use for it.
export const ROW_BUTTONS = {
    delete: {slot: "deleteDoc", label: "Delete"},
    edit: {slot: "editDoc", label: "Edit device"},
    power: {slot: "controlCameraPower", flag: "shutdown", label: "Turn off or restart"},
    wifi: {slot: "wifiSetting", flag: "sup-wifi", label: "Wi-Fi setting"},
    linkspeed: {flag: "sup-linkspeed"} // a mark only
};

// Where rows come to be, so that nothing in them acts before they are in the page. One is enough for all.
const INERT = document.implementation.createHTMLDocument("");

const ALL_BUTTONS = Object.keys(ROW_BUTTONS).map((name) => `.${name}`).join(", ");

/** Whether rows of this template have buttons: then it is the long list, which shows all cameras. */
export function hasRowButtons(template) {
    return $("<div>").append($.parseHTML(template)).find(ALL_BUTTONS).length > 0;
}

function dropUselessButtons(row, info, findSlot) {
    Object.keys(ROW_BUTTONS).forEach((name) => {
        const {slot, flag} = ROW_BUTTONS[name];
        if ((flag && !info[flag]) || (slot && !findSlot(slot))) {
            row.find(`.${name}`).remove();
        }
    });
}

/** What can be done with the camera of a row, by names of buttons. */
export function actionsFor(row, findSlot) {
    const flags = row.data("flags") || [];
    return ["edit", "power", "wifi", "delete"].filter((name) => {
        const {slot, flag} = ROW_BUTTONS[name];
        return (!flag || flags.indexOf(flag) >= 0) && findSlot(slot);
    });
}

/**
 * One row.
 * @param {Object} compiled compiled template
 * @param {Object} info data of one camera
 * @param {function(string): Function|null} findSlot gives the slot of a name, if there is one
 */
export function createRow(compiled, info, findSlot) {
    const row = $($.parseHTML(compiled.render(info), INERT).find((node) => node.nodeType === Node.ELEMENT_NODE));
    row.addClass(FLAGS.map((flag) => info[flag]).filter(Boolean).join(" "));
    row.attr({
        role: "option",
        tabindex: -1,
        "data-key": String(info.key),
        "aria-selected": String(Boolean(info.selected))
    });
    row.data("flags", FLAGS.filter((flag) => info[flag]));
    row.find("input[type=checkbox]").prop("checked", Boolean(info.selected)).attr("tabindex", -1);
    row.find(ALL_BUTTONS).attr("tabindex", -1);
    row.toggleClass("has-buttons", row.find(ALL_BUTTONS).length > 0);
    dropUselessButtons(row, info, findSlot);
    return row;
}
