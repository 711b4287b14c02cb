// Arithmetic of the variable page: rows, sizes and places. No DOM. A size has the camera's orientation where it comes
// from a list of the host, and the user's where it stands for the rectangle on the image.

/** What the page holds when it is entered. A place of -1 is to be centered, a size of 0 is not chosen yet. */
export function initialMembers() {
    return {
        variableFrameratePriority: true,
        variableResolutionPreset: true,
        variableSelectChannel: 1,
        variableSelectFramerate: 0,
        variableSelectResolution: 0,
        variableInputWidth: 0,
        variableInputHeight: 0,
        variableInputPosX: 0,
        variableInputPosY: 0,
        variableOpticalCenter: false,
        variableLockX: false,
        variableLockY: false
    };
}

/** The blocks of the page, the one that decides first. */
export function blockOrder(frameratePriority) {
    return frameratePriority
        ? [".varblock-framerate", ".varblock-resolution", ".varblock-position"]
        : [".varblock-resolution", ".varblock-position", ".varblock-framerate"];
}

/** The number of the row to select: the one chosen as long as there is such a row, else the last, the fastest rate. */
export function chosenRate(value, rowCount) {
    return value < 0 || value >= rowCount ? rowCount - 1 : value;
}

/**
 * The box of the rates, see shooting-items.js. With resolution priority the fastest stands first.
 * @param {Array<{Value: string, FrameRate: string}>} rows - at least one
 */
export function framerateBox(rows, frameratePriority, selected) {
    const items = rows.map((row) => ({value: row.Value, text: row.FrameRate}));
    return boxOf(frameratePriority ? items : items.reverse(), selected);
}

/** The box of the presets. */
export function presetBox(rows, selected) {
    return boxOf(rows.map((row) => ({value: row.Value, text: row.Resolution})), selected);
}

/** The size to start with: the first preset, or by hand the largest that the list allows. 0 without any. */
export function startSize(list, isPreset) {
    const first = list.VariableResolutionList[0] || {Width: 0, Height: 0};
    return isPreset
        ? {width: Number(first.Width), height: Number(first.Height)}
        : {width: Number(list.MaxPresetWidth), height: Number(list.MaxPresetHeight)};
}

/** The size of the preset of that number; null if there is none. */
export function presetSize(rows, value) {
    const row = rows.find((one) => Number(one.Value) === Number(value));
    return row ? {width: Number(row.Width), height: Number(row.Height)} : null;
}

/**
 * The position in the host's list of the rate that was chosen. A row's number runs on where a rate is skipped, so it is
 * that position only in the list that skips none: there the row is found by its text, which is exact.
 * @param {Array} rows - those the user chose from
 * @param {Array} allRows - those of frame rate priority, every rate of the host's in its order
 * @returns {number} -1 if there is no such row
 */
export function rateIndexOf(rows, allRows, value) {
    const chosen = rows.find((row) => Number(row.Value) === Number(value));
    return chosen ? allRows.findIndex((row) => row.FrameRate === chosen.FrameRate) : -1;
}

/** A size turned into the other orientation, where the two differ. */
export function turnedSize(size, isSwapped) {
    return isSwapped ? {width: size.height, height: size.width} : size;
}

/** A place on one axis: in the middle where it is centered, fixed or not chosen, else as it is. */
export function settledPlace(place, size, max, isCentered) {
    return isCentered || place === -1 ? (max - size) / 2 : place;
}

/** A spin keeps its direction; a typed value goes down to the next one that the camera takes. */
export function correctsDown(isSpin, before, value) {
    return !(isSpin && before < value);
}

function boxOf(items, selected) {
    return {items: items, selected: items.findIndex((item) => Number(item.value) === Number(selected))};
}
