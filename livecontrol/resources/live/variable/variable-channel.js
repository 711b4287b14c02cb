/* global livecontrol, main, zel4func */
import {guardedHandler} from "../frame/guard.js";
import {livecontrol_obj} from "../frame/panel.js";
import {parseSettings} from "../frame/json-text.js";

// The buttons that open the host's list of variable channels.

const BLOCK = "#livecontrol_variable";
const SELECT = "#livecontrol_variable_select";
const REGIST = "#livecontrol_variable_channel_regist";

/** Shows the channel in force on the list page; a camera without channels has no such block. */
export function refreshVariableChannel() {
    const channel = parseSettings(livecontrol.getCurrentVariableInfo());
    const supported = Boolean(channel) && channel.Supported;
    $(BLOCK).toggle(supported);
    showChannelText(SELECT, supported ? channel.ChannelInfo : "");
}

/** Shows the channel that the page would write. */
export function showRegistChannel(text) {
    showChannelText(REGIST, text);
}

export function bindVariableChannel() {
    onOpen(SELECT, (box) => main.showVariable(box.left, box.top, box.width, box.height));
    onOpen(REGIST, (box) => main.showVariableRegist(box.left, box.top, box.width, box.height,
        Number(livecontrol_obj.variableSelectChannel)));
}

/** The text may be longer than the button. */
function showChannelText(selector, text) {
    $(selector).find("button").text(text).attr("title", text);
}

function onOpen(selector, show) {
    $(selector).on("click", guardedHandler(selector, () => {
        if (!$(selector).find("button").prop("disabled")) {
            zel4func.appendDummy();
            show(placeOf($(selector)[0]));
        }
    }));
}

/** In whole page pixels. */
function placeOf(element) {
    const box = element.getBoundingClientRect();
    return {
        left: Math.round(box.left),
        top: Math.round(box.top),
        width: Math.round(box.width),
        height: Math.round(box.height)
    };
}
