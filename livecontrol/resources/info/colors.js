/** The colors that a user finds first: grays, then bright and dark ones round the circle. */
export const PALETTE = [
    "#ffffff", "#c0c0c0", "#808080", "#404040", "#000000", "#ff0000", "#ff8000", "#ffff00",
    "#80ff00", "#00ff00", "#00ff80", "#00ffff", "#0080ff", "#0000ff", "#8000ff", "#ff00ff",
    "#800000", "#804000", "#808000", "#008000", "#008080", "#004080", "#000080", "#800080"
];

/** "#rrggbb" in small letters of what was typed, with or without "#"; null if it is no color. */
export function colorOf(text) {
    const match = /^\s*#?([0-9a-f]{6}|[0-9a-f]{3})\s*$/i.exec(text);
    if (!match) {
        return null;
    }
    const digits = match[1].toLowerCase();
    return `#${digits.length === 3 ? digits.replace(/./g, "$&$&") : digits}`;
}
