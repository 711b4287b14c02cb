// What a custom item may be called. No page.

/** A name that is empty, or that another item has, would be lost in the document. */
export function fault(name, items, oldName) {
    if (name.trim() === "") {
        return "Enter a name.";
    }
    return name !== oldName && items.some(item => item.name === name) ? "An item has this name." : "";
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
