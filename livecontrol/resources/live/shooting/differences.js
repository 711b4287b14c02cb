/* global livecontrol */
import {parseSettings} from "../frame/json-text.js";

// Where the selected cameras differ. The boxes show the value of the current camera; a mark beside a box says that
// others have another one, and in the open list the other cameras stand at their rows.

const BOXES = {
    rate: "#livecontrol_framerate",
    shutter: "#livecontrol_shutterspeed",
    resolution: "#livecontrol_resolution"
};
// How many stand at a row of the list, and in a line of the tip.
const ROW_NAMES = 1;
const TIP_NAMES = 6;
const TIP_LINES = 8;

/** Comes after the boxes are filled. A host without the script object leaves them unmarked. */
export function refreshDifferences() {
    const differing = window.selected_cameras ? parseSettings(window.selected_cameras.differing()) || {} : {};
    const several = $("#livecontrol_camera_item_list").children("[aria-selected=true]").length > 1;
    Object.keys(BOXES).forEach((key) => {
        const $select = $(BOXES[key]);
        const groups = groupsOf(differing[key] || []);
        // What shows is of one camera: picked again, it goes to the others.
        $select.attr("data-repeats", several ? "true" : null);
        $select.children("option").attr("data-note", null)
            .each((_, option) => noteAt($(option), groups));
        markBox($select, groups);
    });
}

/** The cameras of each value, in the order of the first of each. */
function groupsOf(cameras) {
    const groups = [];
    cameras.forEach(({camera, text}) => {
        const group = groups.find((other) => other.text === text);
        if (group) {
            group.cameras.push(camera);
        } else {
            groups.push({text: text, cameras: [camera]});
        }
    });
    return groups;
}

function noteAt($option, groups) {
    const group = groups.find((one) => plain(one.text) === plain($option.text()));
    if (group) {
        $option.attr("data-note", namesOf(group.cameras, ROW_NAMES));
    }
}

function markBox($select, groups) {
    const tip = [livecontrol.translate("The selected cameras differ:")]
        .concat(groups.slice(0, TIP_LINES).map((group) => `${group.text}: ${namesOf(group.cameras, TIP_NAMES)}`))
        .concat(groups.length > TIP_LINES ? [`... (+${groups.length - TIP_LINES})`] : []).join("\n");
    const $mark = $select.closest(".control").children(".differs");
    $mark.toggle(groups.length > 0).attr({title: groups.length ? tip : null, "aria-label": groups.length ? tip : null});
}

function namesOf(cameras, most) {
    const rest = cameras.length - most;
    return cameras.slice(0, most).join(", ") + (rest > 0 ? ` (+${rest})` : "");
}

/** Digits may be grouped in one text and not in the other. */
function plain(text) {
    return text.replace(/[,\s]/g, "");
}
