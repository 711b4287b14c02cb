import {floatfloor, round} from "../zel4func/rounding.js";

// The numbers of a spinner, without a page. `settings` are the widget's options: min, max, step, decimal, natural,
// decimalPoint. This is the one place that knows limits, steps and decimals.

const STEP_DECIMALS = 9; // finer than any step; takes the binary noise out of a quotient

function limit(value) {
    return value === null || value === undefined || value === "" || !isFinite(Number(value)) ? null : Number(value);
}

/** Decimals that the field shows: `decimalPoint`, or as many as the step has; 0 unless `decimal` is on. */
export function decimals(settings) {
    if (!settings.decimal) {
        return 0;
    }
    const given = limit(settings.decimalPoint);
    if (given !== null) {
        return given;
    }
    const [, fraction = ""] = String(settings.step).split(".");
    return fraction.length;
}

/** Without a step of its own a field has the smallest that it shows. */
function stepOf(settings) {
    const step = Number(settings.step);
    return step > 0 ? step : 10 ** -decimals(settings);
}

/** The number that a text spells, or null. A comma counts as a point: keyboards of many countries have no other. */
export function parse(text) {
    const plain = String(text === null || text === undefined ? "" : text).trim().replace(",", ".");
    return /^[+-]?(\d+\.?\d*|\.\d+)$/.test(plain) ? Number(plain) : null;
}

/** A number as the field shows it; null shows as nothing. */
export function format(number, settings) {
    return number === null ? "" : round(number, decimals(settings)).toFixed(decimals(settings));
}

/** A number cut to the limits and to the decimals of the field. */
export function settle(number, settings) {
    const min = limit(settings.min);
    const max = limit(settings.max);
    let value = round(number, decimals(settings));
    if (max !== null && value > max) {
        value = max;
    }
    if (min !== null && value < min) {
        value = min;
    }
    return settings.natural && value < 0 ? 0 : value;
}

/**
 * The number that a typed text stands for, or null if the field takes no such text: a field without decimals takes
 * whole numbers only, and never a number made of what is left of another text.
 */
export function typedNumber(text, settings) {
    const number = parse(text);
    return settings.decimal || /^[+-]?\d+$/.test(String(text).trim()) ? number : null;
}

/** Whether a text is a number that the field can take as it stands. */
export function isSettled(text, settings) {
    const number = typedNumber(text, settings);
    return number !== null && settle(number, settings) === number;
}

/**
 * The value that lies some steps away. From between two steps the first move goes to the next one in that direction;
 * steps count from the minimum, or from 0 without one. The limits end the way, on a step or not.
 * @param {number|null} from value to start at; null starts at the minimum
 * @param {number} direction 1 up, -1 down
 * @param {number} count how many steps, at least 1
 */
export function stepped(from, direction, count, settings) {
    const step = stepOf(settings);
    const base = limit(settings.min) || 0;
    if (from === null) {
        return settle(base, settings);
    }
    const steps = round((from - base) / step, STEP_DECIMALS);
    const whole = direction > 0 ? floatfloor(steps, 0) + count : -floatfloor(-steps, 0) - count;
    return settle(round(base + whole * step, STEP_DECIMALS), settings);
}

/** How many steps lead from one value to another, negative downwards; the nearest whole number. */
export function ticksBetween(from, to, settings) {
    return from === null || to === null ? 0 : round((to - from) / stepOf(settings), 0);
}

/**
 * How many steps one repeat of a held button makes.
 * @param {boolean|Function} incremental false: always 1; true: faster with time; a function of the repeat number
 * @param {number} repeats repeats so far, from 0
 */
export function pace(incremental, repeats) {
    if (typeof incremental === "function") {
        return Math.max(1, Math.floor(incremental(repeats)) || 1);
    }
    return incremental ? Math.min(100, Math.pow(10, Math.floor(repeats / 25))) : 1;
}
