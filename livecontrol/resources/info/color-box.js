import {PALETTE, colorOf} from "./colors.js";

const SPACE = 32;
const ENTER = 13;
const ESCAPE = 27;

/**
 * A box that shows a color and opens and closes a palette under it, with a field for a color by its number.
 * @param {string} box - selector of the box; its palette has "-palette" behind its id
 * @param {function(string): string} translate
 * @param {function(string)} chosen - called with "#rrggbb"
 */
export function bindColorBox(box, translate, chosen) {
    const palette = $(`${box}-palette`).empty();
    const choose = (color) => {
        showColor(box, color); // the palette stays, so that what stands under it doesn't move under the mouse
        chosen(color);
    };
    PALETTE.forEach((color) => {
        palette.append($("<button>", {type: "button", class: "swatch", title: color, "aria-label": color})
            .css("background-color", color)
            .on("click", () => choose(color)));
    });
    const field = $("<input>").attr({type: "text", maxlength: 7, autocomplete: "off", "aria-label": translate("Color")})
        .on("change", function () {
            const color = colorOf(this.value);
            if (color) {
                choose(color);
            } else {
                this.value = $(box).attr("data-color"); // what is no color changes nothing
            }
        });
    palette.append(field);
    $(box).on("click", () => toggle(box)).on("keydown", (event) => {
        if (event.which === SPACE || event.which === ENTER) {
            event.preventDefault();
            event.stopPropagation();
            toggle(box);
        }
    });
    palette.on("keydown", (event) => {
        if (event.which === ESCAPE) { // closes the palette, not the dialog
            event.preventDefault();
            event.stopPropagation();
            showColor(box, $(box).attr("data-color")); // else the field that is left would take what was typed
            close(box);
        } else if (event.which === ENTER && event.target === field[0]) {
            event.preventDefault();
            event.stopPropagation();
            field.trigger("change");
        }
    });
}

export function showColor(box, color) {
    $(box).attr("data-color", color).css("background-color", color);
    $(`${box}-palette input`).val(color);
}

export function close(box) {
    if ($(`${box}-palette`).is(":visible")) {
        toggle(box);
        $(box).trigger("focus");
    }
}

function toggle(box) {
    const palette = $(`${box}-palette`).toggle();
    $(box).attr("aria-expanded", String(palette.is(":visible")));
    if (palette.is(":visible")) {
        palette.find("button").first().trigger("focus");
    }
}
