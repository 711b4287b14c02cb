// The dialogs that add and edit a camera: what OK takes, what it refuses and why, how an address is typed.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";

const same = (text) => text;
const mediator = (answers) => recorder({translate: same, getStyle: "dark", ...answers});
const boxes = (page, prefix) => [1, 2, 3, 4].map((i) => page.val(`#${prefix}${i}`)).join(".");

const ADD = {DefaultCameraName: "New", DefaultIPAddress: "192.168.0.10", DefaultDummyIPAddress: "999.999.999.2"};
const addTest = (title, body) => pageTest(title, "livecontrol_adddevice.html", () => ({
    adddevice: mediator({getAddDeviceDialogSettings: ADD}),
    adddeviceAutoCameraName: mediator({existsAutoCompleteFile: true, autoCompleteCameraList: JSON.stringify([
        {label: "Line 1", category: "Hall"}, {label: "Line 2", category: "Hall"}, {label: "Press", category: "Shop"}])})
}), (page, {adddevice}) => body(page, adddevice));

addTest("a device is added by OK or by the release of Enter, with what is just typed", async (page, add) => {
    assert.deepEqual([page.focused(), page.one("#deviceName").selectionStart], ["deviceName", 0]);
    const takes = (sign) => page.one("#deviceName").dispatchEvent(new page.window.KeyboardEvent("keypress",
        {bubbles: true, cancelable: true, which: sign.charCodeAt(0)}));
    assert.deepEqual([..."a %:/\t"].filter(takes), ["a", "\t"], "no blank before a name either");
    page.one("#deviceName").setSelectionRange(1, 1);
    assert.ok(takes(" "));
    page.type("#deviceName", " Cam: 7 ");
    page.down(KEY.ENTER);
    assert.deepEqual(page.told(add), [], "a held key repeats");
    page.up(KEY.ENTER);
    assert.deepEqual(page.told(add), [["ok", "Cam 7", "192.168.0.10", false]]);
    page.type("#ip4", "99");
    page.click("#ok_btn");
    assert.deepEqual(page.told(add), [["ok", "Cam 7", "192.168.0.99", false]]);
    page.focus("#cancel_btn").key(KEY.ENTER); // the button's own
    assert.equal(page.focus("#deviceName").down(KEY.ENTER), false);
    page.window.dispatchEvent(new page.window.Event("blur"));
    page.up(KEY.ENTER); // over another window, for which it is
    assert.deepEqual(page.told(add), []);
    page.click("#cancel_btn");
    assert.deepEqual(page.told(add), [["cancel"]]);
});

pageTest("what could not be added stands there again", "livecontrol_adddevice.html", () => ({
    adddevice: mediator({getAddDeviceDialogSettings: ADD, translate: (text) => `~${text}`, getStyle: "light",
        getTyped: {name: "Press <3", ipAddress: "999.999.999.7", isDummy: true}}),
    adddeviceAutoCameraName: mediator({existsAutoCompleteFile: false})
}), async (page, {adddevice}) => {
    assert.deepEqual([page.$("html").hasClass("style-light"), page.$("#cancel_btn").text()], [true, "~Cancel"]);
    assert.deepEqual([page.val("#deviceName"), boxes(page, "ip"), page.locked("#ip1"), page.one("#dummy").checked],
        ["Press <3", "999.999.999.7", true, true]);
    page.type("#deviceName", "Press");
    page.click("#ok_btn");
    assert.deepEqual(page.told(adddevice), [["ok", "Press", "999.999.999.7", true]]);
});

addTest("a device's name is something that can be a file's", async (page) => {
    const {deviceNameCheck} = page.window.zel4func;
    for (const name of ["Camera 1", " Heron ", "カメラ", "a.b"]) {
        assert.ok(deviceNameCheck(name), name);
    }
    for (const name of ["", "  ", "\u00a0", "a/b", "a\\b", "what?", "50%", "a\tb", "a\nb", "<b", "\"a", "a|b", "a:b", "*"]) {
        assert.ok(!deviceNameCheck(name), JSON.stringify(name));
    }
});

addTest("a number that OK would change is told first, and the next press counts", async (page, add) => {
    page.type("#ip4", "255");
    page.click("#ok_btn");
    assert.deepEqual([page.told(add), page.val("#ip4")], [[], "254"]);
    assert.equal(page.$("#notice").text(), "Changed to 254: the box takes 1 to 254.");
    page.click("#ok_btn");
    assert.deepEqual(page.told(add), [["ok", "New", "192.168.0.254", false]]);
    page.enter("#ip1", "300"); // no private net any more
    page.enter("#ip4", "255");
    assert.deepEqual([boxes(page, "ip"), page.$("#notice").text()],
        ["255.168.0.255", "Changed to 255: the box takes 0 to 255."]);
    page.enter("#ip2", "400");
    page.enter("#ip2", "7");
    assert.equal(page.$("#notice").text(), "Changed to 255: the box takes 0 to 255.", "that of the other box comes back");
    page.check("#dummy");
    assert.deepEqual([boxes(page, "ip"), page.$("#notice").text(), page.$(".clamped").length], ["999.999.999.2", "", 0]);
    assert.deepEqual([page.locked("#ip1"), page.locked("#ip4")], [true, false]);
    page.click("#ok_btn");
    assert.deepEqual(page.told(add), [["ok", "New", "999.999.999.2", true]]);
    page.check("#dummy");
    assert.deepEqual([boxes(page, "ip"), page.locked("#ip1")], ["192.168.0.10", false]);
});

addTest("an empty box takes the focus back once; two don't take it from each other", async (page, add) => {
    page.enter("#ip2", "x");
    assert.equal(page.val("#ip2"), "");
    await page.rest();
    assert.equal(page.focused(), "ip2");
    page.type("#ip3", "");
    await page.rest();
    let moves = 0;
    page.$(page.document).on("focusin", () => { moves += 1; });
    await page.rest(20);
    assert.deepEqual([moves, page.focused()], [0, "ip2"]);
    page.click("#ok_btn");
    assert.deepEqual(page.told(add), [["alert", "Input IPAddress"]]);
    page.type("#deviceName", "  ");
    page.click("#ok_btn");
    assert.deepEqual(page.told(add), [["alert", "Input DeviceName"]]);
});

addTest("names are offered by category, Enter takes one and not the dialog", async (page, add) => {
    page.type("#deviceName", "");
    page.key(KEY.DOWN);
    assert.deepEqual(page.texts(".ui-autocomplete li"), ["Hall", "Line 1", "Line 2", "Shop", "Press"]);
    page.key(KEY.DOWN);
    page.key(KEY.ENTER);
    assert.deepEqual([page.val("#deviceName"), page.told(add)], ["Line 1", []]);
});

const EDIT = {CameraName: "Cam", IPAddress: "192.168.0.10", Subnetmask: "255.255.255.0", DefaultGateway: "192.168.0.1",
    ModelName: "M",
    FWVer: "1.0", HeadName: "", DeviceSerialNumber: "7", HeadSerialNumber: "", IsSupportWifi: true, EtherType: 0,
    IsDummy: false,
    isMemoryMode: false};
const editTest = (title, settings, body, answers = {}) => pageTest(title, "livecontrol_editdevice.html", () => ({
    editdevice: mediator({getEditDeviceDialogSettings: {...EDIT, ...settings}, ...answers}),
    editdeviceAutoCameraName: mediator({existsAutoCompleteFile: false})
}), (page, {editdevice}) => body(page, editdevice));

editTest("another interface refills what nobody has changed", {}, async (page, edit) => {
    assert.deepEqual([page.shown("#headname"), page.shown("#deviceSerialNumber")], [false, true]);
    page.enter("#deviceName", "Mine");
    page.enter("#dg4", "2");
    edit.answers.getEditDeviceDialogSettings = {...EDIT, CameraName: "Other", IPAddress: "10.0.0.5",
        DefaultGateway: "10.0.0.1", EtherType: 1};
    page.check("#interface_type_wifi");
    assert.deepEqual([page.val("#deviceName"), boxes(page, "ip"), boxes(page, "dg")],
        ["Mine", "10.0.0.5", "192.168.0.2"]);
    page.click("#ok_btn");
    assert.deepEqual(page.told(edit), [["setEditEtherType", 1],
        ["ok", "Mine", "10.0.0.5", "255.255.255.0", "192.168.0.2"]]);
    edit.answers.getEditDeviceDialogSettings = "";
    page.check("#interface_type_ether");
    assert.equal(boxes(page, "ip"), "10.0.0.5");
});

editTest("what the camera is stands in its words and style", {HeadName: "<Head>", HeadSerialNumber: "9", EtherType: 1,
    IsSupportWifi: false}, async (page, edit) => {
    assert.deepEqual(page.texts("#modelname, #headname, #fwver, #deviceSerialNumber, #headSerialNumber"),
        ["M", "<Head>", "1.0", "7", "9"]);
    assert.deepEqual([page.shown("#deviceInterface"), page.$("input:checked").val(), page.focused()], [false, "1", "deviceName"]);
    assert.deepEqual([page.$("html").hasClass("style-light"), page.$("#cancel_btn").text(), page.$("#sm2").attr("aria-label")],
        [true, "~Cancel", "~Subnetmask 2"]);
    page.enter("#deviceName", " Cam/2 ");
    page.enter("#sm3", "2x5");
    page.click("#ok_btn");
    assert.deepEqual(page.told(edit), [["ok", "Cam2", "192.168.0.10", "255.255.25.0", "192.168.0.1"]]);
    page.type("#deviceName", "");
    page.click("#ok_btn");
    page.click("#cancel_btn");
    assert.deepEqual(page.told(edit), [["alert", "~Input DeviceName"], ["cancel"]]);
}, {translate: (text) => `~${text}`, getStyle: "light"});

editTest("each of the three addresses is looked at", {}, async (page, edit) => {
    for (const [box, back] of [["#ip1", "192"], ["#sm4", "0"], ["#dg2", "168"]]) {
        page.$(box).val("");
        page.click("#ok_btn");
        assert.deepEqual(page.told(edit), [["alert", "Input IPAddress"]], box);
        page.$(box).val(back);
    }
    page.enter("#sm4", "255"); // a mask may end so, a host may not
    page.click("#ok_btn");
    assert.deepEqual(page.told(edit), [["ok", "Cam", "192.168.0.10", "255.255.255.255", "192.168.0.1"]]);
});

for (const [title, facts, open, sent] of [
    ["a dummy's last number alone", {IsDummy: true, IPAddress: "999.999.999.3"}, ["ip4"], "999.999.999.3"],
    ["nothing in memory mode but the name", {isMemoryMode: true, IPAddress: "192.168.0.255"}, [], "192.168.0.255"]
]) {
    editTest(`${title} can be edited`, facts, async (page, edit) => {
        const free = ["ip1", "ip4", "sm1", "dg4"].filter((box) => !page.locked(`#${box}`));
        assert.deepEqual(free, open);
        assert.deepEqual([page.locked("#interface_type_wifi"), page.$("#ok_btn").hasClass("dummy")],
            [Boolean(facts.isMemoryMode), Boolean(facts.IsDummy)]);
        page.click("#ok_btn");
        assert.equal(page.told(edit)[0][2], sent);
    });
}

addTest("an address is typed like one text, pasted whole, and told where it is wrong", async (page) => {
    const TAB = 9;
    page.type("#ip1", "10");
    assert.equal(page.focused(), "ip1");
    page.letters(".");
    assert.equal(page.focused(), "ip2");
    page.type("#ip2", "200");
    assert.equal(page.focused(), "ip3");
    page.letters("."); // of who did not look
    assert.equal(page.focused(), "ip3");
    page.letters(".");
    assert.equal(page.focused(), "ip4");
    page.type("#ip2", "201");
    assert.deepEqual([page.down(TAB), page.focused()], [false, "ip3"]);
    assert.equal(page.down(TAB), true, "goes on as ever");
    page.type("#ip2", "168");
    assert.equal(page.down(TAB, {shiftKey: true}), true);
    page.type("#ip1", "300");
    assert.equal(page.focused(), "ip1", "no number of an address");
    page.type("#ip1", "192");
    page.type("#ip2", "1");
    page.letters(".");
    assert.equal(page.focused(), "ip3", "something was done since");
    page.type("#ip3", "");
    page.letters("."); // nothing there yet
    assert.equal(page.focused(), "ip3");
    page.one("#ip3").value = "123"; // put there, not typed
    page.$("#ip3").trigger("input");
    assert.equal(page.focused(), "ip3");
    page.type("#ip3", "123");
    assert.equal(page.focused(), "ip4");
    page.focus("#ip3").one("#ip3").value = "124";
    page.one("#ip3").setSelectionRange(1, 1); // the first digit was typed over
    page.one("#ip3").dispatchEvent(new page.window.Event("input", {bubbles: true}));
    assert.equal(page.focused(), "ip3");
    assert.equal(page.paste(" 172.16.0.9\n"), false);
    assert.equal(boxes(page, "ip"), "172.16.0.9");
    for (const text of ["172.16.9", "172.16.9.1.2", "172.16.9.x", "1722.16.9.1", ""]) {
        assert.equal(page.paste(text), true, "no address: left to the box");
    }
    page.$("#ip4").prop("disabled", true);
    page.paste("10.1.2.3");
    page.$("#ip4").prop("disabled", false);
    assert.equal(boxes(page, "ip"), "10.1.2.9", "what is fixed stays");
    page.type("#ip2", "");
    page.one("#ip2").blur();
    await page.rest();
    assert.deepEqual([page.focused(), page.$("#notice").text()], ["ip2", "A number from 0 to 255 belongs here."]);
    const takes = (sign, init = {}) => page.document.activeElement.dispatchEvent(new page.window.KeyboardEvent("keypress",
        {bubbles: true, cancelable: true, which: sign.charCodeAt(0), ...init}));
    assert.deepEqual([..."09/:x.\b"].filter((sign) => takes(sign)), ["0", "9", "\b"]);
    assert.deepEqual([takes("v", {ctrlKey: true}), takes("v", {metaKey: true})], [true, true]);
    page.document.hasFocus = () => false; // the user works in another window
    page.one("#ip2").blur();
    await page.rest();
    assert.notEqual(page.focused(), "ip2");
});

addTest("Escape gives a field back what stood there, and takes nothing away", async (page, add) => {
    page.type("#deviceName", "Typed");
    const followed = [];
    page.$("#deviceName").on("input", (event) => followed.push(event.target.value));
    page.key(KEY.ESCAPE);
    assert.deepEqual([page.val("#deviceName"), followed, page.one("#deviceName").selectionStart], ["New", ["New"], 0]);
    assert.equal(page.document.activeElement.dispatchEvent(new page.window.KeyboardEvent("keypress",
        {bubbles: true, cancelable: true, keyCode: KEY.ESCAPE, which: KEY.ESCAPE})), false, "writes no sign");
    page.key(KEY.ESCAPE);
    assert.deepEqual([page.val("#deviceName"), page.told(add)], ["New", []]);
    page.type("#deviceName", "Taken");
    page.one("#deviceName").dispatchEvent(new page.window.Event("change", {bubbles: true})); // as Enter does
    page.type("#deviceName", "Typed");
    page.key(KEY.ESCAPE);
    assert.equal(page.val("#deviceName"), "Taken", "what was taken is what stood there");
});
