// What the number boxes of an address take. No DOM.

const LAST = 3;

/** The four numbers of a dotted address as texts; empty ones for what it lacks. */
export function numbersOf(address) {
    const parts = String(address || "").split(".");
    return [0, 1, 2, LAST].map((i) => parts[i] || "");
}

/** The dotted address of four numbers. */
export function dotted(numbers) {
    return numbers.map(Number).join(".");
}

/** Whether four boxes hold what that address fills them with. */
export function isAddress(numbers, address) {
    return numbersOf(address).every((number, i) => number === numbers[i]);
}

/** Lowest and highest last number of a host's address: 0 and, in the private net 192.168, 255 are no hosts. */
export function lastLimits(numbers) {
    const isPrivate = Number(numbers[0]) === 192 && Number(numbers[1]) === 168;
    return {min: 1, max: isPrivate ? 254 : 255};
}

/** Whether the last of the four numbers of a host's address is within its limits. */
export function isLastRight(numbers) {
    const limits = lastLimits(numbers);
    const last = Number(numbers[LAST]);
    return last >= limits.min && last <= limits.max;
}

/**
 * A number that was typed, brought within its limits.
 * @returns {?string} null for what is no number: the box keeps the focus then
 */
export function clampNumber(text, limits) {
    if (!/^[0-9]+$/.test(text)) {
        return null;
    }
    return String(Math.min(limits.max, Math.max(limits.min, Number(text))));
}
