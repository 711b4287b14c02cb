// The preferences of the digits in a name, by the number that stands for the name: the groups of three are group
// folder, sub folder and file name.

const FAMILIES = ["export", "convert", "snap", "report"];
const KINDS = ["groupdir", "subdir", "filename"];
const OTHERS = {13: "export/fd/dataname", 15: "layout/subdir", 16: "layout/filename"};
const REPORT = 3;

/**
 * @param {number} target
 * @return {?{camera: ?string, head: ?string, session: string, format: ?string}} names of preferences; null for what a
 *     name has not got, or altogether for no such target. `format` is "auto" where the cameras give the digits.
 */
export function digitPreferences(target) {
    const family = Math.floor(target / KINDS.length);
    const isOfFamily = target >= 0 && family < FAMILIES.length;
    const isReportFolder = isOfFamily && family === REPORT && target % KINDS.length === 0; // it has no numbers
    const stem = isReportFolder ? null : isOfFamily ? `${FAMILIES[family]}/${KINDS[target % KINDS.length]}` : OTHERS[target];
    if (!stem) {
        return null;
    }
    const hasCameras = !isOfFamily || family !== REPORT;
    const isFolder = /dir$/.test(stem);
    return {
        camera: hasCameras ? `${stem}addnumbercameranodigits` : null,
        head: hasCameras ? `${stem}addnumberheadnodigits` : null,
        session: `${stem}addnumbersessionnodigits`,
        format: hasCameras && isFolder ? `${stem}addnumberformat` : null
    };
}
