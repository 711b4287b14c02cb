// The arithmetic of rule tables, without a page: which flag feeds a rule, and which selectors a status disables.

// Rules whose name is not their flag's name in capitals.
const FLAG_OF_RULE = {
    AUTOFOCUS: "IsAutoFocussing",
    "BACKGROUND-SAVING": "IsBgSaving",
    "BACKGROUND-CONVERTING": "IsBgConverting"
};

function plain(name) {
    return name.replace(/[^0-9a-z]/gi, "").toLowerCase();
}

/**
 * The status flag that feeds a rule: "NONE-DOCUMENT" is fed by IsNoneDocument, "EXIST-LOWLIGHT" by ExistLowlight.
 * @returns {string|null} the flag's name, or null when the status has none of that name
 */
export function flagOfRule(rule, status) {
    if (FLAG_OF_RULE[rule] in status) {
        return FLAG_OF_RULE[rule];
    }
    const wanted = plain(rule);
    const flags = Object.keys(status);
    return flags.find((flag) => plain(flag) === wanted) || flags.find((flag) => plain(flag) === `is${wanted}`) || null;
}

/** The status as an object, or null when the getter failed or gave something else. */
export function parseStatus(text) {
    if (!text) {
        return null;
    }
    try {
        const status = JSON.parse(text);
        return status && typeof status === "object" ? status : null;
    } catch (error) {
        return null;
    }
}

/**
 * What a rule table says for a status.
 * @param {Object} controls rule name to `{disabled: [selector], func: function (flag)}`, both optional
 * @param {Object} status flag name to boolean
 * @returns {{disabled: string[], free: string[], calls: {func: Function, flag: boolean}[], unknown: string[]}}
 *   selectors under a true flag, the other selectors of the table, the functions to call in the table's order, and the
 *   rules that no flag feeds. An element can match selectors of both lists; then it is disabled.
 */
export function resolveRules(controls, status) {
    const disabled = new Set();
    const named = new Set();
    const calls = [];
    const unknown = [];
    Object.keys(controls).forEach((rule) => {
        const flagName = flagOfRule(rule, status);
        if (flagName === null) {
            unknown.push(rule);
            return;
        }
        const {disabled: selectors = [], func} = controls[rule];
        const flag = Boolean(status[flagName]);
        [].concat(selectors).forEach((selector) => {
            named.add(selector);
            if (flag) {
                disabled.add(selector);
            }
        });
        if (func) {
            calls.push({func, flag});
        }
    });
    const free = Array.from(named).filter((selector) => !disabled.has(selector));
    return {disabled: Array.from(disabled), free, calls, unknown};
}
