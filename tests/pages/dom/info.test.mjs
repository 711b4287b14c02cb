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
    getBold: false, getItalic: true, getForegroundColor: "#00ff00", getAlignment: 1, getWidth: 300, getIconSize: 0
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

infoTest("Alt and the arrows move an item past the separators, with its focus, and end at the ends", (page, info) => {
    page.focus("#FrameRate").key(KEY.DOWN, ALT);
    assert.deepEqual([order(page), page.focused()], ["Camera name,HR,FrameRate,Comment,TimeIrigCode,Gone", "FrameRate"]);
    page.key(KEY.UP, ALT);
    page.key(KEY.UP, ALT);
    assert.deepEqual([order(page), page.focused()], ["FrameRate,Camera name,HR,Comment,TimeIrigCode,Gone", "FrameRate"]);
    assert.deepEqual(page.told(info).map((call) => call[1]), ["Camera name,HR,FrameRate,Comment,TimeIrigCode,Gone",
        "Camera name,FrameRate,HR,Comment,TimeIrigCode,Gone", "FrameRate,Camera name,HR,Comment,TimeIrigCode,Gone"]);
    page.key(KEY.UP, ALT);
    page.key(KEY.DOWN);
    assert.deepEqual(page.told(info), []);
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
    page.focus("#Comment").key(KEY.ENTER);
    assert.deepEqual(page.told(info), [["ok"]]);
    page.click("#ok_btn");
    page.click("#cancel_btn");
    assert.deepEqual(page.told(info), [["ok"], ["cancel"]]);
});

infoTest("the font dialog shows what is, and each control acts at once", (page, info) => {
    page.click("#editinfo_fontsetting");
    assert.deepEqual(page.told(info), [["backupFontSettings", 0]]);
    assert.equal(page.$(".ui-dialog-title").text(), "Edit Portlet visibility");
    assert.deepEqual([page.val("#editinfo_fontsetting_fontname"), page.val("#editinfo_fontsetting_fontsize"), page.val("#numberWidth"),
        page.$("#font-bold").prop("checked"), page.$("#font-italic").prop("checked"), page.val("input[name=radioAlignment]:checked")],
    ["Sans", "12", "300", false, true, "1"]);
    page.choose("#editinfo_fontsetting_fontname", "Mono");
    page.choose("#editinfo_fontsetting_fontsize", "44");
    page.check("#font-bold");
    page.check("#font-italic");
    page.check("#alignment_right");
    page.enter("#numberWidth", "10000");
    assert.deepEqual(page.told(info), [["setFontName", "Mono"], ["setFontSize", "44"], ["setBold", true], ["setItalic", false],
        ["setAlignment", 2], ["setWidth", 9999]]);
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
            assert.equal(page.$(".ui-dialog").length, 0);
        }
    });
}

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

infoTest("a font that is not installed and a size out of the list show all the same", (page) => {
    page.click("#editinfo_fontsetting");
    assert.deepEqual([page.val("#editinfo_fontsetting_fontname"), page.val("#editinfo_fontsetting_fontsize")], ["<b>Lost", "13.5"]);
    assert.equal(page.$("b").length, 0);
}, {getFontName: "<b>Lost", getFontSize: "13.5"});

infoTest("a color comes from the palette or from its number; what is none changes nothing", (page, info) => {
    page.click("#editinfo_fontsetting");
    page.told(info);
    page.click("#font-color-span");
    assert.equal(page.$("#font-color-span").attr("aria-expanded"), "true");
    page.click("#font-color-span-palette button[title='#ff0000']");
    assert.deepEqual(page.told(info), [["setForegroundColor", "#ff0000"]]);
    assert.ok(page.shown("#font-color-span-palette"), "OK stays where the mouse is to find it");
    page.focus("#font-color-span").key(KEY.SPACE);
    assert.ok(!page.shown("#font-color-span-palette"));
    page.key(KEY.SPACE);
    page.type("#font-color-span-palette input", "ABC");
    page.key(KEY.ENTER);
    assert.deepEqual(page.told(info), [["setForegroundColor", "#aabbcc"]]);
    page.type("#font-color-span-palette input", "red;");
    page.key(KEY.ENTER);
    assert.deepEqual([page.told(info), page.val("#font-color-span-palette input")], [[], "#aabbcc"]);
    page.key(KEY.ESCAPE); // of the palette alone
    assert.deepEqual([page.told(info), page.shown("#edit-portlet-dialog"), page.focused()], [[], true, "font-color-span"]);
});

test("colors by their numbers", () => {
    assert.deepEqual(["#12aBf0", " fff ", "1234", "#12345g", "", "rgb(0,0,0)"].map(colorOf),
        ["#12abf0", "#ffffff", null, null, null, null]);
});
