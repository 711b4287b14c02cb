import $ from "../../jquery.js";

// The names that a save uses: group folder, sub folder and file. What they become is composed by the mediator; here are
// the settings of it. The markup is in this file, since all three have nearly the same.

const FORMAT = "yyyyMMdd_HHmmss";

/** Ends of the preferences, and of the slots of `savefile`. */
const PARTS = {
    group: {stem: "groupdir", title: "Group folder", number: "GroupDir", folder: true},
    sub: {stem: "subdir", title: "Sub folder", number: "SubDir", folder: true},
    file: {stem: "filename", title: "File name", number: "FileName", folder: false}
};

const CHECKS = {
    asfilename: "As the file", addnumber: "Add a number", addtime: "Add date and time",
    asoriginal: "As it was called", usecustom: "Of custom items"
};

function check(id, text) {
    return $("<span>", {class: "check"}).append($("<input>", {type: "checkbox", id}),
        $("<label>", {for: id, text: window.savefile.translate(text)}));
}

function button(id, text, name) {
    return $("<button>", {type: "button", id, text}).attr("aria-label", window.savefile.translate(name));
}

function block(name, part) {
    const id = (end) => `${name}_${end}`;
    const translate = (text) => window.savefile.translate(text);
    const controls = $("<div>", {class: "control"}).append(
        $("<input>", {type: "text", id: id("name"), maxlength: 100}).attr("autocomplete", "off")
            .attr("aria-label", translate(part.title)));
    (part.folder ? ["asfilename"] : ["asoriginal", "usecustom"])
        .forEach((end) => controls.append(check(id(end), CHECKS[end])));
    if (!part.folder) {
        controls.append(button("custom_btn", "...", "Custom items"));
    }
    controls.append(check(id("addnumber"), CHECKS.addnumber), button(id("number_btn"), "...", "Digits"),
        check(id("addtime"), CHECKS.addtime));
    const label = part.folder ? check(id("on"), part.title) : $("<label>", {for: id("name"), text: translate(part.title)});
    return $("<div>", {class: "field name-field", id: `${name}_field`}).append(label.addClass("field-name"), controls);
}

/**
 * @param {Object} kind - see kinds.js
 * @param {Function} changed - called after each change
 */
export function nameFields(kind, changed) {
    const settings = window.savefile;
    const parts = Object.keys(PARTS).filter((name) => name !== "group" || kind.group);
    const key = (part, end) => `${kind.family}/${part.stem}${end}`;
    const nameKey = (part) => (part.folder ? key(part, "name") : `${kind.family}/filename`);
    const store = (write) => {
        write();
        changed();
    };

    function bindCheck(part, selector, preference) {
        $(selector).on("change", (event) => store(() => {
            settings.setPrefBool(preference, event.target.checked, false);
            if (event.target.checked && /addtime$/.test(preference) && !settings.getPrefString(`${preference}format`)) {
                settings.setPrefString(`${preference}format`, FORMAT, false);
            }
        }));
    }

    parts.forEach((name) => {
        const part = PARTS[name];
        $("#names").append(block(name, part));
        ["asfilename", "asoriginal", "usecustom", "addnumber", "addtime"].forEach((end) =>
            bindCheck(part, `#${name}_${end}`, key(part, end)));
        bindCheck(part, `#${name}_on`, `${kind.family}/${part.stem}`);
        window.zel4func.initializeTextfield4ProhibitionFilename(`#${name}_name`); // first: what is stored is what stays
        $(`#${name}_name`).on("input", (event) =>
            store(() => settings.setPrefString(nameKey(part), event.target.value, false)));
        $(`#${name}_number_btn`).on("click", () => store(() => settings[`numberSetting4${part.number}`]()));
    });
    $("#custom_btn").on("click", () => store(() => settings.editCustom(false)));

    function show() {
        parts.forEach((name) => {
            const part = PARTS[name];
            const on = (end) => settings.getPrefBool(key(part, end));
            const isUsed = !part.folder || settings.getPrefBool(`${kind.family}/${part.stem}`);
            ["asfilename", "asoriginal", "usecustom", "addnumber", "addtime"].forEach((end) =>
                $(`#${name}_${end}`).prop("checked", on(end)));
            $(`#${name}_on`).prop("checked", isUsed);
            const field = $(`#${name}_name`);
            const text = settings.getPrefString(nameKey(part));
            if (field.val() !== text) { // keeps the place of the cursor
                field.val(text);
            }
            window.zel4func.disable($(`#${name}_field .control input, #${name}_field .control button`), !isUsed);
            window.zel4func.disable(field, !isUsed || on("asfilename") || on("asoriginal") || on("usecustom"));
        });
    }
    return {show};
}
