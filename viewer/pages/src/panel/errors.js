// Script errors of this document, for whoever asks the viewer for them. A list, not a log: it is emptied by reading.
const LIMIT = 200;
const errors = window.zel_errors || [];

function keep(error) {
    errors.push(error);
    if (errors.length > LIMIT) {
        errors.shift();
    }
}

window.zel_errors = errors;
window.onerror = (message, source, line, column, error) => {
    keep({
        message: String(message),
        source: String(source || ""),
        line: Number(line) || 0,
        column: Number(column) || 0,
        stack: error && error.stack ? String(error.stack) : "",
    });
    return false; // the engine's console gets it too
};
