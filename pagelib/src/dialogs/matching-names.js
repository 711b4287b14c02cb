// A list of names may be very long: a box shows no more than this.
export const SHOWN = 50;

/**
 * The names that hold what was typed, in the list's order.
 * @param {Array<{label: string, category: string}>} names
 */
export function matchingNames(names, typed) {
    const wanted = String(typed).toLowerCase();
    const found = [];
    for (let i = 0; i < names.length && found.length < SHOWN; ++i) {
        if (names[i].label.toLowerCase().indexOf(wanted) >= 0) {
            found.push(names[i]);
        }
    }
    return found;
}
