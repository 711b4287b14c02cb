import $ from "../jquery.js";
import {startDialog} from "./dialog.js";
import {digitPreferences} from "./number-digits.js";

// How many digits the numbers in a name have. Nothing is stored before OK.

const MOST_DIGITS = 9;
const PARTS = ["camera", "head", "session"];
const AUTO = "auto";
const MANUAL = "manual";

const NO_NAME = {camera: null, head: null, session: null, format: null}; // a name without numbers

let preferences = null;
const manual = {}; // what the user has set, while the cameras give the digits

function mediator() {
    return window.addnumberdialog;
}

function field(part) {
    return $(`#${part}_digits`);
}

function digits(part) {
    return preferences[part] ? field(part).spinnerRealtimeFire("value") || 0 : 0;
}

function isAuto() {
    return preferences.format !== null && $("#auto").prop("checked");
}

function show() {
    const auto = isAuto();
    if (!auto) {
        PARTS.forEach((part) => { manual[part] = digits(part); });
    } else {
        field("camera").spinnerRealtimeFire("value", mediator().getAutoDeviceDigits());
        field("head").spinnerRealtimeFire("value", mediator().getAutoHeadDigits());
    }
    ["camera", "head"].forEach((part) => window.zel4func.disable(field(part), auto));
    $("#preview").val(mediator().preview(...PARTS.map(digits)));
}

/** Of a file there is neither a camera nor a head to number. */
function readPreferences() {
    const all = digitPreferences(mediator().getCallbackType()) || NO_NAME;
    return mediator().isFileMode() ? Object.assign({}, all, {camera: null, head: null, format: null}) : all;
}

function load() {
    preferences = readPreferences();
    PARTS.forEach((part) => {
        const has = Boolean(preferences[part]);
        manual[part] = has ? mediator().getPrefInt(preferences[part]) : 0;
        field(part).spinnerRealtimeFire({min: 0, max: MOST_DIGITS, natural: true, fire: show})
            .spinnerRealtimeFire("value", manual[part]);
        $(`#${part}_digits_row`).toggle(has);
    });
    const hasModes = Boolean(preferences.format);
    const mode = hasModes && mediator().getPrefString(preferences.format) === AUTO ? "#auto" : "#manual";
    $("#modes").toggle(hasModes);
    $(mode).prop("checked", true);
    window.zel4func.disable($("#ok_btn"), !preferences.session);
}

/** The digits that the user had set come back with his mode. */
function changeMode() {
    if (!isAuto()) {
        ["camera", "head"].forEach((part) => field(part).spinnerRealtimeFire("value", manual[part]));
    }
    show();
}

function accept() {
    const auto = isAuto();
    PARTS.filter((part) => preferences[part] && !(auto && part !== "session"))
        .forEach((part) => mediator().setPrefInt(preferences[part], digits(part), false));
    if (preferences.format) {
        mediator().setPrefString(preferences.format, auto ? AUTO : MANUAL, false);
    }
    mediator().updateUI();
    mediator().accept();
}

$(() => {
    startDialog(mediator(), "#ok_btn");
    load();
    $("input[name=mode]").on("change", changeMode);
    $("#ok_btn").on("click", accept);
    $("#cancel_btn").on("click", () => mediator().reject());
    show();
    $("input:visible:enabled").not("[readonly]").first().trigger("focus");
});
