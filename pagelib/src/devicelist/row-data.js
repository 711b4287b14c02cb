// What rows are made of, without a page.

/** The objects of a list of JSON texts; what is no object is left out. */
export function parseRows(texts) {
    return Array.from(texts || []).map((text) => {
        try {
            return JSON.parse(text);
        } catch (error) {
            return null;
        }
    }).filter((row) => row !== null && typeof row === "object");
}

/**
 * Where a word that is typed goes to.
 * @param {string[]} names
 * @param {string} text a first letter goes on behind `from`, a longer text may stay there
 * @param {number} from
 * @returns {number} index of the next name that begins so; -1 if there is none
 */
export function matchFrom(names, text, from) {
    const start = text.length > 1 ? from : from + 1;
    const order = names.map((_, i) => (Math.max(start, 0) + i) % names.length);
    const found = order.find((i) => names[i].toLowerCase().indexOf(text.toLowerCase()) === 0);
    return found === undefined ? -1 : found;
}

/** Whether a camera stays in a list with that filter: one of its texts holds it. */
export function isKept(texts, filter) {
    const wanted = filter.trim().toLowerCase();
    return texts.some((text) => text.toLowerCase().indexOf(wanted) >= 0);
}

/** A row template whose every tag escapes: camera names come from the network. */
export function escapingTemplate(text) {
    return String(text)
        .replace(/\{\{\{\s*([^{}]+?)\s*\}\}\}/g, "{{$1}}")
        .replace(/\{\{&\s*([^{}]+?)\s*\}\}/g, "{{$1}}");
}
