import $ from "../jquery.js";

// Formats of date and time in file names, in the notation of QDateTime. No character that a name can't hold.
const FORMATS = [
    "yyyyMMdd_HHmmss",
    "yyyyMMddHHmmss",
    "yyyyMMdd",
    "yyyy-MM-dd_HH-mm-ss",
    "yyMMdd_HHmmss",
    "ddMMyyyy_HHmmss",
    "MMddyyyy_HHmmss",
    "HHmmss"
];

/** Fills a select element with the formats of date and time for file names. */
export function createDatetimeFormatSelector(selector) {
    $(selector).empty().append(FORMATS.map((format) => $("<option>").val(format).text(format)));
}
