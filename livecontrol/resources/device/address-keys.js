// Several boxes of an address are typed and pasted in like one text.

const ENTER = 13;
const POINT = 46;
const FULL = 3; // digits of a number
const HIGHEST = 255; // a number beyond stays where the user sees it

/**
 * The numbers of a text that is an address, or begins with as many as there are boxes; null if it is none.
 * @param {string} text
 * @param {number} count of the boxes
 */
export function pastedNumbers(text, count) {
    const numbers = String(text).trim().split(".");
    const isAddress = numbers.length >= count && numbers.length <= 4 &&
        numbers.every((number) => /^[0-9]{1,3}$/.test(number));
    return isAddress ? numbers.slice(0, count) : null;
}

function isDigitKey(which) {
    return (which >= 48 && which <= 57) || (which >= 96 && which <= 105);
}

function goOn(boxes, i) {
    const next = boxes.slice(i + 1).find((box) => !box.prop("disabled"));
    if (next) {
        next.trigger("focus").trigger("select");
    }
}

function paste(boxes, event) {
    const data = event.originalEvent.clipboardData || window.clipboardData;
    const numbers = pastedNumbers(data ? data.getData("text") : "", boxes.length);
    if (numbers) {
        event.preventDefault();
        boxes.forEach((box, i) => {
            if (!box.prop("disabled")) {
                box.val(numbers[i]).trigger("input");
            }
        });
    }
}

/**
 * A point and the third digit go on to the next box, an address that is pasted fills all.
 * @param {jQuery[]} boxes in their order
 * @param {function()} [enter] what Enter does
 */
export function bindAddressKeys(boxes, enter) {
    boxes.forEach((box, i) => {
        box.on("keypress", (event) => {
            if (event.which === POINT && box.val() !== "") {
                event.preventDefault();
                goOn(boxes, i);
            }
        }).on("keyup", (event) => {
            if (isDigitKey(event.which) && String(box.val()).length === FULL &&
                Number(box.val()) <= HIGHEST && box[0].selectionEnd === FULL) {
                goOn(boxes, i);
            }
        }).on("paste", (event) => paste(boxes, event));
        if (enter) {
            box.on("keydown", (event) => {
                if (event.which === ENTER) {
                    event.preventDefault();
                    enter();
                }
            });
        }
    });
}
