/* global MULTIPLE_DOCS_NOTHING, MULTIPLE_DOCS_NOT_IN_CURRENT, MULTIPLE_DOCS_ALL */
import {noneBox} from "../frame/none-box.js";

// What the select boxes of the shooting block hold, worked out from the texts of the mediator. No DOM here.
//
// A box is {items, selected}: the items in their order, and the index of the selected one, -1 for none; `locked` says
// that the setting is held where it is, `caption` what the closed box shows while no item is selected.
// An item is {value, text} with `id`, `className`, `disabled` and `palegreen` where they apply.

/** Values of the items that are no row of a list. */
export const ITEM = {
    EMPTY: "",
    LOCK: "-1",
    AUTO_EXPOSURE: "-2",
    DUAL_SLOPE: "-3",
    AUTO_EXPOSURE_RUNNING: "-4",
    SEPARATOR: "-999"
};

/**
 * @param {object} settings - of `getResolutionSettings`
 * @param {function(string): string} translate
 */
export function resolutionBox(settings, translate) {
    const rows = settings.Resolutions;
    if (rows.length === 0) {
        return noneBox();
    }
    const items = settings.Selected ? [] : [emptyItem()];
    if (settings.ExistResolutionLockMode > MULTIPLE_DOCS_NOTHING) {
        items.push(lockItem(translate("Locked Resolution"), "op_lockedResolution",
            settings.ExistResolutionLockMode, settings.ResolutionLockMode), separator());
    }
    items.push(...rowItems(rows, (row) => row.Width + " x " + row.Height, settings.VariablePrefix));
    return Object.assign(boxOf(items, settings.Selected ? settings.SelectValue : ITEM.EMPTY), {
        locked: isLocked(settings.ExistResolutionLockMode, settings.ResolutionLockMode),
        caption: settings.Selected ? channelOf(settings.VariablePrefix) : undefined
    });
}

/**
 * @param {object} settings - of `getFrameRateSettings`
 * @param {function(string): string} translate
 */
export function framerateBox(settings, translate) {
    const rows = settings.Framerates;
    if (rows.length === 0) {
        return noneBox(translate("(None)"));
    }
    const items = settings.Selected ? [] : [emptyItem()];
    items.push(...rowItems(rows, (row) => row.Rate, settings.VariablePrefix));
    return boxOf(items, settings.Selected ? settings.SelectValue : ITEM.EMPTY);
}

/**
 * The shutter box, with three members more: `hasRows`, `opensDualSlope` (the dual slope panel is to be refreshed)
 * and `lowLight` (range and position of the low light slider, null unless low light is on).
 * @param {object} settings - of `getShutterSpeedSettings`
 * @param {function(string): string} translate
 */
export function shutterBox(settings, translate) {
    const rows = settings.ShutterSpeeds;
    if (rows.length === 0) {
        return Object.assign(noneBox(), {hasRows: false, opensDualSlope: false, lowLight: null});
    }
    const running = isAutoExposureRunning(settings);
    const dualSlope = dualSlopeItem(settings, translate);
    const modes = shutterModeItems(settings, dualSlope, translate);
    const items = [].concat(
        settings.Selected ? [] : [emptyItem()],
        modes,
        modes.length > 0 ? [Object.assign(separator(), {id: "hr"})] : [],
        running ? [{value: ITEM.AUTO_EXPOSURE_RUNNING, text: translate("Auto Exposure")}] : [],
        rowItems(rows, (row) => row.ShutterSpeed, ""));

    const lowLight = settings.LowLightMode
        ? lowLightSlider(rows.length, selectValue(settings, running)) : null;
    if (lowLight) {
        modes.forEach((item) => { item.disabled = true; });
    }
    return Object.assign(boxOf(items, shutterSelection(settings, running, lowLight)), {
        hasRows: true,
        locked: isLocked(settings.ExistSupportedShutterLockMode, settings.ShutterLockMode),
        opensDualSlope: Boolean(dualSlope && dualSlope.palegreen),
        lowLight: lowLight
    });
}

/** True while auto exposure rules the shutter. A dual slope shutter in use takes the shutter away from it. */
export function isAutoExposureRunning(settings) {
    const dualSlopeInUse = settings.ExistSupportedDSShutter > MULTIPLE_DOCS_NOT_IN_CURRENT
        && settings.DSShutterValue > 0;
    return Boolean(settings.AutoExposureOn) && !dualSlopeInUse;
}

function shutterModeItems(settings, dualSlope, translate) {
    const items = [];
    if (settings.ExistSupportedShutterLockMode > MULTIPLE_DOCS_NOTHING) {
        items.push(lockItem(translate("Locked Shutter Speed"), "op_shutterlock",
            settings.ExistSupportedShutterLockMode, settings.ShutterLockMode));
    }
    if (settings.ExistSupportedAutoExposure > MULTIPLE_DOCS_NOTHING) {
        items.push({
            value: ITEM.AUTO_EXPOSURE,
            text: translate("Auto Exposure..."),
            id: "op_auto_exposure",
            disabled: settings.ExistSupportedAutoExposure < MULTIPLE_DOCS_ALL || isDualSlopeOn(settings)
        });
    }
    if (dualSlope) {
        items.push(dualSlope);
    }
    return items;
}

function isDualSlopeOn(settings) {
    return settings.ExistSupportedDSShutterMode !== MULTIPLE_DOCS_NOTHING
        ? Boolean(settings.DSShutterMode) : settings.DSShutterValue > 0;
}

function dualSlopeItem(settings, translate) {
    const item = {value: ITEM.DUAL_SLOPE, text: translate("Dual Slope Shutter"), id: "op_dss_shutter"};
    if (settings.ExistSupportedDSShutter > MULTIPLE_DOCS_NOT_IN_CURRENT && settings.DSShutterAvairable) {
        if (settings.ExistSupportedDSShutterMode > MULTIPLE_DOCS_NOT_IN_CURRENT) {
            const on = Boolean(settings.DSShutterMode);
            return Object.assign(item, {palegreen: on, disabled: !on});
        }
        return Object.assign(item, {palegreen: settings.DSShutterValue > 0});
    }
    return settings.ExistSupportedDSShutter > MULTIPLE_DOCS_NOTHING
        ? Object.assign(item, {disabled: true}) : null;
}

function selectValue(settings, running) {
    return running ? ITEM.AUTO_EXPOSURE_RUNNING : settings.SelectValue;
}

function shutterSelection(settings, running, lowLight) {
    const value = selectValue(settings, running);
    if (lowLight && Number(value) < 0) {
        return String(lowLight.value);
    }
    return settings.Selected || running ? value : ITEM.EMPTY;
}

/** The slider runs from dark to bright, the list from bright to dark; a slider keeps within its range. */
function lowLightSlider(rowCount, value) {
    const max = rowCount - 1;
    return {max: max, value: Math.min(max, max - Number(value))};
}

function isLocked(level, locked) {
    return level > MULTIPLE_DOCS_NOTHING && Boolean(locked);
}

function lockItem(text, id, level, locked) {
    return {
        value: ITEM.LOCK,
        text: text,
        id: id,
        palegreen: Boolean(locked),
        disabled: level < MULTIPLE_DOCS_ALL
    };
}

function rowItems(rows, textOf, firstPrefix) {
    return rows.map((row, index) => ({
        value: row.Value,
        text: (index === 0 ? firstPrefix : "") + textOf(row)
    }));
}

/** "Channel 3" of "Channel 3: ": whose size it is that stands in no row. */
function channelOf(prefix) {
    return prefix.replace(/:\s*$/, "");
}

function emptyItem() {
    return {value: ITEM.EMPTY, text: ""};
}

function separator() {
    return {value: ITEM.SEPARATOR, text: "", className: "hr", disabled: true};
}

/** The separator bears the value of a row outside the list, so the first item that can be chosen counts. */
function boxOf(items, value) {
    const matches = items.map((item) => item.value === value && item.className !== "hr");
    return {items: items, selected: matches.indexOf(true)};
}
