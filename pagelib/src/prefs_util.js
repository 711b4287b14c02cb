// Preferences for pages, through the script object that a page gets under the name "prefs" (or any other mediator).
// The bridge turns the text "false" into true and throws for undefined and NaN, so each value gets its type here.

function store() {
    return window.prefs;
}

function whole(value) {
    const number = Math.round(Number(value));
    return isFinite(number) ? number : 0;
}

function toBoolean(value) {
    return value === true || value === 1 || value === "1" || String(value).toLowerCase() === "true";
}

window.prefs_util = {
    getInt: (key, fallback = 0) => store().getPrefInt(key, whole(fallback)),
    getBool: (key, fallback = false) => store().getPrefBool(key, toBoolean(fallback)),
    getFloat: (key, fallback = 0) => store().getPrefFloat(key, Number(fallback) || 0),
    getString: (key, fallback = "") => store().getPrefString(key, String(fallback)),
    setInt: (key, value, update = true) => store().setPrefInt(key, whole(value), toBoolean(update)),
    setBool: (key, value, update = true) => store().setPrefBool(key, toBoolean(value), toBoolean(update)),
    setFloat: (key, value, update = true) => store().setPrefFloat(key, Number(value) || 0, toBoolean(update)),
    setString: (key, value, update = true) => store().setPrefString(key, String(value), toBoolean(update))
};
