// Where a key leads in a list, without a page.

const MOVES = {
    38: (at) => at - 1, // Up
    40: (at) => at + 1, // Down
    36: () => 0, // Home
    35: (at, count) => count - 1, // End
    33: (at) => at - 10, // Page Up
    34: (at) => at + 10 // Page Down
};

/**
 * The row that a key makes the active one, or null for a key that moves nothing.
 * @param {number} at the active row, -1 for none
 * @param {number} count rows of the list
 */
export function rowAfterKey(which, at, count) {
    const move = MOVES[which];
    if (!move || count === 0) {
        return null;
    }
    return Math.max(0, Math.min(count - 1, move(at, count)));
}
