import $ from "../jquery.js";
import {nameOf} from "./labels.js";

// jQuery UI's slider tells a screen reader nothing: its handle gets role, name, limits and value here.

/** Brings what a screen reader is told of a slider up to date; a node that is none is left alone. */
export function describeSlider(node) {
    const slider = $.data(node, "ui-slider");
    if (!slider) {
        return;
    }
    const {min, max, orientation, disabled} = slider.options;
    slider.handles.attr({
        role: "slider",
        tabindex: disabled ? "-1" : "0",
        "aria-label": nameOf(node),
        "aria-orientation": orientation,
        "aria-valuemin": min,
        "aria-valuemax": max,
        "aria-valuenow": slider.value(),
        "aria-disabled": String(Boolean(disabled))
    });
}

export function installSliderNames() {
    const events = "slidecreate.zelSlider slide.zelSlider slidechange.zelSlider focusin.zelSlider";
    $(document).on(events, ".ui-slider", (event) => describeSlider(event.currentTarget));
}
