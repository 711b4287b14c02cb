import $ from "../jquery.js";

/** The labels that name an element by its id. */
export function labelsOf(node) {
    return node.id ? $(`label[for="${$.escapeSelector(node.id)}"]`) : $();
}

/** What a screen reader is to call a control, or null: its own name, its label, its title, the name of its block. */
export function nameOf(node) {
    return node.getAttribute("aria-label") || labelsOf(node).first().text().trim() || node.title ||
        $(node).closest("[aria-label]").attr("aria-label") || null;
}
