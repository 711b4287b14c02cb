// Which rows are ticked, and what that means to the slots. Rows are those of the mediator's list.

/** A row's name: a document and one of its partitions. */
export function idOf(row) {
    return `${row.dockey}:${row.partitionno}`;
}

/** The row of the document that shows: its partition that is selected, or its first; undefined for none. */
export function rowOfCurrent(rows, current) {
    const own = rows.filter((row) => String(row.dockey) === String(current));
    return own.find((row) => row.selected === "true") || own[0];
}

/**
 * What is ticked at first: what is selected, or all if nothing is.
 * @param {Array} rows
 * @param {Object} [only] - a row that is ticked alone
 */
export function firstTicks(rows, only) {
    const selected = only ? [only] : rows.filter((row) => row.selected === "true");
    return (selected.length ? selected : rows).map(idOf);
}

/** Ticks that still have a row. */
export function keptTicks(rows, ticks) {
    return rows.map(idOf).filter((id) => ticks.includes(id));
}

export function tickedRows(rows, ticks) {
    return rows.filter((row) => ticks.includes(idOf(row)));
}

/** Lists of partition numbers by document, for the limits of the skip. */
export function skipTargets(rows) {
    const targets = {};
    rows.forEach((row) => {
        targets[row.dockey] = (targets[row.dockey] || []).concat(Number(row.partitionno));
    });
    return targets;
}

/** Documents of the rows, each once, in their order. */
export function documentsOf(rows) {
    return rows.map((row) => row.dockey).filter((key, i, keys) => keys.indexOf(key) === i);
}

/** As `saving.save` takes them. */
export function saveTargets(rows) {
    return rows.map((row) => ({dockey: row.dockey, partitionno: row.partitionno}));
}

/** Where what is opened comes from: the drive, or the file's folder. */
export function sourceOf(row) {
    return row.serialno ? row.path : (row.path || "").replace(/\/[^/]*$/, "");
}

/** When it was recorded; empty of what a camera holds. */
export function momentOf(row) {
    return [row.date, row.time].filter(Boolean).join(" ");
}

/** What a list shows of a row, in its columns. Of files the size is not known, so the rate stands there. */
export function columnsOf(row) {
    return [row.cameraname || row.filename || "", row.partitionno, row.totalframes, row.resolution,
        lastColumnOf(row) === "Size" ? row.capacitylabel : row.recordrate || ""];
}

/** The title of the last column. */
export function lastColumnOf(row) {
    return row.capacitylabel ? "Size" : "Frame rate";
}

/** The pairs of such a text; see pairsText. */
export function pairsOf(text) {
    return String(text).split("?").filter(Boolean).map((pair) => pair.split("|"));
}

/** Entries of "name|folder?name|folder", as the preferences have them. */
export function pairsText(pairs) {
    return pairs.map(([name, folder]) => `${name}|${folder}`).join("?");
}
