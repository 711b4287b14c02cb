import $ from "../jquery.js";
import {startDialog} from "./dialog.js";

// The custom time code. The dialog's object keeps what is edited; each control gives it its value, and all of them
// then show what it made of that.

const IN_FRAMES = 0;
const MOST_FRAMES = 99999;
const MOST = 999900000;
const FRAMES = {min: 1, max: MOST_FRAMES, step: 1, decimal: false};
const VALUE = {min: -MOST, max: MOST, step: 1, decimal: true, decimalPoint: 4};

/** Controls and the ends of the names of their slots. */
const SELECTS = {
    kind: "Index", scope: "ScopeDisplayIndex", places: "DecimalPlaceIndex", reset_unit: "ResetUnitIndex"
};
const CHECKS = {
    divide: "DecimalDivide", real_time: "RealTime", reset: "Reset", use_file: "UsingRchFileInfo", overwrite: "OverWrite"
};
const NUMBERS = {one_frame: "OneFrame", start_value: "StartValue", reset_value: "ResetValue"};

function mediator() {
    return window.timecode_custom_mediator;
}

function get(name) {
    return mediator()[`getTimeCode${name}`]();
}

function set(name, value) {
    mediator()[`setTimeCode${name}`](value);
    show();
}

function each(controls, action) {
    Object.keys(controls).forEach((id) => action($(`#${id}`), controls[id], id));
}

function show() {
    each(SELECTS, (control, name) => window.zel4func.selectItemSumoSelect(control, String(get(name))));
    each(CHECKS, (control, name) => control.prop("checked", get(name)));
    $("#reset_value").spinnerStopFire("option", get("ResetUnitIndex") === IN_FRAMES ? FRAMES : VALUE);
    each(NUMBERS, (control, name) => control.spinnerStopFire("value", Number(get(name))));
    const unit = $("#unit_text");
    if (unit.val() !== get("DisplayUnit")) { // keeps the place of the cursor
        unit.val(get("DisplayUnit"));
    }
    $("#sample").val(get("Sample"));
    const isTime = get("Index") === 0;
    $("#time_block").toggle(isTime);
    $("#value_block").toggle(!isTime);
    window.zel4func.disable($("#reset_value, #reset_unit"), !get("Reset"));
    window.zel4func.disable($("#overwrite"), !get("UsingRchFileInfo"));
}

function bind() {
    each(SELECTS, (control, name) => control.on("change", () => set(name, Number(control.val()))));
    each(CHECKS, (control, name) => control.on("change", () => set(name, control.prop("checked"))));
    each(NUMBERS, (control, name) =>
        control.spinnerStopFire(Object.assign({fire: (event, ui) => set(name, String(ui.value))}, VALUE)));
    $("#unit_text").on("input", (event) => set("DisplayUnit", event.target.value));
}

$(() => {
    startDialog(mediator(), "#ok_btn");
    window.zel4func.initSumoSelect("select");
    bind();
    show();
    $("#ok_btn").on("click", () => mediator().ok());
    $("#cancel_btn").on("click", () => mediator().cancel());
    $("#reset_btn").on("click", () => {
        mediator().reset();
        show();
    });
    $("#ok_btn").trigger("focus");
});
