/* global editInfo, zel4func */
import {bindColorBox, close, showColor} from "./color-box.js";

// The dialog on font and layout. Each control acts at once; Cancel brings back what was there when it opened.

const DIALOG = "#edit-portlet-dialog";
const FONT = "#editinfo_fontsetting_fontname";
const SIZE = "#editinfo_fontsetting_fontsize";
const BOLD = "#font-bold";
const ITALIC = "#font-italic";
const COLOR = "#font-color-span";
const ALIGNMENT = "input[name=radioAlignment]";
const WIDTH = "#numberWidth";
const ICON = "#editinfo_iconsize";
const ESCAPE = 27;
const LIMITS = {min: 1, max: 9999, step: 1};

let fillMore = () => {};
let acted = () => {};
let opener = null;

/**
 * @param {function(number)} [more] - shows what else the dialog has of a group
 * @param {function()} [changed] - called after each change
 */
export function bindFontDialog(more = () => {}, changed = () => {}) {
    fillMore = more;
    acted = changed;
    zel4func.initSumoSelect(`${FONT}, ${SIZE}`);
    bind(FONT, () => editInfo.setFontName($(FONT).val()));
    bind(SIZE, () => editInfo.setFontSize($(SIZE).val()));
    bind(BOLD, () => editInfo.setBold($(BOLD).prop("checked")));
    bind(ITALIC, () => editInfo.setItalic($(ITALIC).prop("checked")));
    bind(ALIGNMENT, () => editInfo.setAlignment(Number($(`${ALIGNMENT}:checked`).val())));
    bind(ICON, () => editInfo.setIconSize(Number($(ICON).val())));
    bindNumber(WIDTH, LIMITS, (value) => editInfo.setWidth(value));
    bindColor(COLOR, (color) => editInfo.setForegroundColor(color));
    $("#editfont_dialog_ok").on("click", () => leave(() => editInfo.writeFontOK()));
    $("#editfont_dialog_cancel").on("click", () => leave(() => editInfo.restoreFontSettings()));
}

export function bind(control, act) {
    $(control).on("change", () => {
        act();
        acted();
    });
}

export function bindNumber(spinner, limits, act) {
    $(spinner).spinnerStopFire($.extend({fire: (_, ui) => {
        act(ui.value);
        acted();
    }}, limits));
}

export function bindColor(box, act) {
    bindColorBox(box, (text) => editInfo.translate(text), (color) => {
        act(color);
        acted();
    });
}

/** @param {number} [group] @param {string} [from] - what has the focus afterwards */
export function openFontDialog(group = 0, from = "#editinfo_fontsetting") {
    opener = from;
    $(DIALOG).dialog({
        title: editInfo.translate("Edit Portlet visibility"),
        modal: true,
        resizable: false,
        width: 340,
        closeOnEscape: false,
        // The title's own button is a cancel. Nothing is left to close then, and the focus stays where that puts it.
        beforeClose: () => {
            leave(() => editInfo.restoreFontSettings());
            return false;
        }
    });
    // Wherever the focus is: a press on the title takes it from the dialog, and the page below must not hear the key.
    $(document).off("keydown.font").on("keydown.font", (event) => {
        if (event.which === ESCAPE && !event.isDefaultPrevented()) {
            event.preventDefault();
            event.stopPropagation();
            $("#editfont_dialog_cancel").trigger("click");
        }
    });
    editInfo.backupFontSettings(group);
    fill(group);
    fillMore(group);
}

function fill(group) {
    fillBox(FONT, editInfo.getFontNameList(), editInfo.getFontName(group));
    fillBox(SIZE, editInfo.getFontSizeList(), editInfo.getFontSize(group));
    $(BOLD).prop("checked", editInfo.getBold(group));
    $(ITALIC).prop("checked", editInfo.getItalic(group));
    showColor(COLOR, editInfo.getForegroundColor(group));
    $(ALIGNMENT).filter(`[value='${Number(editInfo.getAlignment(group))}']`).prop("checked", true);
    $(WIDTH).spinnerStopFire("value", editInfo.getWidth(group));
    $(ICON).val(String(editInfo.getIconSize(group)));
}

/** A value that is not in the list, such as a font that is not installed, shows all the same. */
export function fillBox(box, values, chosen) {
    zel4func.emptySumoSelect(box);
    const all = chosen === "" || values.indexOf(chosen) >= 0 ? values : [chosen].concat(values);
    all.forEach((value) => zel4func.addItemSumoSelect(box, value, value));
    zel4func.selectItemSumoSelect(box, chosen);
    zel4func.reloadSumoSelect(box);
}

function leave(how) {
    if (!$(DIALOG).hasClass("ui-dialog-content")) {
        return; // destroying the dialog comes by here once more
    }
    $(`${DIALOG} [role=button][aria-haspopup]`).each((_, box) => close(`#${box.id}`));
    $(document).off("keydown.font");
    $(DIALOG).dialog("destroy");
    how();
    acted();
    $(opener).trigger("focus");
}
