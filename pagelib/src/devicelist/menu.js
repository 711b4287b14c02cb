import $ from "../jquery.js";

// The menu of a row: what its buttons do, in words, by mouse and keys.

const KEY = {ENTER: 13, ESCAPE: 27, SPACE: 32, UP: 38, DOWN: 40, TAB: 9};
const EVENTS = ".zelRowMenu";

function close(menu, back) {
    $(document).add(window).off(EVENTS);
    menu.remove();
    if (back) {
        back();
    }
}

function move(menu, step) {
    const entries = menu.children();
    const at = entries.index(document.activeElement);
    entries.eq((at + step + entries.length) % entries.length).trigger("focus");
}

/**
 * Opens it, in place of another.
 * @param {{label: string, action: function()}[]} entries the labels as the user reads them
 * @param {{x: number, y: number}} at a point of the window
 * @param {function()} back gives the focus back
 */
export function openMenu(entries, at, back) {
    $(".row-menu").remove();
    if (!entries.length) {
        return;
    }
    const menu = $("<ul>").addClass("row-menu").attr("role", "menu");
    entries.forEach(({label, action}) => {
        $("<li>").attr({role: "menuitem", tabindex: -1}).text(label).appendTo(menu).on("click", () => {
            close(menu, back);
            action();
        });
    });
    menu.appendTo("body").css({
        left: Math.max(0, Math.min(at.x, $(window).width() - menu.outerWidth())),
        top: Math.max(0, Math.min(at.y, $(window).height() - menu.outerHeight()))
    });
    menu.on("keydown", (event) => {
        event.preventDefault();
        event.stopPropagation();
        if (event.which === KEY.UP || event.which === KEY.DOWN) {
            move(menu, event.which === KEY.UP ? -1 : 1);
        } else if (event.which === KEY.ENTER || event.which === KEY.SPACE) {
            $(document.activeElement).trigger("click");
        } else if (event.which === KEY.ESCAPE || event.which === KEY.TAB) {
            close(menu, back);
        }
    }).on("mouseenter", "li", (event) => $(event.currentTarget).trigger("focus"));
    menu.children().first().trigger("focus");
    // The press that opens it is still on its way.
    setTimeout(() => {
        $(document).on(`mousedown${EVENTS}`, (event) => {
            if (!$(event.target).closest(menu).length) {
                close(menu);
            }
        });
        $(window).on(`blur${EVENTS}`, () => close(menu));
    }, 0);
}
