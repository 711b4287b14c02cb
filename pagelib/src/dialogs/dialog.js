import $ from "../jquery.js";

/**
 * What every dialog's page does at load: style, texts, log, Enter for the default button.
 * @param {Object} mediator the dialog's script object
 * @param {string} [defaultButton] selector of the button that Enter presses
 */
export function startDialog(mediator, defaultButton) {
    window.zel4func.applyStyle(mediator);
    window.zel4func.localize(mediator);
    window.zel4func.enableUserOperationLog(mediator);
    if (defaultButton) {
        $(document).on("keydown", (event) => {
            if (event.which === 13 && !$(event.target).closest("button, a, textarea, .SumoSelect").length) {
                event.preventDefault();
                $(defaultButton).filter(":enabled").trigger("click");
            }
        });
    }
}
