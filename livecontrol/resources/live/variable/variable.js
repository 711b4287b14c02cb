/* global livecontrol, zel4func */
import {noneBox} from "../frame/none-box.js";
import {livecontrol_obj} from "../frame/panel.js";
import {clearBox, fillBox, isCleared, showChanges} from "../frame/select-box.js";
import {parseSettings} from "../frame/json-text.js";
import {
    POS_X, POS_Y, adjustOpticalCenter, cameraSize, differsFromSelectArea, getVariableRestriction, limitBoxes,
    loadVariableResolution, registerVariableArea, resetVariableResolution, sendVariableResolution, showArea,
    showLimits
} from "./variable-area.js";
import {showRegistChannel} from "./variable-channel.js";
import {
    blockOrder, chosenRate, framerateBox, initialMembers, presetBox, presetSize, rateIndexOf, startSize
} from "./variable-math.js";

export const FRAMERATE = "#livecontrol_variable_framerate";
export const RESOLUTION = "#livecontrol_variable_resolution";

const CENTER = "#livecontrol_variable_center";
const OK = "#livecontrol_variablesetting_okbutton";
const members = livecontrol_obj;

/** Begins a visit of the page. Which axes the camera fixes is settled once: it can't change while the page is open. */
export function initializeVariable() {
    Object.assign(members, initialMembers());
    resetVariableResolution();
    const rest = parseSettings(livecontrol.getVariableRestriction());
    if (rest) {
        members.variableLockX = !rest.PosXFree;
        members.variableLockY = !rest.PosYFree;
    }
    const isFixed = members.variableLockX && members.variableLockY;
    members.variableOpticalCenter = isFixed;
    zel4func.disable($(CENTER), isFixed);
    $("#livecontrol_apply_same_camera").prop("checked", false);
}

/** Ends a visit: neither center nor fixed axes of this page are those of another. */
export function leaveVariable() {
    const {variableOpticalCenter, variableLockX, variableLockY, variableResolutionPreset} = initialMembers();
    Object.assign(members, {variableOpticalCenter, variableLockX, variableLockY, variableResolutionPreset});
}

/** Rebuilds the page from what the host reports; the plug-in then holds the rectangle that the page shows. */
export function refreshVariable() {
    $("#variable-framerate").prop("checked", members.variableFrameratePriority);
    $("#variable-resolution").prop("checked", !members.variableFrameratePriority);
    orderBlocks(blockOrder(members.variableFrameratePriority));
    refreshVariableFramerate();
    refreshVariableResolution();
    refreshVariablePosition();
    if (livecontrol.unsetSelectArea()) {
        registerVariableArea();
    }
    recvVariableResolution(getVariableRestriction());
    sendVariableResolution();
    showChannel();
}

/** Rebuilds the box of the rates. */
export function refreshVariableFramerate() {
    const rows = framerateRows();
    const hasRates = Boolean(rows) && rows.length > 0;
    if (hasRates) {
        members.variableSelectFramerate = chosenRate(members.variableSelectFramerate, rows.length);
    }
    zel4func.disable($(OK), !hasRates || isCleared($(RESOLUTION))); // nothing to store
    if (rows) {
        fillBox($(FRAMERATE), hasRates
            ? framerateBox(rows, members.variableFrameratePriority, members.variableSelectFramerate) : noneBox());
    } else {
        clearBox($(FRAMERATE));
    }
    showChanges(FRAMERATE);
}

/** Rebuilds the size block; a size that is not chosen yet becomes the first that the list has. */
export function refreshVariableResolution() {
    $("#aspect-preset").prop("checked", members.variableResolutionPreset);
    $("#aspect-free").prop("checked", !members.variableResolutionPreset);
    $(".resolution-preset").toggle(members.variableResolutionPreset);
    $(".resolution-manual").toggle(!members.variableResolutionPreset);
    const list = parseSettings(livecontrol.getVariableResolutionList(!members.variableFrameratePriority,
        members.variableSelectFramerate));
    if (!list) {
        clearBox($(RESOLUTION));
        showChanges(RESOLUTION);
        return;
    }
    const rows = list.VariableResolutionList;
    if (rows.length > 0) {
        members.variableSelectResolution = Math.max(members.variableSelectResolution, Number(list.MinValue));
    }
    fillBox($(RESOLUTION), rows.length > 0 ? presetBox(rows, members.variableSelectResolution) : noneBox());
    showChanges(RESOLUTION);
    if (!members.variableInputWidth || !members.variableInputHeight) {
        const size = startSize(list, members.variableResolutionPreset);
        members.variableInputWidth = size.width;
        members.variableInputHeight = size.height;
    }
}

/** Shows what of the place can be chosen. */
export function refreshVariablePosition() {
    const center = members.variableOpticalCenter;
    $(CENTER).prop("checked", center);
    zel4func.disable($(POS_X), center || members.variableLockX);
    zel4func.disable($(POS_Y), center || members.variableLockY);
}

/**
 * Shows the plug-in's rectangle, as the user may have dragged it on the image. Nothing can be stored within limits that
 * are another camera's by now.
 * @param {?object} rest - of getVariableRestriction; null after a failed getter
 */
export function recvVariableResolution(rest) {
    if (!rest) {
        zel4func.disable($(OK), true);
        return;
    }
    loadVariableResolution();
    showLimits(rest);
    limitBoxes();
    adjustOpticalCenter();
    showArea();
    refreshVariableFramerate();
    livecontrol.updateVariableLimit(members.variableOpticalCenter, rest);
}

/** Follows a drag on the image. What the limits put back is put back on the image too, not with the next update. */
export function recvVariableDrag() {
    recvVariableResolution(getVariableRestriction());
    if (differsFromSelectArea()) {
        sendVariableResolution();
    }
}

/**
 * Takes the size of the chosen preset, whatever rate it reaches.
 * @returns {boolean} whether the size changed
 */
export function resetVariableManualResolution() {
    const before = cameraSize();
    resetVariableResolution();
    const list = parseSettings(livecontrol.getVariableResolutionList(true));
    const size = list && presetSize(list.VariableResolutionList, members.variableSelectResolution);
    if (!size) {
        return false;
    }
    members.variableInputWidth = size.width;
    members.variableInputHeight = size.height;
    return size.width !== before.width || size.height !== before.height;
}

/** The position of the chosen rate in the host's list; -1 without one. */
export function chosenRateIndex() {
    if (members.variableFrameratePriority) {
        return members.variableSelectFramerate;
    }
    const all = parseSettings(livecontrol.getVariableFramerateList(true));
    return rateIndexOf(framerateRows() || [], all ? all.VariableFramerateList : [], members.variableSelectFramerate);
}

function framerateRows() {
    const priority = members.variableFrameratePriority;
    const size = cameraSize();
    const list = parseSettings(size.width && size.height
        ? livecontrol.getVariableFramerateList(priority, size.width, size.height)
        : livecontrol.getVariableFramerateList(priority));
    return list && list.VariableFramerateList;
}

function showChannel() {
    const channel = parseSettings(livecontrol.getVariableInfo(Number(members.variableSelectChannel)));
    if (channel) {
        showRegistChannel(channel.ChannelInfo);
        zel4func.disable($("#livecontrol_variable_channel_delete"), !channel.Registered);
    }
}

/** Moved only when they have to: a block that moves loses the keyboard focus. */
function orderBlocks(order) {
    const $blocks = $("#livecontrol_variable_blocks");
    if (!order.every((block, index) => $blocks.children().eq(index).is(block))) {
        order.forEach((block) => $blocks.append($blocks.children(block)));
    }
}
