/* global livecontrol, zel4func */
import {guardedHandler} from "../frame/guard.js";
import {LIVE_PAGE} from "../frame/live-page.js";
import {livecontrol_obj} from "../frame/panel.js";
import {correctStepValue} from "../area/select-area.js";
import {showReported} from "../frame/select-box.js";
import {
    FRAMERATE, RESOLUTION, chosenRateIndex, refreshVariable, resetVariableManualResolution
} from "./variable.js";
import {
    HEIGHT, POS_X, POS_Y, WIDTH, adjustOpticalCenter, isTurned, resetVariableResolution, sendVariableResolution
} from "./variable-area.js";
import {correctsDown, turnedSize} from "./variable-math.js";

const NO_MANUAL_SIZE = "There is no manually configurable resolution for the currently selected shooting speed.";
const NOT_CHOSEN = -1;

const members = livecontrol_obj;

/** Binds the controls of the variable page. */
export function bindVariable() {
    on("#variable-framerate", "change", () => choosePriority(true));
    on("#variable-resolution", "change", () => choosePriority(false));
    on("#aspect-preset", "change", choosePreset);
    on("#aspect-free", "change", chooseManual);
    on(FRAMERATE, "change", chooseFramerate);
    on(RESOLUTION, "change", chooseResolution);
    on("#livecontrol_variable_center", "change", center);
    on("#livecontrol_variable_channel_delete", "click", eraseChannel);
    on("#livecontrol_variablesetting_okbutton", "click", store);
    on("#livecontrol_variablesetting_cancelbutton", "click", cancel);
    bindSize(WIDTH, "variableInputWidth");
    bindSize(HEIGHT, "variableInputHeight");
    bindPlace(POS_X, "variableInputPosX");
    bindPlace(POS_Y, "variableInputPosY");
}

/** Makes the two select boxes. */
export function initVariableBoxes() {
    [FRAMERATE, RESOLUTION].forEach((selector) => zel4func.initSumoSelect(selector));
}

function on(selector, event, action) {
    $(selector).on(event, guardedHandler(selector, action));
}

function choosePriority(frameratePriority) {
    members.variableFrameratePriority = frameratePriority;
    members.variableSelectFramerate = frameratePriority ? 0 : NOT_CHOSEN;
    members.variableSelectResolution = 0;
    resetVariableResolution();
    refreshVariable();
}

function choosePreset() {
    members.variableResolutionPreset = true;
    livecontrol.changeVariableResolutionInputType(true);
    takePresetSize();
    refreshVariable();
}

function chooseManual() {
    if (!canBeManual(members.variableSelectFramerate)) {
        $("#aspect-preset").prop("checked", true);
        return;
    }
    members.variableResolutionPreset = false;
    livecontrol.changeVariableResolutionInputType(false);
    refreshVariable();
}

function chooseFramerate() {
    const rate = Number($(FRAMERATE).val());
    if (!members.variableResolutionPreset && !canBeManual(rate)) {
        showReported(FRAMERATE);
        return;
    }
    members.variableSelectFramerate = rate;
    if (members.variableFrameratePriority) {
        members.variableSelectResolution = 0;
        resetVariableResolution();
    }
    refreshVariable();
}

function chooseResolution() {
    members.variableSelectResolution = Number($(RESOLUTION).val());
    resetVariableManualResolution();
    forgetRate();
    refreshVariable();
}

function takePresetSize() {
    if (resetVariableManualResolution()) {
        forgetRate();
    }
}

/** Another size has other rates: with resolution priority the fastest of them is taken. */
function forgetRate() {
    if (!members.variableFrameratePriority) {
        members.variableSelectFramerate = NOT_CHOSEN;
    }
}

/** With frame rate priority even the smallest size must reach the rate; tells the user if it does not. */
function canBeManual(rate) {
    if (!members.variableFrameratePriority || livecontrol.validateFrameRateOnManual(rate)) {
        return true;
    }
    livecontrol.alert(livecontrol.translate(NO_MANUAL_SIZE));
    return false;
}

function center() {
    members.variableOpticalCenter = $("#livecontrol_variable_center").prop("checked");
    sendVariableResolution();
    refreshVariable();
}

function bindSize(box, member) {
    $(box).spinnerRealtimeFire({
        min: 0,
        step: 1,
        natural: true,
        spin: guardedHandler(box, (_, ui) => {
            ui.value = takeSize(box, member, ui.value, correctsDown(true, ui.oldValue, ui.value));
        }),
        fire: guardedHandler(box, () => {
            correctStepValue(box);
            takeSize(box, member, $(box).spinnerRealtimeFire("value"), correctsDown(false));
            refreshVariable();
        })
    });
}

function takeSize(box, member, value, down) {
    members[member] = correctVariableResolution(box, member, value, down);
    adjustOpticalCenter();
    sendVariableResolution();
    return members[member];
}

/** The nearest value that the camera takes at the rate. With resolution priority the rates follow the size instead. */
function correctVariableResolution(box, member, value, down) {
    if (!members.variableFrameratePriority) {
        return value;
    }
    const isHeight = member === "variableInputHeight";
    const turned = isTurned();
    const size = turnedSize({
        width: isHeight ? members.variableInputWidth : value,
        height: isHeight ? value : members.variableInputHeight
    }, turned);
    return livecontrol.correctVariableResolution(members.variableSelectFramerate, size.width, size.height,
        $(box).spinnerRealtimeFire("option", "max"), turned ? !isHeight : isHeight, down);
}

function bindPlace(box, member) {
    $(box).spinnerRealtimeFire({
        min: 0,
        step: 1,
        natural: true,
        spin: guardedHandler(box, (_, ui) => {
            members[member] = ui.value;
            sendVariableResolution();
        }),
        fire: guardedHandler(box, () => {
            correctStepValue(box);
            members[member] = $(box).spinnerRealtimeFire("value");
            sendVariableResolution();
            refreshVariable();
        })
    });
}

function eraseChannel() {
    if (livecontrol.confirm(livecontrol.translate("Delete variable channel?"))) {
        livecontrol.eraseVariableChannel(Number(members.variableSelectChannel));
    }
}

function store() {
    livecontrol.setVariableChannelInfo(Number(members.variableSelectChannel), chosenRateIndex(),
        members.variableInputWidth, members.variableInputHeight, members.variableInputPosX, members.variableInputPosY,
        $("#livecontrol_apply_same_camera").prop("checked"));
    if (livecontrol.isVariableChannelStored()) { // otherwise the user has been told why, and nothing is lost
        leave();
    }
}

function cancel() {
    livecontrol.cancelVariableSetting();
    leave();
}

function leave() {
    livecontrol_obj.changePage(LIVE_PAGE.LIST);
    livecontrol.finalizeVariableSetting();
}
