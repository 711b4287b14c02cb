// The page of the information over the image: its list, and the dialog on font and layout.
import assert from "node:assert/strict";
import {test} from "node:test";
import {colorOf} from "../../../livecontrol/resources/info/colors.js";
import {KEY, pageTest, recorder} from "../support/page.mjs";

const item = (key, link = "", state = "") => `<li><input type='checkbox' id='${key}' ${state}><label for='${key}'>${key}</label>${
    link && `<a href='#' name='editinfo_edit' id='${link}' class='float-right localize'>edit...</a>`}</li>`;
const HTML = item("Camera name", "", "checked='checked'") + item("FrameRate", "edit_recordrate") + "<hr>" + item("Comment", "edit_comment")
    + item("TimeIrigCode", "time_code") + item("Gone", "", "checked='checked' disabled='disabled'");
const ANSWERS = {
    translate: (text) => text, getStyle: "dark", getInfoSettingsHtml: HTML, getDisplayBlankLine: true, confirm: true,
    getFontNameList: () => ["Mono", "Sans"], getFontSizeList: () => ["7", "12", "44"], getFontName: "Sans", getFontSize: "12",
    getBold: false, getItalic: true, getForegroundColor: "#00ff00", getAlignment: 1, getWidth: 300, getIconSize: 1
};
const infoTest = (title, body, answers = {}) => pageTest(title, "editinfo.html",
    () => ({editInfo: recorder({...ANSWERS, ...answers})}), (page, {editInfo}) => body(page, editInfo));
const order = (page) => Array.from(page.$(".ei-items").children(), (node) => page.$(node).find("input").attr("id") || node.tagName).join();
const ALT = {altKey: true};

infoTest("boxes, links and the blank line act at once", (page, info) => {
    assert.equal(page.focused(), "Camera name");
    page.click("[id='Camera name']");
    page.click("#FrameRate");
    page.check("#blankline");
    assert.deepEqual(page.told(info), [["changeDisp", "Camera name", false, 0], ["changeDisp", "FrameRate", true, 0],
        ["setDisplayBlankLine", false]]);
    ["#edit_recordrate", "#edit_comment", "#time_code"].forEach((link) => page.click(link));
    assert.deepEqual(page.told(info), [["editRecordRateDispFormat"], ["editComment"], ["execTimeCodeSettingDialog"]]);
    assert.equal(page.window.location.hash, "");
    assert.deepEqual([page.locked("#Gone"), page.$("#Gone").prop("checked")], [true, true]);
});

const LINKS = {edit_comment: "editComment", edit_custom: "editCustom", select_logo: "setLogoPath", time_code: "execTimeCodeSettingDialog",
    edit_shutter: "editShutterDispFormat", edit_rectime: "editRectimeDispFormat", edit_recordrate: "editRecordRateDispFormat",
    edit_frame: "editFrameDispFormat"};
infoTest("each item's link opens its own dialog and leads nowhere", (page, info) => {
    for (const [id, slot] of Object.entries(LINKS)) {
        const press = new page.window.MouseEvent("click", {bubbles: true, cancelable: true});
        assert.deepEqual([page.one(`#${id}`).dispatchEvent(press), page.told(info)], [false, [[slot]]]);
    }
}, {getInfoSettingsHtml: Object.keys(LINKS).map((id) => item(`of ${id}`, id)).join("")});

infoTest("the page starts in the user's colors and words, its log is on, and an item is dragged by its text", (page, info) => {
    assert.deepEqual([page.$("html").hasClass("style-light"), page.$("#ok_btn").text()], [true, "~OK"]);
    const press = (node, type, clientY) => node.dispatchEvent(new page.window.MouseEvent(type, {bubbles: true, button: 0, which: 1, clientY}));
    for (const [selector, way, moves] of [["label[for=FrameRate]", 4, true], ["label[for=FrameRate]", 3, false], ["hr", 5, true],
        ["#FrameRate", 5, false], ["#edit_comment", 5, false]]) {
        press(page.one(selector), "mousedown", 0);
        press(page.document, "mousemove", way);
        press(page.document, "mousemove", way);
        assert.equal(page.$(".sortph").length > 0, moves, `${selector} by ${way} px`);
        press(page.document, "mouseup", way);
    }
    page.click("#editinfo_fontsetting");
    page.choose("#editinfo_fontsetting_fontname", "Mono");
    assert.equal(page.told(info, /^userOperation/).length, 1, "a line in the log");
}, {getStyle: "light", translate: (text) => `~${text}`});

infoTest("Alt and the arrows move an item past the separators, with its focus, and end at the ends", (page, info) => {
    page.focus("#FrameRate").key(KEY.DOWN, ALT);
    assert.deepEqual([order(page), page.focused()], ["Camera name,HR,FrameRate,Comment,TimeIrigCode,Gone", "FrameRate"]);
    page.key(KEY.UP, ALT);
    page.key(KEY.UP, ALT);
    assert.deepEqual([order(page), page.focused()], ["FrameRate,Camera name,HR,Comment,TimeIrigCode,Gone", "FrameRate"]);
    assert.deepEqual(page.told(info).map((call) => call[1]), ["Camera name,HR,FrameRate,Comment,TimeIrigCode,Gone",
        "Camera name,FrameRate,HR,Comment,TimeIrigCode,Gone", "FrameRate,Camera name,HR,Comment,TimeIrigCode,Gone"]);
    const seen = [];
    page.window.Element.prototype.scrollIntoViewIfNeeded = function (isCentered) { seen.push([this.tagName, isCentered]); };
    assert.deepEqual([page.down(KEY.UP, ALT), page.down(KEY.DOWN), page.down(KEY.A, ALT), page.told(info)], [false, true, true, []]);
    page.key(KEY.DOWN, ALT);
    assert.deepEqual(seen, [["LI", false]], "no further than needed");
});

infoTest("a reset asks first, and shows what came back", (page, info) => {
    page.check("#blankline");
    page.told(info);
    info.answers.confirm = false;
    page.click("#editinfo_reset");
    assert.deepEqual(page.told(info), [["confirm", "Do you reset information setting ?"]]);
    Object.assign(info.answers, {confirm: true, getInfoSettingsHtml: item("Logo", "select_logo"), getDisplayBlankLine: true});
    page.click("#editinfo_reset");
    assert.deepEqual(page.told(info).map(([name]) => name), ["confirm", "reset"]);
    assert.deepEqual([order(page), page.$("#blankline").prop("checked")], ["Logo", true]);
    page.click("#select_logo");
    assert.deepEqual(page.told(info), [["setLogoPath"]]);
});

infoTest("Enter is OK but on a button or a link", (page, info) => {
    page.focus("#edit_comment").key(KEY.ENTER);
    page.focus("#cancel_btn").key(KEY.ENTER);
    assert.deepEqual(page.told(info), []);
    assert.equal(page.focus("#Comment").down(KEY.ENTER), false);
    assert.deepEqual(page.told(info), [["ok"]]);
    page.click("#ok_btn");
    page.click("#cancel_btn");
    assert.deepEqual(page.told(info), [["ok"], ["cancel"]]);
});

infoTest("the font dialog shows what is, and each control acts at once", (page, info) => {
    page.click("#editinfo_fontsetting");
    assert.deepEqual(page.told(info), [["backupFontSettings", 0]]);
    assert.deepEqual([page.$(".ui-dialog-title").text(), page.$(".ui-dialog").css("width"), page.$(".ui-widget-overlay").length,
        page.$(".ui-resizable").length], ["Edit Portlet visibility", "340px", 1, 0]);
    assert.deepEqual([page.val("#editinfo_fontsetting_fontname"), page.val("#editinfo_fontsetting_fontsize"), page.val("#numberWidth"),
        page.$("#font-bold").prop("checked"), page.$("#font-italic").prop("checked"), page.val("input[name=radioAlignment]:checked"),
        page.val("#editinfo_iconsize")], ["Sans", "12", "300", false, true, "1", "1"]);
    page.choose("#editinfo_fontsetting_fontname", "Mono");
    page.choose("#editinfo_fontsetting_fontsize", "44");
    page.check("#font-bold");
    page.check("#font-italic");
    page.check("#alignment_right");
    page.enter("#numberWidth", "10000");
    page.enter("#numberWidth", "0");
    page.focus("#numberWidth").key(KEY.UP);
    page.key(KEY.ENTER);
    page.$("#editinfo_iconsize").val("2").trigger("change");
    assert.deepEqual(page.told(info), [["setFontName", "Mono"], ["setFontSize", "44"], ["setBold", true], ["setItalic", false],
        ["setAlignment", 2], ["setWidth", 9999], ["setWidth", 1], ["setWidth", 2], ["setIconSize", 2]]);
    page.click("#editfont_dialog_ok");
    assert.deepEqual(page.told(info), [["writeFontOK"]]);
    assert.deepEqual([page.shown("#edit-portlet-dialog"), page.focused()], [false, "editinfo_fontsetting"]);
});

for (const [way, leave] of [
    ["Cancel", (page) => page.click("#editfont_dialog_cancel")],
    ["Escape", (page) => page.focus("#font-bold").key(KEY.ESCAPE)],
    ["Escape in the title", (page) => page.focus(".ui-dialog-titlebar-close").key(KEY.ESCAPE)],
    ["its title's button", (page) => page.click(".ui-dialog-titlebar-close")]]) {
    infoTest(`${way} of the font dialog takes its own back, once, and again the second time`, (page, info) => {
        for (let visit = 0; visit < 2; ++visit) {
            page.click("#editinfo_fontsetting");
            page.check("#font-bold");
            page.told(info);
            leave(page);
            assert.deepEqual(page.told(info), [["restoreFontSettings"]]);
            assert.deepEqual([page.$(".ui-dialog").length, page.focused()], [0, "editinfo_fontsetting"]);
            assert.ok(page.down(KEY.ESCAPE), "the next one is the window's");
        }
    });
}

infoTest("Escape closes an open list of the font dialog first, then the dialog, never the window", (page, info) => {
    page.click("#editinfo_fontsetting");
    page.told(info);
    page.one("#editinfo_fontsetting_fontname").sumo.showOpts();
    page.focus("#editinfo_fontsetting_fontname");
    assert.deepEqual([page.down(KEY.ESCAPE), page.told(info), page.down(KEY.ESCAPE), page.told(info)],
        [false, [], false, [["restoreFontSettings"]]]);
});

infoTest("Enter in a field of the font dialog ends neither of the two", (page, info) => {
    page.click("#editinfo_fontsetting");
    page.told(info);
    page.type("#numberWidth", "44");
    page.key(KEY.ENTER);
    assert.deepEqual(page.told(info), [["setWidth", 44]]);
});

infoTest("a palette that stood open when its dialog ended is closed the next time", (page) => {
    page.click("#editinfo_fontsetting");
    page.click("#font-color-span");
    page.click("#editfont_dialog_ok");
    page.click("#editinfo_fontsetting");
    assert.equal(page.$("#font-color-span-palette").css("display"), "none");
});

for (const [title, name, size, names, sizes] of [
    ["what is in the lists", "Mono", "44", ["Mono", "Sans"], ["7", "12", "44"]],
    ["a font that is not installed and a size out of the list", "<b>Lost", "13.5", ["<b>Lost", "Mono", "Sans"], ["13.5", "7", "12", "44"]],
    ["nothing", "", "", ["Mono", "Sans"], ["7", "12", "44"]]]) {
    infoTest(`font and size show ${title}, each row once`, (page) => {
        for (let visit = 0; visit < 2; ++visit) {
            page.click("#editinfo_fontsetting");
            assert.deepEqual(["#editinfo_fontsetting_fontname", "#editinfo_fontsetting_fontsize"].map((box) => [page.val(box) || "",
                page.texts(`${box} option`)]), [[name, names], [size, sizes]]);
            assert.equal(page.$("b").length, 0);
            page.click("#editfont_dialog_ok");
        }
    }, {getFontName: name, getFontSize: size});
}

infoTest("a palette has colors that all differ, each tells itself, and a field takes seven characters", (page, info) => {
    page.click("#editinfo_fontsetting");
    page.click("#font-color-span");
    page.told(info);
    const swatches = page.$("#font-color-span-palette button.swatch").get();
    const colors = swatches.map((swatch) => swatch.title);
    assert.deepEqual([colors.map(colorOf), new Set(colors).size, page.document.activeElement === swatches[0]], [colors, 24, true]);
    for (const swatch of swatches) {
        swatch.click();
        const shown = [swatch.style.backgroundColor, page.$("#font-color-span").css("background-color")];
        assert.deepEqual([page.told(info), swatch.type, swatch.getAttribute("aria-label"), shown[0]],
            [[["setForegroundColor", swatch.title]], "button", swatch.title, shown[1]]);
        assert.match(shown[0], /^rgb/);
    }
    const field = page.one("#font-color-span-palette input");
    assert.deepEqual(["type", "maxlength", "autocomplete", "aria-label"].map((name) => field.getAttribute(name)),
        ["text", "7", "off", "~Color"]);
}, {translate: (text) => `~${text}`});

infoTest("a color comes from the palette or from its number; what is none changes nothing", (page, info) => {
    page.click("#editinfo_fontsetting");
    page.told(info);
    page.click("#font-color-span");
    assert.equal(page.$("#font-color-span").attr("aria-expanded"), "true");
    page.click("#font-color-span-palette button[title='#ff0000']");
    assert.deepEqual(page.told(info), [["setForegroundColor", "#ff0000"]]);
    assert.ok(page.shown("#font-color-span-palette"), "OK stays where the mouse is to find it");
    assert.equal(page.focus("#font-color-span").down(KEY.SPACE), false);
    assert.deepEqual([page.shown("#font-color-span-palette"), page.$("#font-color-span").attr("aria-expanded")], [false, "false"]);
    page.down(KEY.A);
    assert.ok(!page.shown("#font-color-span-palette"));
    page.key(KEY.ENTER);
    assert.ok(page.down(KEY.ENTER), "on a color it is the button's own");
    page.type("#font-color-span-palette input", "ABC");
    assert.deepEqual([page.down(KEY.A), page.told(info), page.down(KEY.ENTER)], [true, [], false]);
    assert.deepEqual(page.told(info), [["setForegroundColor", "#aabbcc"]]);
    page.type("#font-color-span-palette input", "red;");
    page.key(KEY.ENTER);
    assert.deepEqual([page.told(info), page.val("#font-color-span-palette input")], [[], "#aabbcc"]);
    page.type("#font-color-span-palette input", "#123456");
    assert.equal(page.down(KEY.ESCAPE), false, "of the palette alone");
    assert.deepEqual([page.told(info), page.shown("#edit-portlet-dialog"), page.focused(), page.val("#font-color-span-palette input")],
        [[], true, "font-color-span", "#aabbcc"]);
});

test("colors by their numbers", () => {
    assert.deepEqual(["#12aBf0", " fff ", "1234", "#12345g", "", "rgb(0,0,0)"].map(colorOf),
        ["#12abf0", "#ffffff", null, null, null, null]);
});
