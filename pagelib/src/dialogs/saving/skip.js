import $ from "../../jquery.js";

// How many frames are left out, in frames or in milliseconds. The mediator knows the limits and the grid.

const MILLISECONDS = 1;

function show(mediator) {
    const isTime = mediator.getSkipMode() === MILLISECONDS;
    const least = mediator.getSkipMinFrames();
    window.zel4func.selectItemSumoSelect($("#skip_unit"), String(mediator.getSkipMode()));
    $("#skip_value").spinnerStopFire("option", {
        min: least, max: mediator.getSkipMaxFrames(), step: isTime ? least : 1, decimal: isTime
    }).spinnerStopFire("value", mediator.getSkipFrames());
}

/** @param {Function} targets - gives the documents and partitions in hand */
export function skipFields(mediator, targets) {
    const refresh = () => {
        mediator.refreshSkipFrame(targets());
        show(mediator);
    };
    window.zel4func.initSumoSelect($("#skip_unit"), 130);
    $("#skip_value").spinnerStopFire({
        min: 1, max: 1, step: 1, fire: (event, ui) => {
            mediator.setSkipFrames(Number(ui.value));
            show(mediator);
        }
    });
    $("#skip_unit").on("change", () => {
        mediator.setSkipMode(Number($("#skip_unit").val()));
        refresh();
    });
    return {refresh};
}
