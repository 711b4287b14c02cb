// The numbers of a rectangle on the image: places from 0, sizes from their smallest, each on its grid. Pixels of the
// user's view.

/** A value put onto the grid that counts from the minimum: the nearer step, the upper one from the middle on. */
export function correctedStep(value, {min, max, step}) {
    if (value === min || value === max) {
        return value;
    }
    const over = positiveRest(value - min, step);
    const lowered = value - over;
    return withinLimits(over > 0 && over >= step / 2 ? lowered + step : lowered, min, max);
}

/** A value put onto the grid by raising it to the next step; the limits themselves are on no grid. */
export function raisedToStep(value, {min, max, step}) {
    if (value <= min) {
        return min;
    }
    if (max !== null && value >= max) {
        return max;
    }
    const over = positiveRest(value - min, step);
    return withinLimits(over > 0 ? value - over + step : value, min, max);
}

/** The last place, on its grid, from which a size stays within the largest area. */
export function placeMax(areaMax, size, step) {
    const free = areaMax - size;
    return free - positiveRest(free, step);
}

/**
 * The largest size that stays within the largest area from a place on.
 * @param {{min: number, max: number, step: number}} area - smallest and largest size and the grid between
 * @param {?number} place - left or top edge; null when the area is centered: it is then as large as it may be
 */
export function sizeMax({min, max, step}, place) {
    if (place === null) {
        return max;
    }
    const room = Math.min(max - place, max);
    return Math.max(min, room - positiveRest(room - min, step));
}

/** Maxima of target and range: each its own, or what a common limit leaves beside the other. */
export function levelMaxima(value, range, limit) {
    return limit === null
        ? {value: value.Max, range: range.Max}
        : {value: limit - range.Value, range: limit - value.Value};
}

function positiveRest(value, step) {
    return step > 1 && value > 0 ? value % step : 0;
}

/** A value put back to the limits; null is none. */
export function withinLimits(value, min, max) {
    const limited = max === null || max === undefined ? value : Math.min(max, value);
    return min === null || min === undefined ? limited : Math.max(min, limited);
}
