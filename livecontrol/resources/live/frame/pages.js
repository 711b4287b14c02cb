/* global livecontrol */
import {LIVE_PAGE} from "./live-page.js";
import {livecontrol_obj} from "./panel.js";
import {parseSettings} from "./json-text.js";
import {leaveVariable, recvVariableDrag} from "../variable/variable.js";

const FOCUSABLE = "a[href], button, input, select, textarea, [tabindex=0]";
const TAB = 9;
const left = new Map(); // the element in use when a page was left, by the page's number

/** Shows one page of the panel. The mediator remembers it, so a panel that is opened again comes back to it. */
export function changePage(pageNo) {
    left.set(livecontrol_obj.pageNo, document.activeElement);
    livecontrol_obj.pages.forEach((selector, number) => $(selector).toggle(number === pageNo));
    if (pageNo !== livecontrol_obj.pageNo) {
        if (livecontrol_obj.pageNo === LIVE_PAGE.VARIABLE) {
            leaveVariable();
        }
        livecontrol.setLastPage(pageNo);
        livecontrol_obj.pageNo = pageNo;
        livecontrol_obj.update();
    }
    releaseFocus();
}

/** Answers the host's wish for a page. Only the variable page can be asked for. */
export function callLiveControlPage(livepage) {
    if (livepage === LIVE_PAGE.VARIABLE && livecontrol.prepareVariableSetting()) {
        livecontrol_obj.initializeVariable();
        changePage(LIVE_PAGE.VARIABLE);
    }
}

/** Reads the rectangle that the user dragged on the image, if the page that shows has one. */
export function recvRectArea() {
    if (livecontrol_obj.pageNo === LIVE_PAGE.VARIABLE) {
        recvVariableDrag();
    } else if (livecontrol_obj.pageNo === LIVE_PAGE.AUTO_EXPOSURE) {
        livecontrol_obj.recvAutoExposureArea();
    } else if (livecontrol_obj.pageNo === LIVE_PAGE.HW_IMAGE_TRIGGER) {
        livecontrol_obj.recvHWImageTriggerArea();
    }
}

/** Starts what belongs to a page that was the last one when the panel closed. */
export function startPage(pageNo) {
    if (pageNo === LIVE_PAGE.AUTO_EXPOSURE) {
        livecontrol_obj.startAutoExposure();
    } else if (pageNo === LIVE_PAGE.HW_IMAGE_TRIGGER) {
        livecontrol_obj.startHWImageTrigger();
    } else if (pageNo === LIVE_PAGE.VARIABLE) {
        restartVariable();
    }
}

/** The setting went on without its page, whose members have gone with the panel: it begins anew, with a preset. */
function restartVariable() {
    const status = parseSettings(livecontrol.getControlStatus());
    if (status && status.IsVariableSetting) {
        livecontrol_obj.initializeVariable();
        livecontrol.changeVariableResolutionInputType(livecontrol_obj.variableResolutionPreset);
    }
}

function isUsable(element) {
    return !element.disabled && element.tabIndex >= 0 && $(element).is(":visible");
}

/** Tab goes on where the user was when the page was left, or begins at the page's first control. */
export function bindTabIntoPage() {
    $(document).off("keydown.liveTab").on("keydown.liveTab", (event) => {
        const isOpen = event.which === TAB && !event.shiftKey && document.activeElement === document.body;
        const page = isOpen ? $(livecontrol_obj.pages[livecontrol_obj.pageNo]) : $();
        const before = left.get(livecontrol_obj.pageNo);
        const isThere = before && page.length && $.contains(page[0], before) && isUsable(before);
        const target = isThere ? before : page.find(FOCUSABLE).get().find(isUsable);
        if (target) {
            event.preventDefault();
            target.focus();
        }
    });
}

/** The keys are to reach the host's window, not a control of the page before. */
function releaseFocus() {
    const focussed = document.activeElement;
    if (focussed && focussed !== document.body) {
        focussed.blur();
    }
}
