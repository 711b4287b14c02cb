// A select box of a list that came back empty, see shooting-items.js. No DOM here.

/**
 * @param {string} [text] - what the box then shows; only the box of the frame rates gives a translated one
 * @returns {{items: Array, selected: number}}
 */
export function noneBox(text = "(None)") {
    return {items: [{value: "0", text: text}], selected: 0};
}
