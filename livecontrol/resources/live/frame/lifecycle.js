/* global livecontrol, deviceList, devicelist_obj, PREF_KEY_LIVECONTROL_VIEW_DEVICESETTING */
import {stopHWImageTrigger} from "../area/image-trigger.js";
import {LIVE_PAGE} from "./live-page.js";
import {livecontrol_obj} from "./panel.js";
import {startPage} from "./pages.js";

/** The mediator's signals, with the member of `livecontrol_obj` that answers each. */
const CONNECTIONS = [
    {signal: "open", slot: "open"},
    {signal: "update", slot: "update"},
    {signal: "close", slot: "close"},
    {signal: "signalCallLiveControlPage", slot: "callLiveControlPage"},
    {signal: "signalSetVariableRegist", slot: "setVariableRegist"},
    {signal: "signalPhaseAdjustWarning", slot: "update"}
];

export function connectAll() {
    CONNECTIONS.forEach((c) => livecontrol[c.signal].connect(livecontrol_obj[c.slot]));
}

/** What the page takes from libraries of the host's document, by the file that brings it. */
const LIBRARIES = {
    "jquery-ui.js": () => $.ui,
    "sumoselect.js": () => $.fn.SumoSelect,
    "hogan.js": () => window.Hogan,
    "const_types.js": () => typeof MULTIPLE_DOCS_ALL !== "undefined",
    "const_pref.js": () => typeof PREF_KEY_LIVECONTROL_VIEW_DEVICESETTING !== "undefined",
    "custom_control.js": () => $.fn.spinnerStopFire,
    "zel4func.js": () => window.zel4func,
    "devicelist.js": () => window.devicelist_obj
};

/** A page that lacks one of them shows half of what it should: the user is told once, when it opens. */
function tellMissing() {
    const missing = Object.keys(LIBRARIES).filter((name) => !LIBRARIES[name]());
    if (missing.length > 0) {
        livecontrol.alert("The control panel can't work: " + missing.join(", ") + " is missing.");
    }
}

/** The panel opens: on the page where it was left, or on the device settings when the host asks for them. */
export function open() {
    tellMissing();
    livecontrol.onOpen();
    devicelist_obj.setMediator(deviceList);
    devicelist_obj.setSettingMode(false);
    devicelist_obj.setAddButtonName("#livecontrol_adddevice");
    devicelist_obj.setDeleteAllButtonName("#livecontrol_deleteall");
    if (livecontrol.getPrefBool(PREF_KEY_LIVECONTROL_VIEW_DEVICESETTING)) {
        livecontrol.setLastPage(LIVE_PAGE.DEVICE_SETTING);
        livecontrol.setPrefBool(PREF_KEY_LIVECONTROL_VIEW_DEVICESETTING, false);
    }
    const page = livecontrol.getLastPage();
    startPage(page);
    livecontrol_obj.changePage(page);
}

/** The panel closes: from now on the mediator's signals are another page's business. */
export function close() {
    stopHWImageTrigger();
    livecontrol.onClosed();
    CONNECTIONS.forEach((c) => livecontrol[c.signal].disconnect(livecontrol_obj[c.slot]));
}

export function setVariableRegist(channel) {
    livecontrol_obj.variableSelectChannel = channel;
}
