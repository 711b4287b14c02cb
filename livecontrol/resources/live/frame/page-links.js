/* global livecontrol */
import {guardedHandler} from "./guard.js";
import {LIVE_PAGE} from "./live-page.js";
import {bindTabIntoPage} from "./pages.js";
import {livecontrol_obj} from "./panel.js";

/** Binds what leads elsewhere: to another page of the panel or to the host's preferences. */
export function bindLinks() {
    bindTabIntoPage();
    onClick("#livecontrol_open_devicesetting", () => livecontrol_obj.changePage(LIVE_PAGE.DEVICE_SETTING));
    onClick("#livecontrol_devicesetting_closebutton",
        () => livecontrol_obj.changePage(LIVE_PAGE.LIST));
    onClick("#livecontrol_io_setting", () => livecontrol.openPrefsDialog("s_io"));
    onClick("#livecontrol_recording_setting", () => livecontrol.openPrefsDialog("s_record"));
    onClick("#livecontrol_save_button", () => livecontrol.save());
    onClick("#livecontrol_load_button", () => {
        livecontrol.load();
        livecontrol.updateUI();
        livecontrol.checkRestoredPrefs();
    });
    onClick("#livecontrol_ethernet_setting", () => livecontrol.openPrefsEthernetSettings());
}

function onClick(selector, action) {
    $(selector).on("click", guardedHandler(selector, action));
}
