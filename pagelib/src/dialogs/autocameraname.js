import $ from "../jquery.js";
import {matchingNames} from "./matching-names.js";

// Completion of camera names from the user's list, in fields of the class auto-cameraname.

const GAP = 4; // px

// From below the field to the dialog's buttons, which the list must not cover.
function roomBelow(field) {
    const buttons = $(".dialog-buttons").first();
    const end = buttons.length ? buttons.offset().top : $(window).height();
    return end - field.offset().top - field.outerHeight() - GAP;
}

function installWidget() {
    $.widget("zel.cameraNames", $.ui.autocomplete, {
        _renderMenu(list, names) {
            let category = "";
            names.forEach((name) => {
                if (name.category !== category) {
                    category = name.category;
                    $("<li>", {class: "ui-autocomplete-category"}).text(category).appendTo(list);
                }
                this._renderItemData(list, name);
            });
        },
        _resizeMenu() {
            this.widget().outerWidth(this.element.outerWidth()).css("max-height", roomBelow(this.element));
        },
        _create() {
            this._super();
            this.widget().menu("option", "items", "> :not(.ui-autocomplete-category)");
        }
    });
}

window.autocameraname_obj = {
    /** @param {Object} mediator script object with existsAutoCompleteFile and autoCompleteCameraList */
    create(mediator) {
        if (!mediator.existsAutoCompleteFile()) {
            return;
        }
        const names = JSON.parse(mediator.autoCompleteCameraList() || "[]");
        if (!$.zel || !$.zel.cameraNames) {
            installWidget();
        }
        $(".auto-cameraname").cameraNames({
            minLength: 0,
            delay: 0,
            source: (request, answer) => answer(matchingNames(names, request.term))
        }).on("keydown", function open(event) {
            if (event.which === $.ui.keyCode.DOWN && !$(this).cameraNames("widget").is(":visible")) {
                $(this).cameraNames("search", "");
            }
        });
    }
};
