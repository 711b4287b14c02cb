/** The objects of a list of JSON texts, as mediators give them. */
export function translateJSONListToObj(list) {
    return Array.from(list, (text) => JSON.parse(text));
}
