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

/** A row template whose every tag escapes: camera names come from the network. */
export function escapingTemplate(text) {
    return String(text)
        .replace(/\{\{\{\s*([^{}]+?)\s*\}\}\}/g, "{{$1}}")
        .replace(/\{\{&\s*([^{}]+?)\s*\}\}/g, "{{$1}}");
}
