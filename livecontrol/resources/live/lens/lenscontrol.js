/* global livecontrol, livecontrol_obj, zel4func, SliderProperty */
import {guarded, guardedHandler} from "../frame/guard.js";
import {isHeld} from "../frame/held-slider.js";
import {
    focusSpinner, irisSpinner, isBlockShown, LENS_TICK, shownButtons, sliderOf, zoomSpinner
} from "./lens-math.js";
import {parseSettings} from "../frame/json-text.js";

const BLOCK = "#livecontrol_lens_setting";
const CLOSE = "#livecontrol_Lens_Close";
const RESET = "#livecontrol_Lens_Reset";
const AUTOFOCUS = "#livecontrol_Focus_AutoFocus";
const HOLD_DELAY = 500;    // ms
const HOLD_INTERVAL = 150; // ms
const CONTROLS = ".label-start, .label-end, .spinner, .slider";

const IRIS = {
    block: "#livecontrol_Iris",
    sliderMax: 100,
    set: (value) => livecontrol.setIrisValue(value),
    move: (coef, size) => livecontrol.setIrisIncremental(coef, size)
};
const FOCUS = {
    block: "#livecontrol_Focus",
    sliderMax: 1000,
    set: (value) => livecontrol.setFocusValue(value),
    move: (coef, size) => livecontrol.setFocusIncremental(coef, size)
};
const ZOOM = {
    block: "#livecontrol_Zoom",
    sliderMax: 100,
    set(value) {
        disableLensControlWithoutZoom();
        livecontrol.setZoomValue(value);
    },
    move(coef, size) {
        disableLensControlWithoutZoom();
        livecontrol.setZoomIncremental(coef, size);
    }
};

/** Shows what the host reports of the lens; hides the block if it has none to drive. */
function refreshLensControl() {
    const settings = parseSettings(livecontrol.getLensControlSettings());
    if (!settings || !isBlockShown(settings)) {
        $(BLOCK).hide();
        return;
    }
    refreshAutofocus(settings.Focus);
    const time = livecontrol.getLensControlCommandTime();
    $(BLOCK).show();
    $("#livecontrol_lens_name").text(settings.LensName);
    $("#livecontrol_camera_name").text(settings.CameraName);
    showAxis(IRIS, settings.Iris, irisSpinner(settings.Iris), time);
    lockIrisKeys();
    showAxis(FOCUS, settings.Focus, focusSpinner(settings.Focus, settings.LensType), time);
    showAxis(ZOOM, settings.Zoom, zoomSpinner(settings.Zoom, settings.LensType), time);
    const shown = shownButtons(settings.LensType);
    showButton(CLOSE, shown.close);
    showButton(RESET, shown.reset);
    fitLabels();
}

/** Labels can be measured only while they show. */
function fitLabels() {
    zel4func.applyButtonLabelFontSize($(BLOCK).find(".expand-body button"));
}

/** A change of the zoom changes the values of iris and focus: until the next refresh they can't be driven. */
function disableLensControlWithoutZoom() {
    [IRIS, FOCUS].forEach((axis) => zel4func.disable($(axis.block).find(CONTROLS), true));
    zel4func.disable($(CLOSE).add(AUTOFOCUS), true);
}

function refreshAutofocus(focus) {
    const active = livecontrol.isAutoFocusActive();
    $("#livecontrol_lens_autofocus").toggle(active);
    if (active) {
        zel4func.disable($(AUTOFOCUS), !focus.AutoFocusEnable);
    }
}

function showAxis(axis, settings, spinner, time) {
    const $spinner = $(axis.block).find(".spinner");
    const $slider = $(axis.block).find(".slider");
    const {min, max, step, decimal, decimalPoint, value} = spinner;
    $spinner.spinnerTick("option", {min, max, step, decimal, decimalPoint, timeout: time});
    $spinner.spinnerTick("value", value);
    const slider = sliderOf(settings);
    if (isHeld($slider)) {
        delete slider.value;
    }
    $slider.slider("option", slider);
    zel4func.disable($(axis.block).find(CONTROLS), !settings.Enable);
}

/** The iris goes by steps of the lens alone: nothing can be typed. */
function lockIrisKeys() {
    $(IRIS.block).find(".spinner").off("keydown keypress keyup").prop("readonly", true);
}

function showButton(selector, shown) {
    $(selector).toggle(shown);
    zel4func.disable($(selector), !shown);
}

function bindAxis(axis) {
    const set = guardedHandler(axis.block, (_, ui) => axis.set(ui.value));
    $(axis.block).find(".slider").slider($.extend({}, new SliderProperty(0), {
        min: 0,
        max: axis.sliderMax,
        step: 1,
        slide: set,
        stop: set
    }));
    $(axis.block).find(".spinner").spinnerTick({
        incremental: true,
        tickup: guardedHandler(axis.block, (_, ui) => axis.move(ui.value, LENS_TICK.TICK_SMALL)),
        tickdown: guardedHandler(axis.block, (_, ui) => {
            axis.move(-ui.value, LENS_TICK.TICK_SMALL);
            return axis === IRIS ? false : undefined;
        })
    });
    onHold($(axis.block).find(".label-start"), () => axis.move(-1, LENS_TICK.TICK_LARGE));
    onHold($(axis.block).find(".label-end"), () => axis.move(1, LENS_TICK.TICK_LARGE));
}

/** A button that is held goes on with its step until it is let go or left, or can't be used any more. */
function onHold($button, action) {
    const act = guardedHandler("lens button", action);
    let timer = 0;
    let repeated = false;
    const stop = () => clearTimeout(timer);
    const repeat = () => {
        if (!$button.prop("disabled")) {
            repeated = true;
            act();
            timer = setTimeout(repeat, HOLD_INTERVAL);
        }
    };
    $button.on("mousedown", (event) => {
        stop();
        repeated = false;
        if (event.which === 1) {
            timer = setTimeout(repeat, HOLD_DELAY);
        }
    }).on("mouseup mouseleave", stop).on("click", () => {
        stop();
        if (!repeated) {
            act();
        }
        repeated = false;
    });
}

function onClick($button, action) {
    $button.on("click", guardedHandler("lens button", action));
}

function load() {
    [IRIS, FOCUS, ZOOM].forEach((axis) => guarded(axis.block, () => bindAxis(axis)));
    onClick($(AUTOFOCUS), () => livecontrol.openAutofocus());
    onClick($(CLOSE), () => {
        disableLensControlWithoutZoom();
        livecontrol.closeLens();
    });
    onClick($(RESET), () => {
        livecontrol.resetLens();
        livecontrol_obj.refreshLensControl();
    });
    onClick($(BLOCK).children(".switch-expand"), fitLabels); // after the expander's own handler
    guarded("operation log", () => zel4func.enableUserOperationLog(livecontrol, BLOCK));
}

window.LENS_TICK = LENS_TICK;
window.lenscontrol_obj = {refreshLensControl, disableLensControlWithoutZoom};
livecontrol_obj.refreshLensControl = refreshLensControl;

$(load);
