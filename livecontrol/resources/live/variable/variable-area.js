/* global livecontrol */
import {livecontrol_obj} from "../frame/panel.js";
import {parseSettings} from "../frame/json-text.js";
import {updateAreaLimitter} from "../area/select-area.js";
import {settledPlace, turnedSize} from "./variable-math.js";

// The rectangle of the variable page between its members, its boxes and the plug-in.

export const WIDTH = "#livecontrol_variable_resolution_width";
export const HEIGHT = "#livecontrol_variable_resolution_height";
export const POS_X = "#livecontrol_variable_pos_x";
export const POS_Y = "#livecontrol_variable_pos_y";

const members = livecontrol_obj;

/** Stores a rectangle in the members. */
export function updateVariableResolution(x, y, width, height) {
    members.variableInputPosX = x;
    members.variableInputPosY = y;
    members.variableInputWidth = width;
    members.variableInputHeight = height;
}

/** No size is chosen, the place is the center, and the plug-in has no rectangle. */
export function resetVariableResolution() {
    updateVariableResolution(-1, -1, 0, 0);
    livecontrol.resetSelectArea();
}

/** Takes the plug-in's rectangle into the members. */
export function loadVariableResolution() {
    const area = parseSettings(livecontrol.recvSelectArea());
    if (area) {
        updateVariableResolution(area.X, area.Y, area.Width, area.Height);
    }
}

/** Centers what the camera or the user wants centered. */
export function adjustOpticalCenter() {
    const sensor = parseSettings(livecontrol.getMaxResolution());
    if (!sensor) {
        return;
    }
    const center = members.variableOpticalCenter;
    members.variableInputPosX = settledPlace(members.variableInputPosX, members.variableInputWidth,
        Number(sensor.Width), center || members.variableLockX);
    members.variableInputPosY = settledPlace(members.variableInputPosY, members.variableInputHeight,
        Number(sensor.Height), center || members.variableLockY);
}

/** Sends the members to the plug-in. As they are: limiting the boxes may move a member away from the center. */
export function sendVariableResolution() {
    const area = memberArea();
    limitBoxes();
    livecontrol.sendSelectArea(JSON.stringify(area));
}

/** Whether the members are another rectangle than the plug-in's. */
export function differsFromSelectArea() {
    const area = parseSettings(livecontrol.recvSelectArea());
    const own = memberArea();
    return area !== null && Object.keys(own).some((key) => area[key] !== Math.trunc(own[key]));
}

function memberArea() {
    return {
        X: Number(members.variableInputPosX),
        Y: Number(members.variableInputPosY),
        Width: Number(members.variableInputWidth),
        Height: Number(members.variableInputHeight)
    };
}

/**
 * Registers the rectangle with the plug-in that has none. The members are in the camera's orientation until then; they
 * are in the user's from now on.
 */
export function registerVariableArea() {
    const x = members.variableInputPosX;
    const y = members.variableInputPosY;
    const area = parseSettings(livecontrol.convertUserviewRect(x, y, members.variableInputWidth,
        members.variableInputHeight));
    if (!area) {
        return;
    }
    updateVariableResolution(x < 0 ? x : area.X, y < 0 ? y : area.Y, area.Width, area.Height);
    adjustOpticalCenter();
    sendVariableResolution();
}

/** The size that stands for the rectangle, as the camera counts. */
export function cameraSize() {
    const size = {width: members.variableInputWidth, height: members.variableInputHeight};
    return turnedSize(size, isTurned());
}

/** Whether width and height of the members change places at the camera. */
export function isTurned() {
    return !livecontrol.unsetSelectArea() && livecontrol.isSwapResolution();
}

/** The camera's limits, in the user's orientation. Only by hand and from a rate on does the largest size depend on it. */
export function getVariableRestriction() {
    if (members.variableFrameratePriority && !members.variableResolutionPreset) {
        const size = cameraSize();
        return parseSettings(livecontrol.getVariableRestriction(members.variableSelectFramerate, size.width,
            size.height));
    }
    return parseSettings(livecontrol.getVariableRestriction());
}

/** Hands the camera's limits to the boxes. */
export function showLimits(rest) {
    $(WIDTH).attr({"frame-max": rest.WidthFrameMax, "area-max": rest.WidthMax, "area-min": rest.WidthMin});
    $(HEIGHT).attr({"frame-max": rest.HeightFrameMax, "area-max": rest.HeightMax, "area-min": rest.HeightMin});
    setStep(WIDTH, rest.WidthStep);
    setStep(HEIGHT, rest.HeightStep);
    setStep(POS_X, rest.PosXStep);
    setStep(POS_Y, rest.PosYStep);
}

/** Limits the boxes to what goes with the rectangle. */
export function limitBoxes() {
    updateAreaLimitter(members.variableInputPosX, members.variableInputPosY, members.variableInputWidth,
        members.variableInputHeight, POS_X, POS_Y, WIDTH, HEIGHT);
}

/** Shows the members in the boxes. */
export function showArea() {
    setValue(WIDTH, members.variableInputWidth);
    setValue(HEIGHT, members.variableInputHeight);
    setValue(POS_X, members.variableInputPosX);
    setValue(POS_Y, members.variableInputPosY);
}

function setStep(box, step) {
    $(box).spinnerRealtimeFire("option", "step", Number(step));
}

function setValue(box, value) {
    $(box).spinnerRealtimeFire("value", value);
}
