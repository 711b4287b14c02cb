/* global editInfo */
import $ from "../jquery.js";

const PREVIEW = "#preview";

let timer = null;

/** Several changes of one moment, such as an item that leaves one list for another, make one picture. */
export function drawSoon() {
    clearTimeout(timer);
    timer = setTimeout(draw, 0);
}

/** As many pixels as the screen has there. */
function draw() {
    const ratio = window.devicePixelRatio || 1;
    const pixels = (length) => Math.max(1, Math.floor(length * ratio));
    const picture = editInfo.getThumbnail(pixels($(PREVIEW).width()), pixels($(PREVIEW).height()));
    const [width, height] = editInfo.getThumbnailResolution();
    const isThere = picture !== "" && width > 0;
    $(`${PREVIEW} p`).toggle(!isThere);
    $(`${PREVIEW} img`).toggle(isThere);
    if (isThere) {
        $(`${PREVIEW} img`).attr("src", `data:image/png;base64,${picture}`)
            .css({width: `${width / ratio}px`, height: `${height / ratio}px`});
    }
}
