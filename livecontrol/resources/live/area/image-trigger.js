/* global livecontrol */
import {guarded, guardedHandler} from "../frame/guard.js";
import {histogramBlock} from "./histogram-block.js";
import {bindLevel, levelIn, setLevel, showLevel} from "./level-box.js";
import {LIVE_PAGE} from "../frame/live-page.js";
import {bindPageButtons, offerSending} from "../frame/page-buttons.js";
import {livecontrol_obj} from "../frame/panel.js";
import {refusedPage} from "./refused-page.js";
import {areaBoxes} from "./select-area.js";
import {parseSettings} from "../frame/json-text.js";

// The page of the hardware image trigger: the camera judges a rectangle of the image by itself.

const PREFIX = "livecontrol_hwimage_trigger_";
const ON = `#${PREFIX}on`;
const VALUE = `#${PREFIX}value`;
const RANGE = `#${PREFIX}range`;
const STATUS = `#${PREFIX}status`;
const STATUS_PERIOD = 200; // ms, as fast as the word can be read

const area = areaBoxes(PREFIX, {naturalHeight: false});
const histogram = histogramBlock(PREFIX);
const page = refusedPage(typed, showTyped);

export const sendHWImageTriggerArea = area.send;
export const recvHWImageTriggerArea = area.receive;

/** Enters the setting mode of the host. The page shows after it. */
export function startHWImageTrigger() {
    page.forget();
    histogram.show(false);
    livecontrol.hWImageTriggerStart();
}

/** Rebuilds the page from what the host reports; the boxes' rectangle is then what the plug-in holds. */
export function refreshHWImageTrigger() {
    page.refresh(refresh);
}

function refresh() {
    followStatus(false); // it would fail as well, behind the box that tells why
    const settings = parseSettings(livecontrol.getHWImageTriggerSettings());
    offerSending(PREFIX, Boolean(settings));
    if (!settings) {
        return;
    }
    $(ON).prop("checked", settings.HWImageTriggerOn);
    area.setLimits(settings.HWImageTriggerArea, settings.HWImageTriggerPos);
    area.show(settings.HWImageTriggerArea, settings.HWImageTriggerPos);
    showLevel(VALUE, settings.HWImageTriggerValue, settings.HWImageTriggerValue.Max);
    showLevel(RANGE, settings.HWImageTriggerRange, settings.HWImageTriggerRange.Max);
    showStatus(settings.HWImageTriggerStatus);
    followStatus(settings.HWImageTriggerOn);
    histogram.show(settings.ShowHistgram);
    area.sendReported(settings.HWImageTriggerArea, settings.HWImageTriggerPos);
}

export function bindHWImageTrigger() {
    area.bind();
    bindLevel(VALUE);
    bindLevel(RANGE);
    histogram.bind();
    $(ON).on("change", guardedHandler(ON, () => {
        followStatus(false);
        livecontrol.setImageTriggerObserver($(ON).prop("checked"));
        if (readStatus()) { // before the timer, which runs on behind the box of a reading that fails
            followStatus($(ON).prop("checked"));
        }
    }));
    bindPageButtons(PREFIX, apply, () => livecontrol.hWImageTriggerEnd());
}

/** Ends what goes on by itself: the panel closes. */
export function stopHWImageTrigger() {
    followStatus(false);
}

function typed() {
    return {value: levelIn(VALUE), range: levelIn(RANGE)};
}

function showTyped(kept) {
    setLevel(VALUE, kept.value);
    setLevel(RANGE, kept.range);
}

function apply() {
    return page.send(() => livecontrol.setHWImageTrigger(pageText()));
}

function pageText() {
    const numberIn = (name) => $(`#${PREFIX}${name}`).spinnerRealtimeFire("value");
    return JSON.stringify({
        HWImageTriggerOn: $(ON).prop("checked"),
        HWImageTriggerArea: {Width: numberIn("area_w"), Height: numberIn("area_h")},
        HWImageTriggerPos: {X: numberIn("pos_x"), Y: numberIn("pos_y")},
        HWImageTriggerValue: levelIn(VALUE),
        HWImageTriggerRange: levelIn(RANGE),
        ShowHistgram: histogram.isOn()
    });
}

function showStatus(status) {
    if ($(STATUS).text() !== status) {
        $(STATUS).text(status).toggleClass("triggered", status === "Triggered");
    }
}

let statusTimer = 0;

/** The status goes with each picture. The page asks for it alone: an update would take back what is being typed. */
function followStatus(on) {
    clearInterval(statusTimer);
    statusTimer = on ? setInterval(() => guarded(STATUS, readStatus), STATUS_PERIOD) : 0;
}

/** Shows what can be read. Otherwise the status is not asked for any more, and the result is false. */
function readStatus() {
    const isShown = livecontrol_obj.pageNo === LIVE_PAGE.HW_IMAGE_TRIGGER
        && window.livecontrol_obj === livecontrol_obj && $(STATUS).length > 0;
    const status = isShown ? livecontrol.getHWImageTriggerStatus($(ON).prop("checked")) : "";
    if (status) {
        showStatus(status);
    } else {
        followStatus(false); // the page has gone, or its camera, of which the mediator has told
    }
    return Boolean(status);
}
