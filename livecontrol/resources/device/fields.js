/* global zel4func */
import {bindAddressKeys} from "./address-keys.js";
import {clampNumber, isLastRight, lastLimits} from "./address-rules.js";

const ANY = {min: 0, max: 255};
const ENTER = 13;

// A box without a number takes the focus back; the one that loses it by that is not to do the same.
let takesBack = false;
// A number was changed by the user's latest press or key: nobody can have read the notice yet.
let isNoticeNew = false;
// The engine doesn't tell a held key's repeats from presses, but repeats no release: that one is what counts.
let isEnterDown = false;

/** The four boxes of an address whose ids begin alike. */
export function boxesOf(prefix) {
    return [1, 2, 3, 4].map((i) => $("#" + prefix + i));
}

export function valuesOf(boxes) {
    return boxes.map((box) => String(box.val()));
}

/** Shows numbers that nobody typed, so nothing is said about those that stood there. */
export function fill(boxes, numbers) {
    boxes.forEach((box, i) => unmark(box.val(numbers[i])));
}

/**
 * Lets boxes take digits only, and brings a number within its limits when its box is left; says so, since a number
 * that changes unseen would go to the camera.
 */
export function bindBoxes(boxes, isHost, mediator) {
    bindAddressKeys(boxes);
    boxes.forEach((box, i) => {
        const limits = () => isHost && i === 3 ? lastLimits(valuesOf(boxes)) : ANY;
        box.on("keypress", refuseOthers);
        box.on("keyup input", () => stripOthers(box));
        box.on("blur commit", () => leave(box, limits(), mediator));
    });
}

/**
 * Lets OK be pressed by mouse and, but on another button, by Enter, when that is let go. What is just typed counts. If
 * this very press changed a number, the user is to see that first: it is the next press that counts.
 */
export function bindOk($button, ok) {
    ["mousedown", "keydown"].forEach((type) => document.addEventListener(type, () => { isNoticeNew = false; }, true));
    $button.on("click", () => {
        $(document.activeElement).triggerHandler("commit");
        if (!isNoticeNew) {
            ok();
        }
    });
    $(document).on("keydown", (event) => {
        if (event.which === ENTER && !event.isDefaultPrevented() && !$(event.target).is("button, a")) {
            event.preventDefault();
            isEnterDown = true;
        }
    });
    $(document).on("keyup", (event) => {
        if (event.which === ENTER && isEnterDown) {
            isEnterDown = false;
            $button.trigger("click");
        }
    });
    $(window).on("blur", () => { isEnterDown = false; }); // let go over another window, it is not for this one
}

/** Whether the enabled ones of the boxes hold an address; `isHost` demands one that a camera can have. */
export function isAddressRight(boxes, isHost, dummy) {
    const open = boxes.filter((box) => !box.prop("disabled"));
    const numbers = valuesOf(boxes);
    return open.every((box) => zel4func.inputIpCheck(String(box.val()), dummy)) &&
        (!isHost || boxes[3].prop("disabled") || isLastRight(numbers));
}

/** Guards a name that can become a file's name, and trims it when the box is left. */
export function bindName($name) {
    zel4func.initializeTextfield4ProhibitionFilename("#" + $name.attr("id"));
    $name.on("blur commit", () => $name.val($.trim($name.val())));
}

function clampText(number, limits, mediator) {
    return mediator.translate("Changed to %1: the box takes %2 to %3.")
        .replace("%1", number).replace("%2", limits.min).replace("%3", limits.max);
}

function limitsText(text, limits, mediator) {
    return mediator.translate(text).replace("%1", limits.min).replace("%2", limits.max);
}

function refuseOthers(event) {
    const typed = event.which;
    const isControl = typed < 32 || event.ctrlKey || event.metaKey;
    if (!isControl && (typed < 48 || typed > 57)) {
        event.preventDefault();
    }
}

function stripOthers(box) {
    const text = String(box.val());
    const digits = text.replace(/[^0-9]/g, "");
    if (digits !== text) {
        box.val(digits);
    }
}

function leave(box, limits, mediator) {
    const number = clampNumber(String(box.val()), limits);
    if (number === null) {
        if (takeBack(box)) {
            say(box, limitsText("A number from %1 to %2 belongs here.", limits, mediator));
        }
        return;
    }
    const isOther = Number(box.val()) !== Number(number);
    box.val(number);
    if (isOther) {
        mark(box, clampText(number, limits, mediator));
    } else {
        unmark(box);
    }
}

function mark(box, text) {
    say(box, text);
    isNoticeNew = true;
}

function say(box, text) {
    box.addClass("clamped").data("notice", text);
    $("#notice").text(text);
}

/** The notice of another marked box comes back. */
function unmark(box) {
    box.removeClass("clamped");
    $("#notice").text($(".clamped").last().data("notice") || "");
}

function takeBack(box) {
    if (takesBack || !document.hasFocus()) {
        return false;
    }
    setTimeout(() => { // the engine ignores a focus that is set while another is lost
        takesBack = true;
        box.trigger("focus");
        takesBack = false;
    }, 0);
    return true;
}
