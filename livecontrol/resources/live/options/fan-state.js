/* global MULTIPLE_DOCS_ALL */

// What the fan's block shows for a state of the fan. No DOM here.

const FORCED = "Forced to spin";
const HOT = "The fan is forced to spin because inside the camera is hot. Wait for a while.";
const FAULT = {stopped: false, enabled: false, note: "Error", tip: "A fan error occurred.", mark: false};

/** By the state's number; `mark` says that the fan stands still only while the camera waits for its trigger. */
const SHOWN = [
    {stopped: true, enabled: true, note: "", tip: "", mark: false},
    {stopped: false, enabled: true, note: "", tip: "", mark: false},
    {stopped: false, enabled: false, note: FORCED, tip: HOT, mark: false},
    FAULT,
    {stopped: true, enabled: true, note: "", tip: "", mark: true}
];

export const MARK_TIP = FORCED;

/**
 * @param {{State: number, LowLightMode: boolean, SupportedFanControl: number}} settings
 * @returns {{stopped: boolean, enabled: boolean, note: string, tip: string, mark: boolean}} texts to be translated
 */
export function fanShown(settings) {
    const shown = SHOWN[settings.State] || FAULT;
    return settings.LowLightMode || settings.SupportedFanControl < MULTIPLE_DOCS_ALL
        ? Object.assign({}, shown, {stopped: false, enabled: false, note: "", tip: ""}) : shown;
}
