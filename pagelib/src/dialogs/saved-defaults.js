/* global editInfo */
import DEFAULTS from "../../../viewer/prefs/defaults.json";

// What a saved picture starts with, beside its lists of items: they come back by the dialog's own object.

const SETTERS = {
    FontName: "setFontName", FontSize: "setFontSize", Bold: "setBold", Italic: "setItalic",
    ForegroundColor: "setForegroundColor",
    Alignment: "setAlignment", Width: "setWidth", UseBackgroundColor: "setUseBackgroundColor",
    BackgroundColor: "setBackgroundColor", ToColumn: "setToColumn", ColumnNum: "setColumnNum",
    ColumnSpacing: "setColumnSpacing",
    FixedFontSizeRatio: "setFixedFontSizeRatio"
};
const NUMBERS = ["Alignment", "Width"]; // stored as texts
const GROUPS = [1, 2, 3, 4, 5, 6];

/** Fonts, layout and place of all groups as the program has them at first. Cancel of the dialog brings back what was. */
export function resetStyles() {
    editInfo.setCollectiveSetting(DEFAULTS["saveinfo/collectiveSetting"]);
    editInfo.setWithinImage(DEFAULTS["saveinfo/WithinImage"]);
    GROUPS.forEach((group) => {
        editInfo.backupFontSettings(group); // the setters act on that one
        Object.keys(SETTERS).forEach((key) => {
            const value = DEFAULTS[`saveinfo/${key}${group}`];
            editInfo[SETTERS[key]](NUMBERS.includes(key) ? Number(value) : value);
        });
    });
}
