/* global zel4func */
import {guardedHandler} from "./guard.js";
import {LIVE_PAGE} from "./live-page.js";
import {livecontrol_obj} from "./panel.js";

/** What a page shows can be sent only while it is the camera's. Without that there is Cancel alone. */
export function offerSending(prefix, isReadable) {
    zel4func.disable($(`#${prefix}ok, #${prefix}apply`), !isReadable);
}

/**
 * Binds OK, Cancel and Apply of a setting page.
 * @param {string} prefix - ids are `prefix` + "ok", "cancel" and "apply"
 * @param {function(): boolean} apply - sends the page to the cameras; false if they refused it
 * @param {Function} end - leaves the setting mode; the list shows by then
 */
export function bindPageButtons(prefix, apply, end) {
    let isTaken = true;

    function onClick(name, action) {
        const button = `#${prefix}${name}`;
        $(button).on("click", guardedHandler(button, action));
    }

    function leave() {
        livecontrol_obj.changePage(LIVE_PAGE.LIST);
        end();
    }

    onClick("apply", () => {
        isTaken = apply();
    });
    onClick("ok", () => {
        $(`#${prefix}apply`).trigger("click");
        if (isTaken) { // what was refused stays, to be mended
            leave();
        }
    });
    onClick("cancel", leave);
}
