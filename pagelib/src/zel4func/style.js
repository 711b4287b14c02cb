import $ from "../jquery.js";
import {setPageMediator} from "./page-mediator.js";

const LINK_ID = "zel_style";

/**
 * Gives the page the colors of the user's style.
 * @param {Object|string} source script object with getStyle, or "dark" or "light"
 */
export function applyStyle(source) {
    const isName = typeof source === "string";
    if (!isName) {
        setPageMediator(source);
    }
    const name = String(isName ? source : source.getStyle()).toLowerCase() === "light" ? "light" : "dark";
    const address = `qrc:/ui-${name}.css`;
    let link = $(`#${LINK_ID}`);
    if (!link.length) {
        link = $("<link>", {id: LINK_ID, rel: "stylesheet"}).appendTo("head");
    }
    if (link.attr("href") !== address) {
        link.attr("href", address);
    }
    $("html").toggleClass("style-light", name === "light").toggleClass("style-dark", name === "dark");
}
