// What an operation log line says of a control, made from plain facts so that it can be tested without a page.

const SECRET = /passw|passphrase|secret/i;

/**
 * Whether the value of a field must not reach the log: password fields, those that were one before a "show" box turned
 * them into text, and those whose id, name or class says so.
 * @param {{type: string, id: string, name: string, className: string, wasPassword: boolean}} field
 */
export function isSecret(field) {
    return field.type === "password" || Boolean(field.wasPassword) ||
        SECRET.test(`${field.id} ${field.name} ${field.className}`);
}

const INPUT_KINDS = {
    button: "Button",
    submit: "Button",
    reset: "Button",
    image: "Button",
    checkbox: "CheckBox",
    radio: "RadioButton"
};

/** The kind of an input, select or text area that reports by a change: its word in the log. */
export function kindOfField(tag, type) {
    if (tag === "SELECT") {
        return "SelectBox";
    }
    return (tag === "INPUT" && INPUT_KINDS[type]) || "TextField";
}

const LONGEST = 200; // characters of a value; a comment may have a million

function cut(text) {
    return text.length > LONGEST ? `${text.slice(0, LONGEST)}... (${text.length})` : text;
}

/**
 * The arguments of userOperationLogWebView, in its order.
 * @param {{url: string, id: string, className: string}} place page address, and id and class of the element
 * @param {string} operation "clicked" or "changed"
 * @param {string} kind word for the kind of control
 * @param {*} value value after the operation
 */
export function logArguments(place, operation, kind, value) {
    const plain = value === undefined || value === null ? "" : value;
    const shown = typeof plain === "string" ? cut(plain) : plain;
    return [place.url, operation, kind, place.id || "", place.className || "", shown];
}
