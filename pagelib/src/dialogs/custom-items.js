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
 * @param {Object} filled - the item that the fields stood for when they were filled
 */
export function isPending(entered, filled) {
    return FIELDS.some((field) => entered[field] !== filled[field]);
}

/**
 * The item that the fields stand for. A field holds one line, an item may have more: a field that nobody touched stands
 * for the whole text.
 * @param {Object} texts - what the fields were filled with
 * @param {Object} shown - what they held then
 * @param {Object} now - what they hold
 */
export function edited(texts, shown, now) {
    const item = {};
    FIELDS.forEach((field) => {
        item[field] = now[field] === shown[field] ? texts[field] : writable(now[field]);
    });
    item.name = now.name === shown.name ? item.name : item.name.trim();
    return item;
}

/** What can't stand in an XML file would make the whole file unreadable. */
function writable(text) {
    // eslint-disable-next-line no-control-regex
    return text.replace(/[\u0000-\u001f\ufffe\uffff]/g, "");
}

/** The records that are selected after a click: one alone, or with Ctrl one more or less. At least one stays. */
export function selectedAfter(ids, id, adds) {
    if (!adds) {
        return [id];
    }
    const rest = ids.filter((other) => other !== id);
    return rest.length === ids.length ? ids.concat(id) : rest.length > 0 ? rest : ids;
}
