import $ from "../jquery.js";
import {startDialog} from "./dialog.js";

// The dialogs that say how a value over the image is written. Each choice is stored at once.

/** Of each page: its controls with the slots that read and store them. */
const DIALOGS = {
    shutter_format_dlg: {
        format: ["getShutterSpeedFormat", "setShutterSpeedFormat"],
        unit: ["getShutterSpeedTimeUnit", "setShutterSpeedTimeUnit"],
        delimiter: ["isShutterSpeedInsertDelimiter", "setShutterSpeedInsertDelimiter"]
    },
    recordRateFormatDialog: {delimiter: ["isRecordRateInsertDelimiter", "setRecordRateInsertDelimiter"]},
    frameFormatDialog: {delimiter: ["isFrameInsertDelimiter", "setFrameInsertDelimiter"]},
    rectime_format_dlg: {unit: ["getRecTimeUnit", "setRecTimeUnit"]}
};
const FRACTION = 1; // of a second: no unit of time to choose

function show(mediator, controls) {
    Object.keys(controls).forEach((id) => {
        const value = mediator[controls[id][0]]();
        const control = $(`#${id}`);
        if (control.is("select")) {
            window.zel4func.selectItemSumoSelect(control, String(value));
        } else {
            control.prop("checked", value);
        }
    });
    if (controls.format) {
        window.zel4func.disable($("#unit"), mediator[controls.format[0]]() === FRACTION);
    }
}

function bind(mediator, controls) {
    Object.keys(controls).forEach((id) => {
        $(`#${id}`).on("change", (event) => {
            const control = event.target;
            mediator[controls[id][1]](control.type === "checkbox" ? control.checked : Number(control.value));
            show(mediator, controls);
        });
    });
}

$(() => {
    const name = Object.keys(DIALOGS).find((key) => window[key]);
    const mediator = window[name];
    startDialog(mediator, "#ok_btn");
    window.zel4func.initSumoSelect("select");
    bind(mediator, DIALOGS[name]);
    show(mediator, DIALOGS[name]);
    $("#ok_btn").on("click", () => mediator.ok()).trigger("focus");
    $("#cancel_btn").on("click", () => mediator.cancel());
});
