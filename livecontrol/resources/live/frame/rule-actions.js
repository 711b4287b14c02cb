/* global zel4func */
import {INFO_BUTTONS} from "../cameras/cameras.js";
import {livecontrol_obj} from "./panel.js";
import {ITEM} from "../shooting/shooting-items.js";
import {TRIGGER_BLOCK} from "./rules.js";
import {TRIGGER_ITEM} from "../trigger/trigger-items.js";


/** What the rules do beyond their lists. Each gets the flag's value; only the lock of the other tool cares for false. */
export const ruleActions = {
    recording: whenTrue(() => { livecontrol_obj.recordAndready = true; }),
    multiWindow: whenTrue(() => {
        disableItem("#livecontrol_shutterspeed", ITEM.AUTO_EXPOSURE);
        disableItem("#livecontrol_trigger", TRIGGER_ITEM.IMAGE_TRIGGER);
    }),
    lowLight: whenTrue(() => {
        disableItem("#livecontrol_shutterspeed", ITEM.AUTO_EXPOSURE);
        disable(TRIGGER_BLOCK.join(", "));
    }),
    noneWindow: whenTrue(() => disable(INFO_BUTTONS)),
    liveSpeed: whenTrue(() => disable("#livecontrol_livespeed")),
    multiToolLock(locked) {
        $("#livecontrol_qmonlock").toggle(Boolean(locked));
        if (locked) {
            livecontrol_obj.disableLensControl();
        }
    }
};

/** Disables the whole lens block: another tool holds the camera. */
export function disableLensControl() {
    ["#livecontrol_Iris", "#livecontrol_Focus", "#livecontrol_Zoom"].forEach((axis) => {
        zel4func.disable($(axis).find(".label-start, .label-end, .spinner, .slider"), true);
    });
    disable("#livecontrol_Lens_Close, #livecontrol_Focus_AutoFocus, #livecontrol_Lens_Reset");
}

function whenTrue(action) {
    return (flag) => {
        if (flag) {
            action();
        }
    };
}

function disable(selector) {
    zel4func.disable($(selector), true);
}

function disableItem(box, value) {
    zel4func.disableItemSumoSelect($(box), value);
}
