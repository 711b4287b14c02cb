/**
 * The object in the text of a getter.
 * @param {string} text - one JSON object, or "" after a failed getter, which the mediator has reported already
 * @returns {?object} null after a failed getter: what the block has shown may be another camera's by now, and goes
 */
export function parseSettings(text) {
    return text ? JSON.parse(text) : null;
}
