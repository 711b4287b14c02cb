/* global editInfo, zel4func */
import $ from "../jquery.js";
import {bindEnter} from "../../../livecontrol/resources/info/enter-key.js";
import {bindFontDialog, openFontDialog} from "../../../livecontrol/resources/info/font-dialog.js";
import {bindLists, fillList, offsetOf, orderOf} from "../../../livecontrol/resources/info/item-list.js";
import {bindSavedFont, fillSavedFont} from "./saved-font.js";
import {resetStyles} from "./saved-defaults.js";
import {drawSoon} from "./saved-preview.js";

// What stands round a saved picture: a list for each place, one for the items that stand nowhere, and the picture as it
// will be.

const LISTS = ".ei-items";
const WITHIN = "#within-image";
const BLANK_LINE = "#blankline";

function isStock(list) {
    return offsetOf(list) === 0;
}

/** An item in stock has no box to tick, so it takes the focus itself. */
function dress(list) {
    const items = $(list).children("li");
    if (isStock(list)) {
        items.attr("tabindex", 0);
    } else {
        items.removeAttr("tabindex");
    }
}

function changeOrder(list) {
    editInfo.changeOrder(orderOf(list), offsetOf(list));
    dress(list);
    drawSoon();
}

/** What comes out of stock is to be seen. */
function arrive(item, from, to) {
    dress(to);
    const box = $(item).find("input");
    if (isStock(from) && !isStock(to) && !box.prop("disabled")) {
        box.prop("checked", true);
        editInfo.changeDisp(box.attr("id"), true, offsetOf(to));
    }
}

function refresh() {
    $(LISTS).each((_, list) => {
        fillList(list);
        dress(list);
    });
    $(BLANK_LINE).prop("checked", editInfo.getDisplayBlankLine());
    $(WITHIN).prop("checked", editInfo.getWithinImage());
    drawSoon();
}

function reset() {
    if (editInfo.confirm(editInfo.translate("Do you reset information setting ?"))) {
        editInfo.reset();
        resetStyles();
        refresh();
    }
}

function bindFontButtons() {
    $(".portlet").each((_, portlet) => {
        const title = $(portlet).find("h3").text();
        const button = $(portlet).find(".portlet-font");
        button.attr("aria-label", `${button.text()} ${title}`).on("click", () => {
            $("#font-place").text(title);
            openFontDialog(offsetOf($(portlet).find(LISTS)[0]), button);
        });
    });
}

$(() => {
    zel4func.applyStyle(editInfo);
    zel4func.localize(editInfo);
    refresh();
    bindLists(LISTS, changeOrder, {tolerance: "pointer", receive: (event, ui) =>
        arrive(ui.item, ui.sender[0], event.target)});
    $(LISTS).on("carried", (event, item, from) => {
        arrive(item, from, event.target);
        $(item).filter("[tabindex]").add($(item).not("[tabindex]").find("input")).first().trigger("focus");
    }).on("click", "input, a", drawSoon);
    bindFontDialog(fillSavedFont, drawSoon);
    bindSavedFont();
    bindFontButtons();
    $(BLANK_LINE).on("change", () => {
        editInfo.setDisplayBlankLine($(BLANK_LINE).prop("checked"));
        drawSoon();
    });
    $(WITHIN).on("change", () => {
        editInfo.setWithinImage($(WITHIN).prop("checked"));
        drawSoon();
    });
    $("#resolution").text(editInfo.getResolutionStr());
    $("#export-language").text(editInfo.getExportLanguage());
    $("#editinfo_reset").on("click", reset);
    $("#ok_btn").on("click", () => editInfo.ok());
    $("#cancel_btn").on("click", () => editInfo.cancel());
    bindEnter(() => editInfo.ok());
    $("#ei-items1, #ei-items2").find("input:enabled").first().trigger("focus");
    zel4func.enableUserOperationLog(editInfo);
});
