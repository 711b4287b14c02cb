/* global livecontrol, zel4func, SliderProperty, MULTIPLE_DOCS_CURRENT_AND_ANY */
import {DUAL_SLOPE_STEP, panelShown, sliderEnd, sliderRate, spinnerRate} from "./dualslope-math.js";
import {openExpander} from "../frame/expanders.js";
import {guardedHandler} from "../frame/guard.js";
import {isHeld} from "../frame/held-slider.js";
import {livecontrol_obj} from "../frame/panel.js";
import {colorItem, showChanges} from "../frame/select-box.js";
import {parseSettings} from "../frame/json-text.js";
import {ITEM} from "./shooting-items.js";

const PANEL = "#livecontrol_dsshutter_setting";
const SLIDER = "#livecontrol_dsshutter_slider";
const SPINNER = "#livecontrol_dsshutter_spinner";
const SHUTTER = "#livecontrol_shutterspeed";

/** Shows or hides the panel and puts the camera's rate and limits into it. */
export function refreshDsShutterSlider() {
    const settings = parseSettings(livecontrol.getDSShutterSettings());
    const shown = settings ? panelShown(settings, livecontrol_obj.dsShutterHide) : false;
    if (shown === false) {
        hideDualSlopePanel();
    } else if (shown) {
        $(PANEL).show();
    }
    if (settings && $(PANEL).is(":visible")) {
        setLimits(settings);
        showRate(settings.Value);
    }
}

export function hideDualSlopePanel() {
    if ($(PANEL).is(":visible")) {
        leavePanel();
    }
    $(PANEL).hide();
}

/**
 * Opens the panel at any rate, 0 included, which no refresh would show. The keyboard goes to its slider: the panel may
 * have been open already, and a rate is what the user wants to set now.
 */
export function openDualSlopePanel() {
    $(PANEL).show();
    openExpander(PANEL);
    try {
        keepPanel(true, refreshDsShutterSlider);
    } catch (error) {
        livecontrol.alert(error.message);
    }
    $(SLIDER).find(".ui-slider-handle").trigger("focus");
}

/** Auto exposure and a dual slope shutter exclude each other. Last word of an update. */
export function excludeAutoExposure() {
    if ($(PANEL).is(":visible") && $(SLIDER).slider("value") > 0) {
        disableAutoExposureItem();
    }
}

export function bindDualSlope() {
    $(SLIDER).slider($.extend({}, new SliderProperty(0), {
        step: DUAL_SLOPE_STEP,
        slide: guardedHandler("dual slope slider", (_, ui) => slideTo(limitedRate(ui.value))),
        change: guardedHandler("dual slope slider", (_, ui) => printRate(limitedRate(ui.value))),
        stop: guardedHandler("dual slope slider", (_, ui) => leaveSlider(limitedRate(ui.value)))
    }));
    $(SPINNER).spinnerRealtimeFire({
        min: 0,
        max: 0,
        step: DUAL_SLOPE_STEP,
        natural: true,
        incremental: false,
        spin: guardedHandler("dual slope spinner", spinTo),
        fire: guardedHandler("dual slope spinner", commitSpinner)
    });
}

/** Refreshes with a panel that stays open at a rate of 0: the user has just opened it, or asked for another rate. */
function keepPanel(isKept, refresh) {
    livecontrol_obj.dsShutterHide = !isKept;
    try {
        refresh();
    } finally {
        livecontrol_obj.dsShutterHide = true;
    }
}

/**
 * A panel that goes would take the keyboard focus with it; the box that opened it is next to it. What is only half typed
 * or still in the hand goes too: a field that loses the focus would send it otherwise.
 */
function leavePanel() {
    const $focused = $(PANEL).find(document.activeElement);
    zel4func.disable($(`${SLIDER}, ${SPINNER}`), true);
    if ($focused.length > 0) {
        $(SHUTTER).trigger("focus");
    }
    zel4func.disable($(`${SLIDER}, ${SPINNER}`), false);
}

function showRate(rate) {
    if (!isHeld($(SLIDER))) {
        $(SLIDER).slider("value", rate);
    }
    $(SPINNER).spinnerRealtimeFire("value", rate);
    printRate(rate);
}

function setLimits(settings) {
    $(SLIDER).attr("limit", settings.Max);
    $(SLIDER).slider("option", {min: settings.Min, max: sliderEnd(settings.Min, settings.Max)});
    $(SPINNER).spinnerRealtimeFire("option", {max: settings.Max, min: settings.Min});
    $(SLIDER).closest(".slider-row").find(".label-end").text(settings.Max);
}

function slideTo(rate) {
    printRate(rate);
    $(SPINNER).spinnerRealtimeFire("value", rate);
    livecontrol.setDSShutterValue(rate);
}

function leaveSlider(rate) {
    if (rate > 0) {
        showDualSlopeOn();
    } else {
        showDualSlopeOff();
    }
    keepPanel(rate > 0, refreshBoth);
}

function spinTo(event, ui) {
    const rate = correctedRate(ui.value);
    $(SLIDER).slider("value", rate);
    if (rate !== ui.value) {
        ui.modify = false;
        event.preventDefault();
        $(SPINNER).spinnerRealtimeFire("value", rate);
    }
}

function commitSpinner() {
    const typed = $(SPINNER).spinnerRealtimeFire("value");
    if (typed === null || isNaN(typed)) {
        refreshDsShutterSlider();
        return;
    }
    const rate = Math.max(0, correctedRate(Number(typed)));
    $(SLIDER).slider("value", rate);
    if (rate > 0) {
        showDualSlopeOn();
    } else {
        showDualSlopeOff();
    }
    $(SPINNER).spinnerRealtimeFire("value", rate);
    livecontrol.setDSShutterValue(rate);
    refreshBoth();
}

function showDualSlopeOn() {
    colorItem($(SHUTTER), ITEM.DUAL_SLOPE, true);
    disableAutoExposureItem();
    showChanges(SHUTTER);
}

function showDualSlopeOff() {
    colorItem($(SHUTTER), ITEM.DUAL_SLOPE, false);
    const settings = parseSettings(livecontrol.getShutterSpeedSettings());
    const selectedCameras = $("#livecontrol_camera_item_list").find(".ui-selected").length;
    if (settings && settings.ExistSupportedAutoExposure > MULTIPLE_DOCS_CURRENT_AND_ANY && selectedCameras === 1) {
        zel4func.disable($("option#op_auto_exposure"), false);
    }
}

/** What the camera took shows at once: setting the rate causes no update. A box that is filled anew needs the rules anew. */
function refreshBoth() {
    livecontrol_obj.refreshShutterSpeed();
    refreshDsShutterSlider();
    livecontrol_obj.applyState();
    showChanges(SHUTTER);
}

function disableAutoExposureItem() {
    zel4func.disable($("option#op_auto_exposure"), true);
    zel4func.disableItemSumoSelect($(SHUTTER), ITEM.AUTO_EXPOSURE);
}

function limitedRate(position) {
    return sliderRate(position, Number($(SLIDER).attr("limit")));
}

function correctedRate(value) {
    const limits = $(SPINNER).spinnerRealtimeFire("option");
    return spinnerRate(value, limits.min, limits.max);
}

function printRate(rate) {
    $(PANEL).find(".slider-result").text(rate);
}
