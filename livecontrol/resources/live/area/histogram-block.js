/* global livecontrol */
import {guardedHandler} from "../frame/guard.js";

// The histogram of a setting page: a box that shows its block, in which the engine makes the plug-in's widget.

/** @param {string} prefix - ids are `prefix` + "histogram_on" and "histogram_div" */
export function histogramBlock(prefix) {
    const box = `#${prefix}histogram_on`;
    const block = `#${prefix}histogram_div`;

    /** Showing the block makes its widget, hiding it takes the widget away: the plug-in must know it only in between. */
    function follow() {
        if ($(box).prop("checked")) {
            $(block).show();
            livecontrol.setHistgramVisible(true);
        } else {
            livecontrol.setHistgramVisible(false);
            $(block).hide();
        }
    }

    return {
        isOn: () => $(box).prop("checked"),
        show(on) {
            $(box).prop("checked", on);
            $(block).toggle(on);
        },
        bind() {
            $(box).on("change", guardedHandler(box, follow));
        }
    };
}
