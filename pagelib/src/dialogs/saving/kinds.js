// What each dialog of saving offers, by the name of the widget that holds its page.

const WHOLE = {original: true, formats: "getFileFormats", group: true};
const EXPORT = Object.assign({family: "export", skip: "export", info: "export/saveinfo"}, WHOLE);
const CONVERT = Object.assign({family: "convert", skip: "export", info: "convert/saveinfo"}, WHOLE);

const KINDS = {
    batchconverter: Object.assign({button: "Convert", names: true}, CONVERT),
    convertparametereditdialog: Object.assign({button: "OK", plain: true}, CONVERT),
    reportExportDialog: Object.assign({}, EXPORT, {family: "report", skip: "report", formats: null, button: "Save"}),
    snapshotdialog: Object.assign({}, EXPORT, {family: "snap", skip: null, formats: "getSnapFileFormats", button: "Save"}),
    layoutsavedialog: {
        family: "layout", skip: "layout", formats: "getLayoutFileFormats", group: false, info: null, button: "Save"
    }
};

/**
 * @param {string} widget - name of the widget that holds the page
 * @return {Object} `family` begins its preferences, `skip` those of the frame skip (null: none), `formats` is the slot
 *     that lists them, `group` tells whether it has a group folder, `info` is the preference that saves information,
 *     `original` whether files may go beside the one that they come from, `button` the caption of its default button;
 *     `plain`: it saves nothing itself
 */
export function kindOf(widget) {
    return KINDS[widget] || Object.assign({button: "Save", multi: true}, EXPORT);
}
