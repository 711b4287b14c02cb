// The script object of this page: functions that take none use the one that the page named last.
let mediator = null;

export function setPageMediator(object) {
    if (object) {
        mediator = object;
    }
}

/** The page's script object, or null before the page has named one. */
export function pageMediator() {
    return mediator;
}

/** Whether a script object has that slot; bridge objects list only what they have. */
export function hasSlot(object, name) {
    return Boolean(object) && typeof object[name] === "function";
}
