// Script errors of this document, for whoever asks the viewer for them, and in the log of the user's operations. The
// list is no log: it is emptied by reading. This script stands before all others, so it may rely on none of them.
const LIMIT = 200;
const SLOT = "userOperationErrorLog";
const errors = window.zel_errors || [];
let logged = "";

function keep(error) {
    errors.push(error);
    if (errors.length > LIMIT) {
        errors.shift();
    }
}

function isScriptObject(object) {
    return Boolean(object) && typeof object[SLOT] === "function";
}

/** The page's script object; before the page has named one, any that was given to it. */
function scriptObject() {
    const named = window.zel4func && window.zel4func.pageMediator();
    return isScriptObject(named) ? named : Object.keys(window).map((name) => window[name]).find(isScriptObject);
}

/** An error that repeats with each event would fill the log with one line. */
function logOnce(text) {
    if (text === logged) {
        return;
    }
    logged = text;
    try {
        const object = scriptObject();
        if (object) {
            object[SLOT](text);
        }
    } catch (failure) {
        // It stands in the list.
    }
}

window.zel_errors = errors;
window.onerror = (message, source, line, column, error) => {
    keep({
        message: String(message),
        source: String(source || ""),
        line: Number(line) || 0,
        column: Number(column) || 0,
        stack: error && error.stack ? String(error.stack) : ""
    });
    logOnce(`${message} (${source || document.URL}:${line || 0})`);
    return false; // the engine's console gets it too
};
