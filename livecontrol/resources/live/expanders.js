/* global zel4_obj */
import {guardedHandler} from "./guard.js";

/** Expanders whose state outlives the panel, with the member of `zel4_obj` that keeps it. */
const KEPT = [
    {block: "#livecontrol_camera_list", member: "openCameraList"},
    {block: "#livecontrol_dsshutter_setting", member: "openDSShutter"},
    {block: "#livecontrol_lens_setting", member: "openLens"},
    {block: "#livecontrol_trigger_param", member: "openTriggerParam"}
];

/** Opens or closes what stands under an expander's title. */
export function setExpanded($title, open) {
    $title.toggleClass("expanded", open).attr("aria-expanded", String(open)).next(".expand-body").toggle(open);
}

/** Closes all expanders but those that were open when the panel was last seen. */
export function restoreExpanders() {
    setExpanded($("#panels .switch-expand"), false);
    KEPT.filter((kept) => zel4_obj[kept.member]).forEach((kept) => setExpanded(titleOf(kept.block), true));
}

export function bindExpanders() {
    $("#panels .switch-expand").on("click", guardedHandler("expander", function () {
        toggle($(this));
    }));
    KEPT.forEach((kept) => titleOf(kept.block).on("click", guardedHandler("expander", function () {
        zel4_obj[kept.member] = isExpanded($(this));
    })));
}

function toggle($title) {
    setExpanded($title, !isExpanded($title));
}

function isExpanded($title) {
    return $title.hasClass("expanded");
}

function titleOf(block) {
    return $(block).children(".switch-expand");
}
