// The list of cameras on its two pages: choosing by mouse and keys, what rows offer, filter, search.
import assert from "node:assert/strict";
import {KEY} from "../support/page.mjs";
import {cameraRow, panelTest} from "../support/panel.mjs";

const LIST = "#livecontrol_device_item_list";
const row = (key) => `${LIST} [data-key=${key}]`;

async function openDevices(page, live) {
    page.window.livecontrol_obj.changePage(1);
    await page.rest();
    page.told(live);
    page.told(page.list);
}

panelTest("rows of devices: buttons, marks and the question before all go", {}, async (page, live) => {
    page.list.answers.getDeviceInfoList = [cameraRow(1), cameraRow(2, {found: "", shutdown: "", "sup-wifi": ""})];
    await openDevices(page, live);
    assert.deepEqual([1, 2].map((key) => page.$(row(key)).find("button:visible").get().map((node) => node.className.split(" ")[0]).join()),
        ["wifi,power,edit,delete", "edit,delete"]);
    const tips = ["Wi-Fi setting", "Turn off or restart; the camera leaves the list until it is found again", "Edit device", "Delete"];
    assert.deepEqual(Array.from(page.$(row(1)).find("button:visible"), (node) => [node.title, node.tabIndex]), tips.map((tip) => [tip, -1]));
    assert.deepEqual([1, 2].map((key) => [page.$(row(key)).find(".link-state").attr("title"), page.$(row(key)).find(".link-lost").text()]),
        [["Connected", ""], ["Not connected", "Not connected"]]);
    assert.deepEqual(["role", "aria-multiselectable"].map((name) => page.$(LIST).attr(name)), ["listbox", "true"]);
    for (const [button, call] of [["wifi", "wifiSetting"], ["power", "controlCameraPower"], ["edit", "editDoc"],
        ["delete", "deleteDoc"]]) {
        page.click(`${row(1)} .${button}`);
        assert.deepEqual(page.told(page.list), [[call, "1"]]);
        await page.rest();
    }
    for (const [part, calls] of [[".delete", []], [".device-name", [["editDoc", "1"]]]]) {
        page.one(`${row(1)} ${part}`).dispatchEvent(new page.window.MouseEvent("dblclick", {bubbles: true}));
        assert.deepEqual(page.told(page.list), calls, part);
    }
    page.$("#livecontrol_adddevice, #livecontrol_deleteall").addClass("disabled");
    page.click("#livecontrol_adddevice");
    page.click("#livecontrol_deleteall");
    assert.deepEqual(page.told(page.list), [], "locked");
    page.$("#livecontrol_adddevice, #livecontrol_deleteall").removeClass("disabled");
    page.click("#livecontrol_adddevice");
    page.list.answers.confirm = false;
    page.click("#livecontrol_deleteall");
    assert.deepEqual(page.told(page.list, /^(add|delete)/), [["addDoc"]]);
    page.list.answers.getDeviceInfoList = Array.from({length: 12}, (_, i) => cameraRow(i, {cameraname: `C${i}`}));
    page.click("#livecontrol_deleteall");
    assert.deepEqual(page.told(page.list, /^confirm/),
        [["confirm", "Do you want to delete all?\nC0, C1, C2, C3, C4, C5, C6, C7, C8, C9, ... (12)"]]);
    page.list.answers.getDeviceInfoList = (isShort) => [cameraRow(1), cameraRow(2)].slice(0, isShort ? 1 : 2);
    page.click("#livecontrol_deleteall");
    assert.deepEqual(page.told(page.list, /^confirm/), [["confirm", "Do you want to delete all?\nCamera 1, Camera 2"]],
        "those that the short list leaves out go as well");
    page.list.answers.getDeviceInfoList = [cameraRow(1), cameraRow(2)];
    page.click(row(2)); // not connected: only marked
    assert.deepEqual(page.told(page.list), [["selectDoc", "2"], ["updateUI"]]);
});

panelTest("ranges by Shift, words, keys and the menu of a row", {}, async (page, live) => {
    page.list.answers.getDeviceInfoList = ["Anna", "Bert", "Berta", "Carl"].map((cameraname, i) => cameraRow(i + 1,
        {cameraname, found: i === 3 ? "" : "found", shutdown: ""}));
    await openDevices(page, live);
    const at = () => page.$(page.document.activeElement).closest("[data-key]").attr("data-key");
    const selected = () => [page.told(page.list).filter(([name]) => name !== "updateUI"), page.told(live)];
    page.click(row(3));
    await page.rest();
    selected();
    page.click(row(1), {shiftKey: true});
    await page.rest();
    assert.deepEqual(selected(), [[["setSelectDoc", "3"]], [["selectDoc", "2"], ["selectDoc", "1"]]]);
    page.click(row(2), {shiftKey: true, ctrlKey: true});
    await page.rest();
    assert.deepEqual(selected(), [[], [["selectDoc", "3"], ["selectDoc", "2"]]], "nobody else leaves the selection");
    page.focus(row(3)).key(KEY.DOWN, {shiftKey: true});
    assert.deepEqual([at(), selected()], ["4", [[["setSelectDoc", "3"], ["selectDoc", "4"]], []]]);
    page.letters("ber");
    assert.equal(at(), "2");
    page.letters("ta");
    assert.equal(at(), "3", "the word goes on");
    page.key(KEY.RIGHT);
    assert.ok(page.$(page.document.activeElement).hasClass("wifi"));
    page.$(row(3)).find(".edit").css("display", "none");
    page.key(KEY.RIGHT);
    assert.ok(page.$(page.document.activeElement).hasClass("delete"), "what is hidden is passed over");
    page.key(KEY.LEFT);
    page.key(KEY.LEFT);
    assert.equal(page.document.activeElement, page.one(row(3)), "back on the row");
    page.key(KEY.UP);
    assert.equal(at(), "2");
    page.key("B".charCodeAt(0), {ctrlKey: true});
    assert.deepEqual(selected(), [[], []]);
    page.key(KEY.F2);
    page.key(KEY.DELETE);
    assert.deepEqual(page.told(page.list), [["editDoc", "2"], ["deleteDoc", "2"]]);
    assert.equal(page.$(`${LIST} [tabindex=0], ${LIST} button:not([tabindex])`).length, 1, "one stop");
    page.key(KEY.MENU);
    assert.deepEqual(page.texts(".row-menu li"), ["Edit device", "Wi-Fi setting", "Delete"], "no power");
    page.key(KEY.DOWN);
    page.key(KEY.ENTER);
    assert.deepEqual([page.told(page.list), at(), page.$(".row-menu").length], [[["wifiSetting", "2"]], "2", 0]);
    page.key(KEY.MENU);
    await page.rest();
    page.key(KEY.UP);
    assert.equal(page.document.activeElement.textContent, "Delete", "round to the last");
    page.key(KEY.ESCAPE);
    assert.deepEqual([page.$(".row-menu").length, at()], [0, "2"]);
    page.key(121, {shiftKey: true});
    await page.rest();
    assert.deepEqual(["role", "tabindex"].map((name) => page.$(".row-menu li").attr(name)), ["menuitem", "-1"]);
    page.$(".row-menu li").last().trigger("mouseover");
    assert.equal(page.document.activeElement.textContent, "Delete");
    page.key(KEY.TAB);
    assert.deepEqual([page.$(".row-menu").length, at()], [0, "2"]);
    page.key(KEY.MENU);
    await page.rest();
    page.key(KEY.SPACE);
    assert.deepEqual(page.told(page.list), [["editDoc", "2"]]);
    page.key(KEY.MENU);
    await page.rest();
    page.window.dispatchEvent(new page.window.Event("blur"));
    assert.equal(page.$(".row-menu").length, 0, "with the window");
    page.focus(row(2));
    page.key(KEY.MENU);
    await page.rest();
    page.click("#livecontrol_page_devicesetting");
    assert.equal(page.$(".row-menu").length, 0, "a press beside it");
    page.list.answers.getDeviceInfoList = [cameraRow(5, {found: ""})];
    await page.update();
    page.focus(row(5)).key(KEY.MENU);
    assert.deepEqual(page.texts(".row-menu li"), ["Edit device", "Turn off or restart", "Wi-Fi setting", "Delete"]);
    page.key(KEY.ESCAPE);
});

panelTest("a range replaces what was chosen, and updates wait for it", {}, async (page, live) => {
    page.list.answers.getDeviceInfoList = [1, 2, 3].map((key) => cameraRow(key, {selected: key > 1 ? "ui-selected" : ""}));
    await openDevices(page, live);
    assert.deepEqual(Array.from(page.$(`${LIST} [tabindex=0]`), (node) => node.getAttribute("data-key")), ["2"]);
    const heldBack = [];
    for (const [mediator, slot] of [[page.list, "setSelectDoc"], [live, "selectDoc"]]) {
        mediator.answers[slot] = () => heldBack.push(page.window.devicelist_obj.deviceSelecting);
    }
    page.click(row(1));
    await page.rest();
    page.click(row(3), {shiftKey: true});
    assert.deepEqual([page.told(page.list, /Doc$/), page.told(live)],
        [[["setSelectDoc", "1"], ["setSelectDoc", "1"]], [["selectDoc", "2"], ["selectDoc", "3"]]], "also those that were in it");
    assert.deepEqual([heldBack, page.window.devicelist_obj.deviceSelecting], [[true, true, true, true], false]);
    const mouse = (type, more) => page.one(row(2)).dispatchEvent(new page.window.MouseEvent(type,
        {bubbles: true, cancelable: true, which: 1, ...more}));
    assert.ok(mouse("mousedown", {}));
    assert.ok(page.window.devicelist_obj.deviceSelecting, "from the press on");
    mouse("mouseup");
    await page.rest();
    assert.ok(!page.window.devicelist_obj.deviceSelecting, "without a click as well");
    assert.ok(!mouse("mousedown", {shiftKey: true}), "no marking of text");
    mouse("mouseup");
});

panelTest("in a list of a page's own the page keeps what is chosen", {}, async (page, live) => {
    page.list.answers.getDeviceInfoList = [1, 2, 3].map((key) => cameraRow(key));
    await openDevices(page, live);
    page.window.devicelist_obj.setSettingMode(true);
    const chosen = () => Array.from(page.$(`${LIST} .ui-selected`), (node) => node.getAttribute("data-key")).join("");
    page.click(row(1));
    assert.equal(chosen(), "1");
    page.click(row(3), {shiftKey: true});
    assert.equal(chosen(), "123");
    page.click(row(2), {ctrlKey: true});
    assert.equal(chosen(), "13");
    page.click(row(2));
    assert.equal(chosen(), "2");
    page.list.answers.getDeviceInfoList = [2, 3, 4].map((key) => cameraRow(key));
    await page.update();
    assert.deepEqual([chosen(), page.$(`${LIST} > [data-key]`).last().attr("data-key")], ["2", "4"], "also over updates");
    assert.deepEqual(page.told(page.list, /Doc/), []);
    page.window.devicelist_obj.setSettingMode(false);
});

panelTest("the menu of a row stays within the window", {}, async (page, live) => {
    await openDevices(page, live);
    const {fn} = page.$;
    const kept = [fn.width, fn.height, fn.outerWidth, fn.outerHeight];
    Object.assign(fn, {width: () => 300, height: () => 200, outerWidth: () => 120, outerHeight: () => 80});
    const openedAt = (clientX, clientY) => {
        page.one(`${row(2)} .device-name`).dispatchEvent(new page.window.MouseEvent("mousedown",
            {bubbles: true, cancelable: true, button: 2, which: 3, clientX, clientY}));
        const {left, top} = page.one(".row-menu").style;
        return [left, top];
    };
    try {
        assert.deepEqual([openedAt(20, 30), openedAt(290, 190)], [["20px", "30px"], ["180px", "120px"]]);
    } finally {
        [fn.width, fn.height, fn.outerWidth, fn.outerHeight] = kept;
    }
    page.key(KEY.ESCAPE);
});

panelTest("a first letter goes on to the next name, a longer word stays where it fits", {}, async (page, live) => {
    page.list.answers.getDeviceInfoList = ["Bert", "Berta", "Bertram"].map((cameraname, i) => cameraRow(i + 1, {cameraname}));
    await openDevices(page, live);
    const at = () => page.$(page.document.activeElement).attr("data-key");
    page.focus(row(1)).letters("b");
    assert.equal(at(), "2");
    page.letters("e");
    assert.equal(at(), "2");
});

panelTest("of several cameras the one whose values show is marked", {}, async (page, live) => {
    page.window.selected_cameras = {currentKey: () => "2", differing: () => ""};
    page.list.answers.getDeviceInfoList = [cameraRow(1), cameraRow(2)];
    await openDevices(page, live);
    const marked = () => Array.from(page.$(`${LIST} .current`), (node) => node.getAttribute("data-key"));
    assert.deepEqual([marked(), page.$(row(2)).find(".device-name").attr("title")], [["2"], "Camera 2 – its values are shown"]);
    assert.deepEqual([1, 2].map((key) => page.$(row(key)).attr("aria-current")), [undefined, "true"]);
    delete page.window.selected_cameras;
    await page.update();
    assert.deepEqual(marked(), []);
});

panelTest("an update makes only those rows anew that have changed", {}, async (page) => {
    const cameras = [1, 2, 3, 4].map((key) => cameraRow(key));
    let current = "2";
    page.window.selected_cameras = {currentKey: () => current, differing: () => ""};
    page.list.answers.getDeviceInfoList = cameras;
    await openDevices(page, page.live);
    const nodes = () => Array.from(page.$(`${LIST} > [data-key]`));
    const kept = (before) => nodes().map((node) => before.indexOf(node));
    const first = nodes();
    await page.update();
    assert.deepEqual(kept(first), [0, 1, 2, 3]);
    assert.equal(page.$(row(2)).find(".device-name").attr("title"), "Camera 2 – its values are shown");
    page.focus(row(4));
    page.list.answers.getDeviceInfoList = [cameras[3], cameras[0], cameraRow(2, {cameraname: "New"}), cameraRow(5)];
    await page.update();
    assert.deepEqual(kept(first), [3, 0, -1, -1], "one goes, one comes, one has another name, one another place");
    assert.deepEqual([page.texts(`${LIST} .device-name`), page.document.activeElement],
        [["Camera 4", "Camera 1", "New", "Camera 5"], first[3]]);
    current = "1";
    const second = nodes();
    await page.update();
    assert.deepEqual(kept(second), [0, -1, -1, 3], "the mark of the current one goes on");
    page.answer({getControlStatus: {IsRecording: true}});
    await page.update();
    const third = nodes();
    assert.equal(page.$(`${LIST} button`).filter((_, node) => node.style.display !== "none").length, 0);
    page.answer({getControlStatus: {}});
    await page.update();
    assert.deepEqual(kept(third), [0, 1, 2, 3]);
    assert.equal(page.$(`${LIST} button`).filter((_, node) => node.style.display === "none").length, 0);
});

panelTest("the row that a question is about is marked until it is answered", {}, async (page, live) => {
    const marked = [];
    page.list.answers.getDeviceInfoList = [cameraRow(1), cameraRow(2)];
    page.list.answers.deleteDoc = () => {
        marked.push(page.$(".asked").attr("data-key"));
        page.window.devicelist_obj.createList(); // an update below the question
        marked.push(...page.$(".asked").get().map((node) => node.getAttribute("data-key")));
    };
    await openDevices(page, live);
    page.click(`${row(2)} .delete`);
    assert.deepEqual([marked, page.$(".asked").length], [["2", "2"], 0]);
    await page.update(); // builds the list anew
    assert.equal(page.$(".asked").length, 0);
});

panelTest("a long list can be filtered, over its updates", {}, async (page, live) => {
    const FILTER = "#livecontrol_page_devicesetting .list-filter";
    const names = () => Array.from(page.$(`${LIST} > [data-key]`)).filter((node) => node.style.display !== "none")
        .map((node) => node.getAttribute("data-key"));
    page.list.answers.getDeviceInfoList = Array.from({length: 13}, (_, i) => cameraRow(i + 1));
    await openDevices(page, live);
    assert.deepEqual(["placeholder", "aria-label"].map((name) => page.$(FILTER).attr(name)), ["Filter cameras", "Filter cameras"]);
    page.type(FILTER, "a 1"); // 1 and 10 to 13
    page.click(row(1));
    await page.rest();
    page.told(live);
    page.click(row(11), {shiftKey: true});
    assert.deepEqual(page.told(live).map(([, key]) => key), ["10", "11"], "nobody whom the filter hides");
    page.type(FILTER, " A 12 ");
    assert.deepEqual(names(), ["12"]);
    await page.update();
    assert.deepEqual([names(), page.val(FILTER)], [["12"], " A 12 "]);
    page.list.answers.getDeviceInfoList = page.list.answers.getDeviceInfoList.slice(0, 12);
    await page.update();
    assert.deepEqual([page.$(FILTER).length, names().length], [0, 12], "nothing stays hidden without the box");
});

panelTest("keys in the list of devices, and the focus over an update", {}, async (page, live) => {
    page.list.answers.getDeviceInfoList = [1, 2,
        3].map((key) => cameraRow(key, {selected: key === 1 ? "ui-selected" : ""}));
    await openDevices(page, live);
    const at = () => page.$(page.document.activeElement).closest("[data-key]").attr("data-key");
    page.focus(row(1)).key(KEY.DOWN);
    assert.deepEqual([at(), page.told(page.list)], ["2", []]);
    page.key(KEY.SPACE);
    assert.deepEqual([page.told(live), page.told(page.list)], [[["selectDoc", "2"]], [["updateUI"]]]);
    page.focus(row(1)).key(KEY.SPACE);
    assert.deepEqual(page.told(live), [["unselectDoc", "1"]]);
    page.key(KEY.END);
    page.key(KEY.ENTER, {ctrlKey: true});
    assert.deepEqual(page.told(live), [["selectDoc", "3"]]);
    page.key(KEY.HOME);
    assert.equal(at(), "1");
    page.key(KEY.END);
    page.told(page.list);
    page.key(KEY.ENTER);
    page.key(KEY.A, {ctrlKey: true});
    assert.deepEqual([at(), page.told(page.list)], ["3", [["setSelectDoc", "3"], ["selectAllDocs"]]]);
    page.click(row(2), {ctrlKey: true});
    assert.deepEqual(page.told(live), [["selectDoc", "2"]]);
    await page.rest();
    page.focus(`${row(3)} .edit`);
    await page.update();
    assert.deepEqual([page.document.activeElement.className.split(" ")[0], at()], ["edit", "3"]);
    assert.deepEqual(page.$(`${LIST} > [tabindex=0]`).attr("data-key"), "3");
    page.document.activeElement.blur();
    await page.update();
    assert.deepEqual(page.$(`${LIST} > [tabindex=0]`).attr("data-key"), "3", "where the keys left it, not what is selected");
    page.focus(`${row(3)} .edit`);
    page.told(page.list);
    page.key(KEY.SPACE); // the button's own
    assert.deepEqual(page.told(page.list), []);
    page.answer({getControlStatus: {IsRecording: true}});
    await page.update();
    page.focus(row(1)).key(KEY.SPACE);
    page.click(row(1));
    assert.deepEqual([page.told(live), page.told(page.list)], [[], []]);
});

panelTest("the address to search: only a right one, and never over what is being typed", {}, async (page, live) => {
    const SEARCH = "#livecontrol_search";
    await openDevices(page, live);
    page.type("#livecontrol_ip2", "");
    assert.deepEqual([page.locked(SEARCH), page.shown("#livecontrol_ip_wrong"), page.$(".address-boxes .wrong").length],
        [true, false, 0], "an empty box is not yet wrong");
    page.type("#livecontrol_ip2", "300");
    assert.ok(page.locked(SEARCH) && page.shown("#livecontrol_ip_wrong"));
    assert.deepEqual(Array.from(page.$(".address-boxes .wrong"), (box) => box.id), ["livecontrol_ip2"]);
    assert.deepEqual([1, 2].map((i) => page.$(`#livecontrol_ip${i}`).attr("aria-invalid")), ["false", "true"]);
    await page.update();
    assert.deepEqual([page.val("#livecontrol_ip2"), page.locked(SEARCH)], ["300", true]);
    page.type("#livecontrol_ip2", "20");
    page.click(SEARCH);
    page.click("#livecontrol_discovery");
    page.check("#livecontrol_useip_cameraname");
    assert.deepEqual(page.told(live), [["findCameras", "192.20.0.0"], ["discoverySearch"], ["setUseIpCameraName", true],
        ["updateUI"]]);
    page.focus("#livecontrol_ip2").key(KEY.ENTER);
    assert.deepEqual(page.told(live), [["findCameras", "192.20.0.0"]]);
    assert.equal(page.paste("172.16.9.1"), false);
    page.key(KEY.ENTER);
    assert.deepEqual(page.told(live), [["findCameras", "172.16.9.0"]], "of a whole address what the boxes take");
    page.one("#livecontrol_ip2").blur();
    await page.update();
    assert.equal(page.val("#livecontrol_ip2"), "168");
    page.click("#livecontrol_load_button");
    assert.deepEqual(page.told(live), [["load"], ["updateUI"], ["checkRestoredPrefs"]]);
    page.click("#livecontrol_devicesetting_closebutton");
    assert.deepEqual(page.told(live, /^setLastPage/), [["setLastPage", 0]]);
});
