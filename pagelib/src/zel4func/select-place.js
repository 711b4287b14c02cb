// The open list is fixed to the window, so that no scroll area cuts it off.
const LARGEST = 320;
const SMALLEST = 60;
const MARGIN = 4;

/** Puts an open list under its box, or over it where there is more room; it scrolls where it is too long for either. */
export function placeList(sumo, preferUp) {
    const box = sumo.CaptionCont[0].getBoundingClientRect();
    const below = window.innerHeight - box.bottom - MARGIN;
    const above = box.top - MARGIN;
    sumo.ul.css("max-height", "");
    const wanted = Math.min(sumo.ul[0].scrollHeight + 2, LARGEST);
    const up = preferUp ? above >= Math.min(wanted, below) : below < wanted && above > below;
    const height = Math.max(SMALLEST, Math.min(wanted, up ? above : below));
    sumo.ul.css("max-height", `${height}px`);
    sumo.optDiv.toggleClass("up", up).css({
        "min-width": `${box.width}px`,
        "max-width": `${window.innerWidth - 2 * MARGIN}px`
    });
    const width = sumo.optDiv.outerWidth();
    sumo.optDiv.css({
        left: `${Math.max(MARGIN, Math.min(box.left, window.innerWidth - MARGIN - width))}px`,
        top: up ? "auto" : `${box.bottom}px`,
        bottom: up ? `${window.innerHeight - box.top}px` : "auto"
    });
    const selected = sumo.ul.find("li.opt.selected")[0];
    sumo.ul.scrollTop(selected ? selected.offsetTop - height / 2 : 0);
}
