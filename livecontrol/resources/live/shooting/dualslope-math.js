/* global MULTIPLE_DOCS_NOT_IN_CURRENT */

// Arithmetic of the dual slope panel. Rates are whole numbers; the camera takes multiples of the step and its maximum.

export const DUAL_SLOPE_STEP = 5;

/** The rate for a slider position. The slider's last step may lie beyond the largest rate. */
export function sliderRate(position, limit) {
    return position >= limit + 1 ? limit : position;
}

/** The slider's end: the first step from the minimum at which the largest rate can be reached. */
export function sliderEnd(min, max) {
    return min + Math.ceil((max - min) / DUAL_SLOPE_STEP) * DUAL_SLOPE_STEP;
}

/** The rate for a typed or stepped value: within the limits, and a multiple of the step unless it is a limit. */
export function spinnerRate(value, min, max) {
    const whole = Math.floor(value);
    if (whole >= max) {
        return max;
    }
    return Math.max(min, whole - whole % DUAL_SLOPE_STEP);
}

/**
 * Whether the panel is to be shown.
 * @param {object} settings - of `getDSShutterSettings`
 * @param {boolean} hide - false keeps a panel that the user has just opened
 * @returns {?boolean} null: leave it as it is
 */
export function panelShown(settings, hide) {
    const usable = settings.ExistSupportedDSShutter > MULTIPLE_DOCS_NOT_IN_CURRENT
        && Boolean(settings.DSShutterAvairable);
    if (settings.ExistSupportedDSShutterMode > MULTIPLE_DOCS_NOT_IN_CURRENT) {
        return usable && Boolean(settings.DSShutterMode);
    }
    if (usable && settings.Value > 0) {
        return true;
    }
    return hide ? false : null;
}
