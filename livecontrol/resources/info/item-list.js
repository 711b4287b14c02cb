/* global editInfo */
// The items of a group: shown or hidden by their boxes, sorted with the mouse or with Alt and the arrow keys.

const LEFT = 37;
const UP = 38;
const RIGHT = 39;
const DOWN = 40;
const MOVES = {
    [UP]: (item) => swap(item, $(item).prev(), "before"),
    [DOWN]: (item) => swap(item, $(item).next(), "after"),
    [LEFT]: (item) => carry(item, -1),
    [RIGHT]: (item) => carry(item, 1)
};
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

// The library keeps account of each handle's class, in a time that grows faster than the square of their number.
function markHandles() {
    $.each(this.items, (_, entry) => entry.item.addClass("ui-sortable-handle"));
}

/**
 * @param {function(Element)} changed - called with a list after its order has changed
 * @param {Object} [sorting] - further options of the sorting
 */
export function bindLists(lists, changed, sorting = {}) {
    $.ui.sortable.prototype._setHandleClassName = markHandles;
    $(lists)
        .sortable($.extend({
            connectWith: ".ei-items",
            items: ITEMS,
            cancel: "input, a",
            placeholder: "sortph",
            distance: 4,
            update: (event) => changed(event.target)
        }, sorting))
        .on("click", "input[type=checkbox]", function () {
            editInfo.changeDisp(this.id, this.checked, offsetOf(listOf(this)));
        })
        .on("click", "a[name=editinfo_edit]", function (event) {
            event.preventDefault();
            editInfo[SLOTS[this.id]]();
        })
        .on("keydown", "li", function (event) {
            if (event.altKey && MOVES[event.which]) {
                event.preventDefault();
                move(this, MOVES[event.which], changed);
            }
        });
}

function listOf(element) {
    return $(element).closest(".ei-items")[0];
}

/** What had the focus in the item keeps it. */
function move(item, step, changed) {
    const focused = document.activeElement;
    const from = listOf(item);
    if (!step(item)) {
        return;
    }
    const to = listOf(item);
    if (to !== from) {
        changed(from);
        $(to).trigger("carried", [item, from]);
    }
    changed(to);
    $(focused).filter(":visible").trigger("focus");
    item.scrollIntoViewIfNeeded(false);
}

function swap(item, neighbor, side) {
    neighbor[side](item);
    return neighbor.length > 0;
}

/** To the end of the next list or the one before, round all of them. */
function carry(item, step) {
    const lists = $(".ei-items").get().sort((a, b) => offsetOf(a) - offsetOf(b));
    const to = lists[(lists.indexOf(listOf(item)) + step + lists.length) % lists.length];
    if (lists.length > 1) {
        $(to).append(item);
    }
    return lists.length > 1;
}
