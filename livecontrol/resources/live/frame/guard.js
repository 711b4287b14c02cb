/* global livecontrol */

/**
 * Runs one piece of the page and keeps a script error in it from stopping the others. The error goes to the log.
 * @param {string} what - the piece, as it is to stand in the log
 * @param {Function} action
 * @returns the action's result, or undefined after an error
 */
export function guarded(what, action) {
    try {
        return action();
    } catch (error) {
        livecontrol.errorLog("livecontrol - " + what + ": " + describe(error));
        return undefined;
    }
}

/** An event handler that runs guarded, with the element as `this`. */
export function guardedHandler(what, handler) {
    return function (...args) {
        return guarded(what, () => handler.apply(this, args));
    };
}

function describe(error) {
    const place = error && error.line ? " (line " + error.line + ")" : "";
    return String(error) + place;
}
