/* global MULTIPLE_DOCS_NOTHING, MULTIPLE_DOCS_NOT_IN_CURRENT, MULTIPLE_DOCS_ALL */
import {noneBox} from "../frame/none-box.js";
import {LOCK, largestCount} from "./trigger-math.js";

// The items of the trigger box and what the parameter block shows for a mode. No DOM. An item has `value` and `text`,
// and where they apply `id`, `className`, `palegreen` and `disabled`.

/** Values of items that stand for no mode. */
export const TRIGGER_ITEM = {NONE: "0", IMAGE_TRIGGER: "-1", UNKNOWN: "-2", SEPARATOR: ""};

/**
 * The trigger box, with a member more: `hasModes`, false for a camera that lists none.
 * @param {object} settings - of `getTriggerModeSettings`
 * @param {function(string): string} translate
 */
export function triggerBox(settings, translate) {
    if (settings.TriggerMode.length === 0) {
        return Object.assign(noneBox(), {hasModes: false});
    }
    const items = imageTriggerItems(settings, translate);
    const listed = settings.TriggerMode.some((mode) => mode.Value === settings.SelectValue);
    const unknown = settings.DifferentTriger || !listed;
    if (unknown) {
        items.push({value: TRIGGER_ITEM.UNKNOWN, text: translate("---")});
    }
    settings.TriggerMode.forEach((mode) => items.push({value: String(mode.Value), text: mode.Name}));
    const value = unknown ? TRIGGER_ITEM.UNKNOWN : String(settings.SelectValue);
    return {items: items, selected: items.map((item) => item.value).indexOf(value), hasModes: true};
}

function imageTriggerItems(settings, translate) {
    if (settings.ExistSupportImageTrigger <= MULTIPLE_DOCS_NOTHING) {
        return [];
    }
    return [{
        value: TRIGGER_ITEM.IMAGE_TRIGGER,
        text: translate("H/W Image Trigger..."),
        id: "op_hwimage_trigger",
        palegreen: Boolean(settings.HWImageTriggerOn),
        disabled: settings.ExistSupportImageTrigger < MULTIPLE_DOCS_ALL
    }, {value: TRIGGER_ITEM.SEPARATOR, text: "", className: "hr", disabled: true}];
}

/** What the block shows for a mode: the rows, whether the count box can be used, and whose limit the count has. */
const BLOCK_OF_MODE = {
    MANUAL_TRG: {total: true, manual: true},
    RANDOM_TRG: {random: true, count: "choice"},
    RANDOM_RESET_TRG: {random: true, count: "choice"},
    RANDOM_CENTER_TRG: {random: true, count: "always"},
    RANDOM_MANUAL_TRG: {random: true, count: "always", manual: true},
    RANDOM_LOOP_TRG: {random: true, count: "none"}
};

/** Whether the frames before and after the trigger share a random recording instead of the memory. */
export function isRandomManual(identifier) {
    return identifier === "RANDOM_MANUAL_TRG";
}

/** Whether a mode has a count at all times, with another limit of the camera than where it is a choice. */
export function countsAlways(identifier) {
    const block = BLOCK_OF_MODE[identifier];
    return Boolean(block) && block.count === "always";
}

/**
 * All that the parameter block shows, or null for a mode without a block.
 * @param {object} settings - of `getTriggerParameterSettings`
 * @param {string} identifier - of the mode
 */
export function parameterBlock(settings, identifier) {
    const block = BLOCK_OF_MODE[identifier];
    return block ? {
        total: Boolean(block.total),
        random: Boolean(block.random),
        manual: Boolean(block.manual),
        countBox: block.count === "choice" && settings.ExistSupportRandomTrgTimes > MULTIPLE_DOCS_NOT_IN_CURRENT,
        countSpinner: block.count === "always"
            || block.count === "choice" && settings.ExistSupportRandomTrgTimes > MULTIPLE_DOCS_NOT_IN_CURRENT
    } : null;
}

/** The frames that lie before and after the trigger together. */
export function limitOf(settings, identifier) {
    return isRandomManual(identifier) ? settings.RandomFrames : settings.TotalFrames;
}

/** The count's check box and spinner. */
export function countControls(settings, identifier) {
    const largest = largestCount(settings.TotalFrames, settings.RandomFrames, settings.RandomFramesOffset);
    const always = countsAlways(identifier);
    const on = always || Boolean(settings.RandomTimesEnable);
    const limit = always ? settings.MaxRandomEndlessTrgCount : settings.MaxRandomTrgCount;
    return {
        checked: on,
        boxDisabled: always,
        spinnerDisabled: !on,
        min: on ? 1 : 0,
        max: Math.min(largest, limit),
        value: on ? Math.min(settings.RandomTimesMax, largest) : 0
    };
}

/** Which lock buttons are locked, by the lock that the host holds. */
export function lockedButtons(lock) {
    const frames = lock === LOCK.BEFORE || lock === LOCK.AFTER;
    return {before: lock === LOCK.BEFORE, after: lock === LOCK.AFTER, percent: !frames};
}
