import $ from "../jquery.js";
import {giveFieldsBackOnEscape} from "./escape.js";
import {installSliderNames} from "./slider-names.js";

const MARK = "zel_enhanced";

// A disabled link or other clickable element that is no form control still gets clicks from the engine.
function swallowDisabledClicks() {
    document.addEventListener("click", (event) => {
        if ($(event.target).closest("a.disabled, .disabled[role=button]").length) {
            event.preventDefault();
            event.stopImmediatePropagation();
        }
    }, true);
}

/** Gives the page's document the common behavior of controls, once however many scripts ask for it. */
export function enhance() {
    if (window[MARK]) {
        return;
    }
    window[MARK] = true;
    swallowDisabledClicks();
    installSliderNames();
    giveFieldsBackOnEscape();
}
