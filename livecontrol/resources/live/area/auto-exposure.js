/* global livecontrol, zel4func */
import {guardedHandler} from "../frame/guard.js";
import {histogramBlock} from "./histogram-block.js";
import {bindLevel, levelIn, setLevel, showLevel} from "./level-box.js";
import {bindPageButtons, offerSending} from "../frame/page-buttons.js";
import {livecontrol_obj} from "../frame/panel.js";
import {refusedPage} from "./refused-page.js";
import {noneBox} from "../frame/none-box.js";
import {areaBoxes} from "./select-area.js";
import {levelMaxima} from "./select-area-math.js";
import {clearBox, fillBox} from "../frame/select-box.js";
import {parseSettings} from "../frame/json-text.js";

const PREFIX = "livecontrol_auto_exposure_";
const ON = `#${PREFIX}on`;
const VALUE = `#${PREFIX}value`;
const RANGE = `#${PREFIX}range`;
const MAX_TIME = `#${PREFIX}max_time`;
const BOX_WIDTH = 90;

const area = areaBoxes(PREFIX);
const histogram = histogramBlock(PREFIX);
const page = refusedPage(typed, showTyped);

export const sendExposureArea = area.send;
export const recvAutoExposureArea = area.receive;

/** Enters the setting mode of the host. The page shows after it. */
export function startAutoExposure() {
    page.forget();
    $("#livecontrol_dsshutter_setting").hide();
    histogram.show(false);
    livecontrol.autoExposureStart();
}

/** Rebuilds the page from what the host reports; the boxes' rectangle is then what the plug-in holds. */
export function refreshAutoExposure() {
    page.refresh(refresh);
}

function refresh() {
    const settings = parseSettings(livecontrol.getAutoExposureSettings());
    offerSending(PREFIX, Boolean(settings));
    if (!settings) {
        clearBox($(MAX_TIME));
        return;
    }
    $(ON).prop("checked", settings.AutoExposureOn);
    area.setLimits(settings.AutoExposureArea, settings.AutoExposurePos);
    area.show(settings.AutoExposureArea, settings.AutoExposurePos);
    showLevels(settings.AutoExposureValue, settings.AutoExposureRange);
    fillBox($(MAX_TIME), maxTimeBox(settings.AutoExposureMaxTime));
    histogram.show(settings.ShowHistgram);
    area.sendReported(settings.AutoExposureArea, settings.AutoExposurePos);
}

export function initExposureBox() {
    zel4func.initSumoSelect(MAX_TIME, BOX_WIDTH, true);
}

export function bindAutoExposure() {
    area.bind();
    bindLevel(VALUE, (level) => limitOther(RANGE, level));
    bindLevel(RANGE, (level) => limitOther(VALUE, level));
    histogram.bind();
    $(ON).on("change", guardedHandler(ON, () => livecontrol.setAutoExposureSwitch($(ON).prop("checked"))));
    bindPageButtons(PREFIX, apply, () => livecontrol.autoExposureEnd());
}

function typed() {
    return {value: levelIn(VALUE), range: levelIn(RANGE), maxTime: $(MAX_TIME).val()};
}

function showTyped(kept) {
    limitOther(RANGE, kept.value);
    limitOther(VALUE, kept.range);
    setLevel(VALUE, kept.value);
    setLevel(RANGE, kept.range);
    zel4func.selectItemSumoSelect($(MAX_TIME), kept.maxTime);
}

function apply() {
    return page.send(() => livecontrol.setAutoExposure(pageText()));
}

function pageText() {
    return JSON.stringify({
        AutoExposureOn: $(ON).prop("checked"),
        AutoExposureArea: {Width: numberIn(`#${PREFIX}area_w`), Height: numberIn(`#${PREFIX}area_h`)},
        AutoExposurePos: {X: numberIn(`#${PREFIX}pos_x`), Y: numberIn(`#${PREFIX}pos_y`)},
        AutoExposureValue: levelIn(VALUE),
        AutoExposureRange: levelIn(RANGE),
        AutoExposureMaxTime: chosenMaxTime(),
        ShowHistgram: histogram.isOn()
    });
}

function showLevels(value, range) {
    livecontrol_obj.autoExposureUpperLimit =
        livecontrol.hasAutoExposureUpperLimit() ? livecontrol.getAutoExposureUpperLimit() : null;
    const maxima = levelMaxima(value, range, livecontrol_obj.autoExposureUpperLimit);
    showLevel(VALUE, value, maxima.value);
    showLevel(RANGE, range, maxima.range);
}

/** The row of the list; -1, which leaves the camera's own time, while none is chosen. */
function chosenMaxTime() {
    const chosen = $(MAX_TIME).val();
    return chosen === null ? -1 : Number(chosen);
}

/** Target and range together stay within the camera's limit. */
function limitOther(box, level) {
    const limit = livecontrol_obj.autoExposureUpperLimit;
    if (limit !== null && limit !== undefined) {
        $(box).spinnerStopFire("option", "max", limit - level);
    }
}

function maxTimeBox(maxTime) {
    const items = maxTime.AutoExposureMaxTimes.map((row) => ({value: row.Value, text: row.Text}));
    if (!items.length) {
        return noneBox();
    }
    return {items: items, selected: items.findIndex((item) => item.value === String(maxTime.SelectValue))};
}

function numberIn(box) {
    return $(box).spinnerRealtimeFire("value");
}
