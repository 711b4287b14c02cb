import $ from "../jquery.js";

// What a field takes, shown for a while under a field that has refused a text.

const SHOWN = 6000; // ms
const EDGE = 8; // px that stay free at the sides of what it is shown in
const TIMER = "zelHintTimer";

const TEXTS = {
    whole: {free: "Whole numbers only", bounded: "Whole numbers from %1 to %2 only"},
    any: {free: "Numbers only", bounded: "Numbers from %1 to %2 only"}
};

function hasLimits({min, max}) {
    return min !== null && max !== null && min !== undefined && max !== undefined;
}

function hintText(settings) {
    const texts = settings.decimal ? TEXTS.any : TEXTS.whole;
    const text = hasLimits(settings) ? texts.bounded : texts.free;
    // The script that brings the spinners has no page's mediator of its own.
    const mediator = window.zel4func && window.zel4func.pageMediator();
    const translated = (mediator && mediator.translate(text)) || text;
    return translated.replace("%1", settings.min).replace("%2", settings.max);
}

/** Takes the hint of a spinner away. */
export function hideHint(frame) {
    clearTimeout($.data(frame[0], TIMER));
    frame.children(".zel-hint").remove();
}

/** It grows to the left, where a field at the left edge has no room for it, and stands in several lines if it must. */
function fitInto(hint, frame) {
    const room = frame.closest(".ui-dialog, body")[0];
    if (!room) {
        return;
    }
    const box = room.getBoundingClientRect();
    const most = room.clientWidth - 2 * EDGE;
    if (most > 0 && hint.outerWidth() > most) {
        hint.css({whiteSpace: "normal", boxSizing: "border-box", width: most});
    }
    const place = hint[0].getBoundingClientRect();
    if (place.left < box.left) {
        const left = box.left + EDGE - frame[0].getBoundingClientRect().left;
        hint.css({left: Math.min(0, Math.max(left, box.left + room.clientWidth - EDGE - place.width -
            frame[0].getBoundingClientRect().left)), right: "auto"});
    }
}

/**
 * Shows what a spinner takes.
 * @param {jQuery} frame the spinner's element with its buttons
 * @param {Object} settings the spinner's options
 */
export function showHint(frame, settings) {
    hideHint(frame);
    const hint = $("<span>", {class: "zel-hint", role: "alert"}).text(hintText(settings)).appendTo(frame);
    fitInto(hint, frame);
    $.data(frame[0], TIMER, setTimeout(() => hideHint(frame), SHOWN));
}
