import $ from "../jquery.js";
import {isKept} from "./row-data.js";

// A box over a list that has become long: what is typed there says which cameras show.

const FEWEST = 13; // rows, from which on there is one
const EVENTS = ".zelListFilter";

function apply(list, box) {
    const filter = box.length ? String(box.val()) : "";
    list.children().each((_, row) => {
        const texts = filter ? Array.from(row.querySelectorAll("[class^=device-]"), (part) => part.textContent) : [""];
        const display = isKept(texts, filter) ? "" : "none";
        if (row.style.display !== display) {
            row.style.display = display;
        }
    });
}

/**
 * Shows the box of a list that is long enough, and lets the filter act on its rows.
 * @param {jQuery} list the list's element
 * @param {string} hint what an empty box says
 */
export function refreshFilter(list, hint) {
    let box = list.prev(".list-filter");
    if (list.children().length < FEWEST) {
        box.remove();
        box = $();
    } else if (!box.length) {
        box = $("<input>").attr({type: "search", maxlength: 64}).addClass("list-filter").insertBefore(list);
        box.on(`input${EVENTS} keyup${EVENTS}`, () => apply(list, box));
    }
    box.attr({placeholder: hint, "aria-label": hint});
    apply(list, box);
}
