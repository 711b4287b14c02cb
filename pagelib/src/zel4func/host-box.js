import $ from "../jquery.js";
import {hasSlot, pageMediator} from "./page-mediator.js";

// The host's select box is a window of its own that lies over the page and learns nothing of clicks beneath it.
const EVENTS = "mousedown.zelHostBox keydown.zelHostBox";
const ESCAPE = 27;

/** Closes an open select box of the host. */
export function hideSelectBox() {
    $(document).off(EVENTS);
    if (hasSlot(pageMediator(), "hideSelectBox")) {
        pageMediator().hideSelectBox();
    }
}

/** To be called before a select box of the host opens: the next press on the page, or Escape, closes it again. */
export function appendDummy() {
    $(document).off(EVENTS).on(EVENTS, (event) => {
        if (event.type === "mousedown" || event.which === ESCAPE) {
            hideSelectBox();
        }
    });
}
