/* global editInfo */
// The items of a group: shown or hidden by their boxes, sorted with the mouse or with Alt and the arrow keys.

const UP = 38;
const DOWN = 40;
const ITEMS = "> :not(hr.unsortable)";

/** What the links behind the items open, by their ids. */
const SLOTS = {
    edit_comment: "editComment",
    edit_custom: "editCustom",
    select_logo: "setLogoPath",
    time_code: "execTimeCodeSettingDialog",
    edit_shutter: "editShutterDispFormat",
    edit_rectime: "editRectimeDispFormat",
    edit_recordrate: "editRecordRateDispFormat",
    edit_frame: "editFrameDispFormat"
};

/** Number of the group that a list shows. */
export function offsetOf(list) {
    const match = /^ei-items([1-6])$/.exec(list.id);
    return match ? Number(match[1]) : 0;
}

/** The order of a list, as `changeOrder` of the dialog takes it. */
export function orderOf(list) {
    return $(list).children().get()
        .map((child) => child.tagName === "LI" ? $(child).find("input").attr("id") : child.tagName)
        .join(",");
}

export function fillList(list) {
    // The dialog has escaped what is not its own.
    $(list).html(editInfo.getInfoSettingsHtml(offsetOf(list)));
}

/** @param {function(Element)} changed - called with a list after its order has changed */
export function bindLists(lists, changed) {
    $(lists)
        .sortable({
            connectWith: ".ei-items",
            items: ITEMS,
            cancel: "input, a",
            placeholder: "sortph",
            distance: 4,
            update: (event) => changed(event.target)
        })
        .on("click", "input[type=checkbox]", function () {
            editInfo.changeDisp(this.id, this.checked, offsetOf(listOf(this)));
        })
        .on("click", "a[name=editinfo_edit]", function (event) {
            event.preventDefault();
            editInfo[SLOTS[this.id]]();
        })
        .on("keydown", "li", function (event) {
            if (event.altKey && (event.which === UP || event.which === DOWN)) {
                event.preventDefault();
                move(this, event.which === UP, changed);
            }
        });
}

function listOf(element) {
    return $(element).closest(".ei-items")[0];
}

/** One place up or down; what had the focus in the item keeps it. */
function move(item, up, changed) {
    const neighbor = up ? $(item).prev() : $(item).next();
    if (neighbor.length === 0 || neighbor.is("hr.unsortable")) {
        return;
    }
    const focused = document.activeElement;
    neighbor[up ? "before" : "after"](item);
    $(focused).trigger("focus");
    item.scrollIntoViewIfNeeded(false);
    changed(listOf(item));
}
