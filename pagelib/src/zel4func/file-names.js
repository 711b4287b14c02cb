import $ from "../jquery.js";

// Characters that no file name may hold; a camera's name can become one.
const FORBIDDEN = /[\\/*?|\t\n":<>%]/;
const ALL_FORBIDDEN = new RegExp(FORBIDDEN.source, "g");

/** Whether a text can be the name of a device: something that can become a file name. */
export function deviceNameCheck(text) {
    return $.trim(text) !== "" && !FORBIDDEN.test(text);
}

/** The text without the characters that no file name may hold, and without blanks before it: they can't be seen. */
export function withoutForbidden(text) {
    return String(text).replace(ALL_FORBIDDEN, "").replace(/^\s+/, "");
}

/** Keeps what no file name may hold, and blanks before a name, out of text fields, typed or pasted. */
export function initializeTextfield4ProhibitionFilename(selector) {
    $(selector).on("keypress", (event) => {
        const typed = String.fromCharCode(event.which);
        const isLeadingBlank = /\s/.test(typed) && event.target.selectionStart === 0;
        if (event.which >= 32 && (FORBIDDEN.test(typed) || isLeadingBlank)) {
            event.preventDefault();
        }
    }).on("input", function strip() {
        const kept = withoutForbidden(this.value);
        if (kept !== this.value) {
            this.value = kept;
        }
    });
}
