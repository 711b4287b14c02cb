import $ from "../jquery.js";

// A scroll area is never squeezed below two rows of a list.
const SMALLEST = 56;

function isStretchable(node) {
    return getComputedStyle(node).maxHeight === "none";
}

/**
 * Fits the visible scroll areas (class `scrollarea`) into the window, so that a page shows its buttons without
 * scrolling as a whole. An area with a maximum height of its own is left alone.
 * @param {number} smallestPage height in pixels below which the page scrolls rather than squeeze its areas further
 */
export function scrollarea_resize(smallestPage) {
    // Also of such that were squeezed before the style sheet with their maximum had come.
    const areas = $(".scrollarea:visible").css("height", "").filter((_, node) => isStretchable(node));
    if (!areas.length) {
        return;
    }
    const available = Math.max(window.innerHeight, Number(smallestPage) || 0);
    let excess = document.body.scrollHeight - available;
    areas.get().reverse().forEach((node) => {
        if (excess > 0) {
            const height = Math.max(SMALLEST, node.offsetHeight - excess);
            excess -= node.offsetHeight - height;
            $(node).css("height", `${height}px`);
        }
    });
}
