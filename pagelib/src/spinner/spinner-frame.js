import $ from "../jquery.js";
import {nameOf} from "../ui/labels.js";

const PAGE_STEPS = 10;
const KEY_STEPS = {38: 1, 40: -1, 33: PAGE_STEPS, 34: -PAGE_STEPS}; // up, down, page up, page down

/** Steps that a key makes, negative downwards; undefined for other keys. */
export function keyDirection(which) {
    return KEY_STEPS[which];
}

/** 1 or -1 for a turn of the wheel. */
export function wheelDirection(event) {
    return event.originalEvent.deltaY > 0 ? -1 : 1;
}

function button(className, direction, onPress) {
    // The field itself tells and does all for the keyboard and the screen reader.
    return $("<button>", {type: "button", class: className, tabindex: -1, "aria-hidden": "true"})
        .on("mousedown", (event) => {
            event.preventDefault(); // the focus goes to the field
            if (event.which === 1) {
                onPress(event, direction);
            }
        });
}

/**
 * Puts a text field into its frame with the two buttons.
 * @param {jQuery} input the field
 * @param {function(Event, number)} onPress called when a button is pressed, with 1 or -1
 * @returns {{element: jQuery, describe: Function, release: Function}}
 */
export function createFrame(input, onPress) {
    const buttons = $("<span>", {class: "zel-spinner-buttons"}).append(
        button("zel-spinner-up", 1, onPress),
        button("zel-spinner-down", -1, onPress)
    );
    const isNamed = Boolean(input.attr("aria-label"));
    input.attr({type: "text", autocomplete: "off", role: "spinbutton"}).addClass("zel-spinner-input");
    input.wrap($("<span>", {class: "zel-spinner"}));
    const element = input.parent().append(buttons);
    return {
        element,
        describe({min, max, number, disabled}) {
            if (!isNamed) { // by the page: what stands there was its label's text, which may be translated by now
                input.removeAttr("aria-label");
            }
            input.attr({
                "aria-label": nameOf(input[0]),
                "aria-valuemin": min,
                "aria-valuemax": max,
                "aria-valuenow": number
            });
            element.toggleClass("disabled", disabled);
            buttons.children().prop("disabled", disabled);
        },
        release() {
            buttons.remove();
            input
                .unwrap()
                .removeClass("zel-spinner-input")
                .removeAttr("role aria-label aria-valuemin aria-valuemax aria-valuenow");
        }
    };
}
