/* global editInfo, zel4func */
import {bindEnter} from "./enter-key.js";
import {bindFontDialog, openFontDialog} from "./font-dialog.js";
import {bindLists, fillList, offsetOf, orderOf} from "./item-list.js";

const LISTS = "#editinfo-dialog .ei-menu .items .ei-items";
const BLANK_LINE = "#blankline";

/** The object of the page, whose functions others may call. */
const editinfo_obj = {changeOrder, refresh, openFontDialog};
window.editinfo_obj = editinfo_obj;

/** Sends the order of a list. */
function changeOrder(list) {
    editInfo.changeOrder(orderOf(list), offsetOf(list));
}

function refresh() {
    $(LISTS).each((_, list) => fillList(list));
    $(BLANK_LINE).prop("checked", editInfo.getDisplayBlankLine());
}

function reset() {
    if (editInfo.confirm(editInfo.translate("Do you reset information setting ?"))) {
        editInfo.reset();
        refresh();
    }
}

$(() => {
    zel4func.applyStyle(editInfo);
    zel4func.localize(editInfo);
    refresh();
    bindLists(LISTS, (list) => editinfo_obj.changeOrder(list));
    bindFontDialog();
    $(BLANK_LINE).on("change", () => editInfo.setDisplayBlankLine($(BLANK_LINE).prop("checked")));
    $("#editinfo_fontsetting").on("click", () => openFontDialog());
    $("#editinfo_reset").on("click", reset);
    $("#ok_btn").on("click", () => editInfo.ok());
    $("#cancel_btn").on("click", () => editInfo.cancel());
    bindEnter(() => editInfo.ok());
    $(LISTS).find("input:enabled").first().trigger("focus");
    zel4func.enableUserOperationLog(editInfo);
});
