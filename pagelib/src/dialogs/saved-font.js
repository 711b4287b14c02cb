/* global editInfo, zel4func */
import $ from "../jquery.js";
import {showColor} from "../../../livecontrol/resources/info/color-box.js";
import {bind, bindColor, bindNumber, fillBox} from "../../../livecontrol/resources/info/font-dialog.js";

// What the dialog on font and layout has of a saved picture alone.

const USES_BACKGROUND = "#use-background";
const BACKGROUND = "#background-color-span";
const TO_COLUMN = "#to-column";
const COUNT = "#column-count";
const SPACING = "#column-spacing";
const RATIO = "#fixed-ratio";
const COLLECTIVE = "#collective";
const LIMITS = {min: 0, max: 9999, step: 1};

export function bindSavedFont() {
    zel4func.initSumoSelect(COUNT);
    bind(USES_BACKGROUND, () => editInfo.setUseBackgroundColor($(USES_BACKGROUND).prop("checked")));
    bindColor(BACKGROUND, (color) => editInfo.setBackgroundColor(color));
    bind(TO_COLUMN, () => {
        editInfo.setToColumn($(TO_COLUMN).prop("checked"));
        lock();
    });
    bind(COUNT, () => editInfo.setColumnNum($(COUNT).val()));
    bindNumber(SPACING, LIMITS, (value) => editInfo.setColumnSpacing(value));
    bind(RATIO, () => editInfo.setFixedFontSizeRatio($(RATIO).prop("checked")));
    bind(COLLECTIVE, () => editInfo.setCollectiveSetting($(COLLECTIVE).prop("checked")));
}

export function fillSavedFont(group) {
    $(USES_BACKGROUND).prop("checked", editInfo.getUseBackgroundColor(group));
    showColor(BACKGROUND, editInfo.getBackgroundColor(group));
    $(TO_COLUMN).prop("checked", editInfo.getToColumn(group));
    fillBox(COUNT, editInfo.getToColumnList(), editInfo.getColumnNum(group));
    $(SPACING).spinnerStopFire("value", editInfo.getColumnSpacing(group));
    $(RATIO).prop("checked", editInfo.isFixedFontSizeRatio(group));
    $(COLLECTIVE).prop("checked", editInfo.isCollectiveSetting());
    lock();
}

/** How many and how far apart says something of several columns only. */
function lock() {
    const isOne = !$(TO_COLUMN).prop("checked");
    zel4func.disable($(COUNT), isOne);
    zel4func.disable($(SPACING), isOne);
}
