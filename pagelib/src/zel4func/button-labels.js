import $ from "../jquery.js";

const SMALLEST = 9; // pixels; less can't be read

/**
 * Makes the font of buttons smaller until their labels fit, and no larger than the style has it.
 * @param {jQuery|Element|string} buttons a selection; those that don't show are left alone
 */
export function applyButtonLabelFontSize(buttons) {
    $(buttons).filter(":visible").each((_, button) => {
        button.style.fontSize = "";
        let size = parseFloat($(button).css("font-size"));
        while (button.scrollWidth > button.clientWidth && size > SMALLEST) {
            size -= 1;
            button.style.fontSize = size + "px";
        }
    });
}
