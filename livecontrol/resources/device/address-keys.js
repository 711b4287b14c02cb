// Several boxes of an address are typed and pasted in like one text.

const TAB = 9;
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

// The next box that can be typed into, with its number selected; undefined behind the last one.
function goOn(boxes, i) {
    const next = boxes.slice(i + 1).find((box) => !box.prop("disabled"));
    if (next) {
        next.trigger("focus").trigger("select");
    }
    return next;
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
 * A point and the third digit go on to the next box, an address that is pasted fills all. The point or the Tab of
 * who did not see that the third digit went on by itself does nothing.
 * @param {jQuery[]} boxes in their order
 * @param {function()} [enter] what Enter does
 */
export function bindAddressKeys(boxes, enter) {
    let arrived; // the box to which the third digit of the one before went on, until something is done there
    const isArrival = (box) => {
        const is = arrived === box;
        arrived = undefined;
        return is;
    };
    boxes.forEach((box, i) => {
        box.on("keypress", (event) => {
            if (event.which === POINT && isArrival(box)) {
                event.preventDefault();
            } else if (event.which === POINT && box.val() !== "") {
                event.preventDefault();
                goOn(boxes, i);
            }
        }).on("input", (event) => {
            arrived = undefined;
            if (event.originalEvent && String(box.val()).length === FULL && // typed, not put there by a script
                Number(box.val()) <= HIGHEST && box[0].selectionEnd === FULL) {
                arrived = goOn(boxes, i);
            }
        }).on("blur", () => {
            arrived = undefined;
        }).on("paste", (event) => paste(boxes, event));
        box.on("keydown", (event) => {
            if (event.which === TAB && !event.shiftKey && isArrival(box)) {
                event.preventDefault();
            } else if (event.which === ENTER && enter) {
                event.preventDefault();
                enter();
            }
        });
    });
}
