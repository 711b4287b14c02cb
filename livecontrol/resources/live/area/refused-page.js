/* global livecontrol */

// A page that the cameras refused stays as the user left it, until it is sent again or left.

/**
 * @param {function(): *} typed - what the user has typed on the page and an update would take back
 * @param {function(*)} show - puts that back
 */
export function refusedPage(typed, show) {
    let isRefused = false;
    return {
        /** Shows the page anew by `refresh`. */
        refresh(refresh) {
            const kept = isRefused ? typed() : null;
            refresh();
            if (kept) {
                show(kept);
            }
        },

        /** Sends the page by `send`. @returns {boolean} false if it was refused */
        send(send) {
            const kept = typed();
            send();
            // Only of a mediator that says so.
            isRefused = livecontrol.isPageTaken() === false;
            if (isRefused) {
                show(kept);
            }
            return !isRefused;
        },

        forget() {
            isRefused = false;
        }
    };
}
