// Rounding at n decimals as a reader of the printed number expects it: 1.005 rounds to 1.01 and 0.29 floors to 0.29,
// although neither is exact in binary. A number counts with 15 digits, which drops the noise of earlier arithmetic.
const DIGITS = 15;

function shift(number, places) {
    const [digits, exponent = "0"] = String(number).split("e");
    return Number(`${digits}e${Number(exponent) + places}`);
}

function atDecimals(x, decimals, toInteger) {
    const number = Number(x);
    if (!isFinite(number)) {
        return NaN;
    }
    const places = Number(decimals) || 0;
    const clean = Number(number.toPrecision(DIGITS));
    return shift(toInteger(shift(clean, places)), -places) + 0; // + 0 turns -0 into 0
}

function nearest(number) {
    return number < 0 ? -Math.round(-number) : Math.round(number);
}

/** To the nearest value with that many decimals, halves away from 0; NaN for what is no number. */
export function round(x, decimals) {
    return atDecimals(x, decimals, nearest);
}

/** Up to the next value with that many decimals. */
export function floatceil(x, decimals) {
    return atDecimals(x, decimals, Math.ceil);
}

/** Down to the next value with that many decimals. */
export function floatfloor(x, decimals) {
    return atDecimals(x, decimals, Math.floor);
}
