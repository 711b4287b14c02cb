/* global livecontrol, SliderProperty, zel4func, MULTIPLE_DOCS_NOTHING, MULTIPLE_DOCS_CURRENT_AND_ANY */
import {guardedHandler} from "../frame/guard.js";
import {livecontrol_obj} from "../frame/panel.js";
import {parseSettings} from "../frame/json-text.js";
import {followShutterSpeed} from "../shooting/shooting.js";

const BLOCK = "#livecontrol_lowlight_block";
const BOX = "#livecontrol_lowlight";
const TYPE = "#livecontrol_lowlight_type";
const SLIDER = "#livecontrol_lowlight_slider";

/** Comes before the shooting boxes: the trigger block and the shutter box go by whether low light is on. */
export function refreshLowLight() {
    const settings = parseSettings(livecontrol.getLowLightSettings());
    const level = settings ? settings.SupportedLowlight : MULTIPLE_DOCS_NOTHING;
    $(BLOCK).toggle(level > MULTIPLE_DOCS_NOTHING);
    if (level < MULTIPLE_DOCS_CURRENT_AND_ANY) {
        showMode(false); // what the box said of another camera must not hold the trigger block
        $(TYPE).prop("checked", false);
        disable(`${BOX}, ${TYPE}, ${SLIDER}`, true);
        return;
    }
    disable(BOX, false);
    $(TYPE).prop("checked", settings.LowLightType === livecontrol_obj.LOWLIGHT_TYPE_2);
    showMode(settings.LowLightMode);
    if (settings.LowLightMode) {
        $("#livecontrol_trigger_param").hide();
    }
    disable(SLIDER, !settings.LowLightMode);
    disable(TYPE, settings.LowLightMode);
}

export function bindLowLight() {
    $(BOX).on("change", guardedHandler(BOX, function () {
        livecontrol.setLowLightMode(this.checked);
    }));
    $(TYPE).on("change", guardedHandler(TYPE, function () {
        livecontrol.setLowLightType(this.checked ? livecontrol_obj.LOWLIGHT_TYPE_2 : livecontrol_obj.LOWLIGHT_TYPE_3);
    }));
    $(SLIDER).slider($.extend({}, new SliderProperty(0), {
        min: 0,
        step: 1,
        slide: guardedHandler(SLIDER, (_, ui) => {
            livecontrol.setLowlightShutterSpeed(rowOf(ui.value));
            followShutterSpeed();
        }),
        stop: guardedHandler(SLIDER, (_, ui) => {
            livecontrol.setLowlightShutterSpeed(rowOf(ui.value), false);
            followShutterSpeed();
        })
    }));
}

function showMode(on) {
    $(BOX).prop("checked", on);
    $(BLOCK).toggleClass("lowlight-on", on);
}

/** The slider counts from the dark end, the list of shutters from the bright one. */
function rowOf(value) {
    return $(SLIDER).slider("option", "max") - value;
}

function disable(selector, disabled) {
    zel4func.disable($(selector), disabled);
}
