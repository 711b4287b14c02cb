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

export function bindFontDialog() {
    zel4func.initSumoSelect(`${FONT}, ${SIZE}`);
    $(FONT).on("change", () => editInfo.setFontName($(FONT).val()));
    $(SIZE).on("change", () => editInfo.setFontSize($(SIZE).val()));
    $(BOLD).on("change", () => editInfo.setBold($(BOLD).prop("checked")));
    $(ITALIC).on("change", () => editInfo.setItalic($(ITALIC).prop("checked")));
    $(ALIGNMENT).on("change", () => editInfo.setAlignment(Number($(`${ALIGNMENT}:checked`).val())));
    $(ICON).on("change", () => editInfo.setIconSize(Number($(ICON).val())));
    $(WIDTH).spinnerStopFire($.extend({fire: (_, ui) => editInfo.setWidth(ui.value)}, LIMITS));
    bindColorBox(COLOR, (text) => editInfo.translate(text), (color) => editInfo.setForegroundColor(color));
    $("#editfont_dialog_ok").on("click", () => leave(() => editInfo.writeFontOK()));
    $("#editfont_dialog_cancel").on("click", () => leave(() => editInfo.restoreFontSettings()));
}

export function openFontDialog() {
    $(DIALOG).dialog({
        title: editInfo.translate("Edit Portlet visibility"),
        modal: true,
        resizable: false,
        width: 340,
        closeOnEscape: false,
        // The title's own button is a cancel.
        beforeClose: () => leave(() => editInfo.restoreFontSettings())
    });
    $(DIALOG).off("keydown.font").on("keydown.font", (event) => {
        if (event.which === ESCAPE && !event.isDefaultPrevented()) {
            event.preventDefault();
            event.stopPropagation();
            $("#editfont_dialog_cancel").trigger("click");
        }
    });
    editInfo.backupFontSettings();
    fill();
}

function fill() {
    fillBox(FONT, editInfo.getFontNameList(), editInfo.getFontName());
    fillBox(SIZE, editInfo.getFontSizeList(), editInfo.getFontSize());
    $(BOLD).prop("checked", editInfo.getBold());
    $(ITALIC).prop("checked", editInfo.getItalic());
    showColor(COLOR, editInfo.getForegroundColor());
    $(ALIGNMENT).filter(`[value='${Number(editInfo.getAlignment())}']`).prop("checked", true);
    $(WIDTH).spinnerStopFire("value", editInfo.getWidth());
    $(ICON).val(String(editInfo.getIconSize()));
}

/** A value that is not in the list, such as a font that is not installed, shows all the same. */
function fillBox(box, values, chosen) {
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
    close(COLOR);
    $(DIALOG).dialog("destroy");
    how();
    $("#editinfo_fontsetting").trigger("focus");
}
