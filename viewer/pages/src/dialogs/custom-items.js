// What a custom item may be called. No page.

export const FIELDS = ["name", "value", "unit"];

/**
 * A name that is empty, or that another item has, would be lost in the document.
 * @param {string[]} names - of all items that it would stand beside
 * @param {?string} oldName - that of the item that is to bear it; null for a new one
 */
export function fault(name, names, oldName) {
    if (name.trim() === "") {
        return "Enter a name.";
    }
    return name !== oldName && names.includes(name) ? "An item has this name." : "";
}

/**
 * Whether something was entered that no item has yet.
 * @param {Object} filled - what the fields held when they were filled: a field shows no line breaks, an item may have some
 */
export function isPending(entered, filled) {
    return FIELDS.some(field => entered[field] !== filled[field]);
}

/** What can't stand in an XML file would make the whole file unreadable. */
export function writable(text) {
    // eslint-disable-next-line no-control-regex
    return text.replace(/[\u0000-\u001f\ufffe\uffff]/g, "");
}

/** The records that are selected after a click: one alone, or with Ctrl one more or less. At least one stays. */
export function selectedAfter(ids, id, adds) {
    if (!adds) {
        return [id];
    }
    const rest = ids.filter(other => other !== id);
    return rest.length === ids.length ? ids.concat(id) : rest.length > 0 ? rest : ids;
}
