/* global zel4_obj */
import {guardedHandler} from "./guard.js";

/** Expanders whose state outlives the panel, with the member of `zel4_obj` that keeps it. */
const KEPT = [
    {block: "#livecontrol_camera_list", member: "openCameraList"},
    {block: "#livecontrol_dsshutter_setting", member: "openDSShutter"},
    {block: "#livecontrol_lens_setting", member: "openLens"},
    {block: "#livecontrol_trigger_param", member: "openTriggerParam"}
];

/** Opens the expander of a block, and keeps that as if the user had clicked on it. */
export function openExpander(block) {
    setExpanded(titleOf(block), true);
    keepState(block);
}

/** Opens or closes what stands under an expander's title. */
function setExpanded($title, open) {
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
    KEPT.forEach(({block}) => titleOf(block).on("click", guardedHandler("expander", () => keepState(block))));
}

function keepState(block) {
    KEPT.filter((kept) => kept.block === block).forEach((kept) => {
        zel4_obj[kept.member] = isExpanded(titleOf(block));
    });
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
