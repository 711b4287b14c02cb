// The page of the saved view: its seven lists, the preview, and the dialog on font and layout of a place.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";

const item = (key, link = "", state = "") => `<li><input type='checkbox' id='${key}' ${state}><label for='${key}'>${key}</label>${
    link && `<a href='#' name='editinfo_edit' id='${link}' class='float-right localize'>edit...</a>`}</li>`;
const LISTS = {
    0: item("Head") + item("Gone", "", "disabled='disabled'"),
    1: item("Camera name", "", "checked='checked'") + "<hr class='unsortable'>" + item("Date", "", "checked='checked'"),
    2: item("FrameRate", "edit_recordrate", "checked='checked'"), 3: item("TimeCode", "time_code"),
    5: item("Logo", "select_logo"), 6: item("Comment", "edit_comment", "checked='checked'")
};
const ANSWERS = {
    translate: (text) => text, getStyle: "dark", getInfoSettingsHtml: (group) => LISTS[group] || "", getDisplayBlankLine: false,
    confirm: true, getThumbnail: "AAAA", getThumbnailResolution: () => [300, 200], getWithinImage: true,
    getResolutionStr: "<b>Resolution", getExportLanguage: "Output", getFontNameList: () => ["Mono", "Sans"],
    getFontSizeList: () => ["7", "12"], getFontName: (group) => (group === 2 ? "Mono" : "Sans"), getFontSize: "12", getBold: true,
    getItalic: false, getForegroundColor: "#00ff00", getAlignment: 0, getWidth: (group) => 100 + group, getIconSize: 0,
    getUseBackgroundColor: true, getBackgroundColor: "#000080", getToColumn: false, getToColumnList: () => ["2", "3"],
    getColumnNum: "3", getColumnSpacing: 40, isFixedFontSizeRatio: true, isCollectiveSetting: true
};
const viewTest = (title, body, answers = {}) => pageTest(title, "saveinfoview.html",
    () => ({editInfo: recorder({...ANSWERS, ...answers})}), async (page, {editInfo}) => {
        await page.rest(1);
        page.told(editInfo);
        await body(page, editInfo);
    });
const order = (page, group) => Array.from(page.$(`#ei-items${group}`).children(),
    (node) => page.$(node).find("input").attr("id") || node.tagName).join();
const drawn = async (page, info) => {
    await page.rest(1);
    return info.log.splice(0).filter(([name]) => name === "getThumbnail").length;
};
const ALT = {altKey: true};

viewTest("the page starts in the user's colors and words, and logs what is chosen", async (page, info) => {
    assert.deepEqual([page.$("html").hasClass("style-light"), page.$("#ok_btn").text(), page.texts(".portlet-font").length,
        page.$(".lower .portlet-font").attr("aria-label")], [true, "~OK", 6, "~Font... ~Lower"]);
    assert.deepEqual(page.texts(".ei-items > li[tabindex=0]"), ["Head", "Gone"], "in stock there is no box to tick");
    page.click(".lower .portlet-font");
    page.choose("#editinfo_fontsetting_fontname", "Mono");
    assert.equal(page.told(info, /^userOperation/).length, 1);
}, {getStyle: "light", translate: (text) => `~${text}`});

viewTest("each place shows its list, and the picture as it will be", async (page, info) => {
    assert.deepEqual([0, 1, 2, 3, 4, 5, 6].map((group) => order(page, group)),
        ["Head,Gone", "Camera name,HR,Date", "FrameRate", "TimeCode", "", "Logo", "Comment"]);
    assert.deepEqual([page.focused(), page.$("#within-image").prop("checked"), page.$("#preview img").attr("src")],
        ["Camera name", true, "data:image/png;base64,AAAA"]);
    assert.deepEqual([page.shown("#preview p"), page.$("#resolution").text(), page.$("#export-language").text()],
        [false, "<b>Resolution", "Output"]);
    page.$("#preview").css({width: "320px", height: "180px"});
    info.answers.getThumbnail = (width, height) => (width === 320 && height === 180 ? "" : "BBBB");
    page.check("#blankline");
    page.check("#within-image");
    assert.deepEqual(page.told(info), [["setDisplayBlankLine", true], ["setWithinImage", false]]);
    assert.equal(await drawn(page, info), 1, "two changes of one moment make one picture");
    assert.deepEqual([page.shown("#preview img"), page.shown("#preview p")], [false, true]);
});

viewTest("the picture has the pixels that the screen has there, one at least", async (page, info) => {
    const sized = async (ratio, width, height) => {
        page.window.devicePixelRatio = ratio;
        page.$("#preview").css({width, height});
        page.check("#blankline");
        await page.rest(1);
        const asked = info.log.splice(0).filter(([name]) => name === "getThumbnail").pop();
        const {style} = page.one("#preview img");
        return [...asked.slice(1), style.width, style.height, page.shown("#preview img"), page.shown("#preview p")];
    };
    info.answers.getThumbnailResolution = () => [300, 150];
    assert.deepEqual(await sized(1.5, "321px", "181px"), [481, 271, "200px", "100px", true, false]);
    assert.deepEqual(await sized(undefined, "0px", "0px"), [1, 1, "300px", "150px", true, false]);
    info.answers.getThumbnailResolution = () => [1, 1];
    assert.deepEqual((await sized(1, "9px", "9px")).slice(4), [true, false]);
    info.answers.getThumbnailResolution = () => [0, 0];
    assert.deepEqual((await sized(1, "9px", "9px")).slice(4), [false, true]);
});

viewTest("each change makes a new picture, and what changes nothing none", async (page, info) => {
    page.click(".upper .portlet-font");
    await drawn(page, info);
    const counts = [];
    for (const act of [() => page.check("#font-bold"), () => page.check("#alignment_right"), () => page.enter("#numberWidth", "7"),
        () => page.choose("#editinfo_fontsetting_fontname", "Mono"), () => page.check("#use-background"), () => page.check("#to-column"),
        () => page.choose("#column-count", "2"), () => page.enter("#column-spacing", "9"), () => page.check("#fixed-ratio"),
        () => page.check("#collective"), () => page.click("#font-color-span-palette button:first"),
        () => page.click("#background-color-span-palette button:first"), () => page.click("#editfont_dialog_cancel"),
        () => page.check("#blankline"), () => page.check("#within-image"), () => page.click("#Date"), () => page.click("#select_logo"),
        () => page.focus("#Date").key(KEY.UP, ALT), () => page.click("#editinfo_reset"), () => page.click("label[for=Date]"),
        () => page.click(".upper .portlet-font")]) {
        act();
        counts.push(await drawn(page, info));
    }
    assert.deepEqual(counts, [...Array(20).fill(1), 0]);
});

viewTest("a box and a link act on their own place", async (page, info) => {
    page.click("#FrameRate");
    page.click("#edit_comment");
    page.click("#select_logo");
    assert.deepEqual(page.told(info), [["changeDisp", "FrameRate", false, 2], ["editComment"], ["setLogoPath"]]);
    assert.equal(await drawn(page, info), 1);
});

viewTest("Alt and the arrows carry an item through all places, round", async (page, info) => {
    page.focus("#FrameRate").key(KEY.RIGHT, ALT);
    assert.deepEqual(page.told(info), [["changeOrder", "", 2], ["changeOrder", "TimeCode,FrameRate", 3]]);
    assert.equal(page.focused(), "FrameRate");
    page.key(KEY.UP, ALT);
    assert.deepEqual(page.told(info), [["changeOrder", "FrameRate,TimeCode", 3]]);
    page.focus("#Comment").$("#Comment").hide(); // as the style sheet does in stock
    page.key(KEY.RIGHT, ALT);
    page.$("#Comment").show();
    assert.deepEqual([order(page, 0), order(page, 6), page.document.activeElement.nodeName], ["Head,Gone,Comment", "", "LI"]);
    page.key(KEY.LEFT, ALT); // the item itself has the focus there
    assert.deepEqual([order(page, 0), order(page, 6), page.focused()], ["Head,Gone", "Comment", "Comment"]);
    page.focus("#Date").key(KEY.UP, ALT); // past a separator that does not move
    assert.equal(order(page, 1), "Camera name,Date,HR");
});

viewTest("what comes out of stock is shown, but not what can't be", async (page, info) => {
    page.$("#ei-items0 li").first().trigger("focus");
    page.key(KEY.RIGHT, ALT);
    assert.deepEqual(page.told(info), [["changeOrder", "Gone", 0], ["changeDisp", "Head", true, 1],
        ["changeOrder", "Camera name,HR,Date,Head", 1]]);
    assert.deepEqual([page.$("#Head").prop("checked"), page.focused()], [true, "Head"]);
    page.$("#ei-items0 li").first().trigger("focus");
    page.key(KEY.RIGHT, ALT);
    assert.deepEqual(page.told(info).map(([name]) => name), ["changeOrder", "changeOrder"]);
});

viewTest("the font dialog is that of its place, and each control acts at once", async (page, info) => {
    page.click(".left-upper .portlet-font");
    const asked = info.log.filter(([name]) => /^(get|is)(?!.*List$|Collective)/.test(name));
    assert.deepEqual(asked.filter(([, group]) => group !== 2), [], "no value is that of another place");
    assert.deepEqual(page.told(info), [["backupFontSettings", 2]]);
    assert.deepEqual([page.$("#font-place").text(), page.val("#editinfo_fontsetting_fontname"), page.val("#numberWidth"),
        page.val("#column-count"), page.val("#column-spacing"), page.locked("#column-spacing")],
    ["Left upper", "Mono", "102", "3", "40", true]);
    assert.deepEqual(["#font-bold", "#use-background", "#to-column", "#fixed-ratio", "#collective"].map((box) =>
        page.$(box).prop("checked")), [true, true, false, true, true]);
    assert.deepEqual(["#font-color-span", "#background-color-span"].map((box) => page.$(box).attr("data-color")),
        ["#00ff00", "#000080"]);
    assert.ok(page.locked("#column-count"));
    page.check("#use-background");
    page.check("#to-column");
    page.choose("#column-count", "2");
    ["10000", "-1"].forEach((text) => page.enter("#column-spacing", text));
    page.focus("#column-spacing").down(KEY.UP);
    page.one("#column-spacing").blur();
    page.check("#fixed-ratio");
    page.check("#collective");
    page.click("#background-color-span");
    page.click("#background-color-span-palette button[title='#ff0000']");
    assert.deepEqual(page.told(info), [["setUseBackgroundColor", false], ["setToColumn", true], ["setColumnNum", "2"],
        ["setColumnSpacing", 9999], ["setColumnSpacing", 0], ["setColumnSpacing", 1], ["setFixedFontSizeRatio", false],
        ["setCollectiveSetting", false], ["setBackgroundColor", "#ff0000"]]);
    assert.equal(await drawn(page, info), 1);
    page.click("#editfont_dialog_ok");
    assert.deepEqual(page.told(info), [["writeFontOK"]]);
    assert.equal(await drawn(page, info), 1);
    assert.equal(page.$(page.document.activeElement).closest(".portlet").is(".left-upper"), true);
    page.click(".lower .portlet-font");
    assert.deepEqual([page.$("#font-place").text(), page.val("#numberWidth")], ["Lower", "106"]);
    assert.deepEqual(["#use-background", "#to-column", "#fixed-ratio"].map((box) => page.$(box).prop("checked")),
        [true, false, true]); // not what the place before was given
    assert.equal(page.val("#background-color-span-palette input"), "#000080");
    assert.ok(page.locked("#column-count"));
    page.focus("#fixed-ratio").key(KEY.ESCAPE);
    assert.deepEqual(page.told(info), [["backupFontSettings", 6], ["restoreFontSettings"]]);
    page.click(".lower .portlet-font");
    page.document.activeElement.blur(); // as a press on the title does
    page.key(KEY.ESCAPE);
    assert.deepEqual(page.told(info), [["backupFontSettings", 6], ["restoreFontSettings"]]);
    assert.equal(page.$(".ui-dialog:visible").length, 0);
});

viewTest("a reset asks first and fills all lists anew; Enter is OK", async (page, info) => {
    info.answers.confirm = false;
    page.click("#editinfo_reset");
    Object.assign(info.answers, {confirm: true, getDisplayBlankLine: true,
        getInfoSettingsHtml: (group) => (group === 4 ? item("Trigger") : "")});
    page.click("#editinfo_reset");
    const told = page.told(info);
    assert.deepEqual(told.slice(0, 3), [...Array(2).fill(["confirm", "Do you reset information setting ?"]), ["reset"]]);
    assert.deepEqual(told.filter(([name]) => name === "backupFontSettings").map(([, group]) => group), [1, 2, 3, 4, 5, 6]);
    assert.deepEqual(told.slice(3, 19), [["setCollectiveSetting", false], ["setWithinImage", false], ["backupFontSettings", 1],
        ["setFontName", "Sans Serif"], ["setFontSize", "18"], ["setBold", false], ["setItalic", false], ["setForegroundColor", "#ffffff"],
        ["setAlignment", 0], ["setWidth", 1600], ["setUseBackgroundColor", false], ["setBackgroundColor", "#000000"],
        ["setToColumn", true], ["setColumnNum", "3"], ["setColumnSpacing", 40], ["setFixedFontSizeRatio", false]]);
    assert.deepEqual(told.filter(([name]) => name === "setWidth").map(([, width]) => width), [1600, 500, 500, 500, 500, 1600]);
    assert.deepEqual(told.slice(-3), [["setColumnNum", "2"], ["setColumnSpacing", 40], ["setFixedFontSizeRatio", false]]);
    assert.deepEqual([order(page, 1), order(page, 4), page.$("#blankline").prop("checked")], ["", "Trigger", true]);
    page.focus("#Trigger").key(KEY.ENTER);
    page.click("#ok_btn");
    page.click("#cancel_btn");
    assert.deepEqual(page.told(info), [["ok"], ["ok"], ["cancel"]]);
});
