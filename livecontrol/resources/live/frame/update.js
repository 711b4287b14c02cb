/* global livecontrol, zel4func */
import {refreshConnectedCameraShowing, refreshDisplayInfo} from "../cameras/cameras.js";
import {excludeAutoExposure} from "../shooting/dualslope.js";
import {guarded} from "./guard.js";
import {LIVE_PAGE} from "./live-page.js";
import {focusWarning} from "../options/options.js";
import {livecontrol_obj} from "./panel.js";
import {applyRecordLock} from "./recordlock.js";
import {blocksOf} from "./sequence.js";

/** Rebuilds what the page that shows holds, from what the host reports. Nothing is remembered between two updates. */
export function update() {
    if (livecontrol.isUpdateIgnore() || !livecontrol.isLiveMode()) {
        return;
    }
    if (needsCamera(livecontrol_obj.pageNo) && !livecontrol.isConnected()) {
        livecontrol_obj.changePage(LIVE_PAGE.LIST);
        return;
    }
    guarded("display info", refreshDisplayInfo);
    guarded("connected cameras", refreshConnectedCameraShowing);
    blocksOf(livecontrol_obj.pageNo).forEach((block) => guarded(block.name, block.refresh));
    guarded("hidden field", leaveHiddenField);
    applyState();
    closeUp();
}

/**
 * The trigger's block goes with the link and takes the field that the user typed in with it, which keeps the keyboard.
 * What is half typed there is dropped: it would be sent when the block is back and the field is left.
 */
function leaveHiddenField() {
    const $focused = $("#livecontrol_trigger_param").find(document.activeElement);
    if ($focused.is("input.spinner:hidden")) {
        zel4func.disable($focused, true);
        $focused.trigger("blur");
        zel4func.disable($focused, false);
    }
}

/** The rules come after the refreshes, which enable controls on their own; the recording lock after the rules. */
export function applyState() {
    guarded("rules", () => zel4func.setDisable(livecontrol, livecontrol_obj.controls));
    guarded("recording lock", applyRecordLock);
    guarded("warning of the links", focusWarning);
    guarded("dual slope against auto exposure", excludeAutoExposure);
}

function closeUp() {
    guarded("select boxes", () => {
        zel4func.reloadSumoSelect("select.SumoUnder");
        zel4func.hideSelectBox();
    });
    guarded("scroll areas", () => zel4func.scrollarea_resize(400));
}

function needsCamera(pageNo) {
    return pageNo !== LIVE_PAGE.LIST && pageNo !== LIVE_PAGE.DEVICE_SETTING;
}
