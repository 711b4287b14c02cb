import $ from "../jquery.js";

// Escape gives a field back what stood in it when it got the focus. The engine would write the key's own sign over what
// is selected, and what a page strips of it later is lost.

const FIELDS = "input:not([type]), input[type=text], input[type=search], input[type=password], input[type=number]";
const TEXTS = `${FIELDS}, textarea`; // a text of many lines is too dear to be taken back by one press
const ESCAPE = 27;
const BEFORE = "zelBefore";

function keep(event) {
    $.data(event.target, BEFORE, event.target.value);
}

function giveBack(event) {
    const field = event.target;
    if (event.isDefaultPrevented() || !$(field).is(FIELDS)) {
        return; // the press has closed something
    }
    const before = $.data(field, BEFORE);
    const isSpinner = $(field).hasClass("zel-spinner-input"); // which knows better
    if (event.which !== ESCAPE || isSpinner || before === undefined || before === field.value) {
        return;
    }
    event.preventDefault(); // nothing else is closed by this press
    $(field).val(before).trigger("input");
    field.select();
}

/** Binds it for all fields of the document. */
export function giveFieldsBackOnEscape() {
    $(window).on("keydown", giveBack); // behind all that is closed by Escape
    $(document).on("focusin change", FIELDS, keep)
        .on("keypress", TEXTS, (event) => {
            if (event.which === ESCAPE) {
                event.preventDefault();
            }
        });
}
