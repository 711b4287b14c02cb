// The dialogs' pages: what OK takes, what it refuses and why, and what stays of what the user has typed.
import assert from "node:assert/strict";
import {KEY, pageTest, recorder} from "../support/page.mjs";

const same = (text) => text;
const mediator = (answers) => recorder({translate: same, getStyle: "dark", ...answers});

const FILE = {original: true, userFileName: "mine", addTime: false, addTimeFormat: "yyyyMMdd"};
const NAME = "#camerasettings_filename_edit_dialog_";

const settingsTest = (title, body) => pageTest(title, "camerasettings.html", () => ({
    cameraSettings: mediator({
        getFilePathSettings: {FolderPath: "/data", FileName: "mine.zcsx"}, recvFileNameDialogData: FILE,
        addDateTime: (format) => `<${format}>`,
        getDeviceInfoList: [JSON.stringify({key: "1", found: "found"}), JSON.stringify({key: "2", found: ""})],
        getPresetList: ["1", "2"].map((key) => JSON.stringify({key, name: `C${key}`,
            presets: [{presetno: 1, selected: key === "1"},
                {presetno: 2, selected: false}], selNone: false}))
    })
}), (page, {cameraSettings}) => body(page, cameraSettings));

settingsTest("settings go to a file, or to the presets that are chosen for the cameras that are there", async (page, settings) => {
    const presets = () => page.$("#camerasettings_preset_item_list input").get().map((box) => box.disabled);
    assert.ok(presets().every(Boolean) && page.shown("#camerasettings_camera_lock")
        && !page.locked("#camerasettings_path_edit"));
    page.check("#camerasettings_to_place_preset");
    assert.deepEqual([page.locked("#camerasettings_filename_edit"), page.shown("#camerasettings_camera_lock")],
        [true, false]);
    assert.deepEqual(Array.from(presets()), [false, false, false, true, true, true]);
    page.check("#preset_1_2");
    page.window.camerasettings_obj.refresh();
    assert.deepEqual([page.$("#preset_1_2").prop("checked"), page.$("#preset_2_none").prop("checked")], [true, true]);
    page.click("#camerasettings_OK");
    assert.deepEqual(JSON.parse(page.told(settings)[0][1]), {dialogMode: 1, directoyPath: "/data", filePath: "mine.zcsx",
        presetList: [{key: "1", value: "2"}, {key: "2", value: "-1"}]});
    page.check("#to_place_file");
    assert.ok(presets().every(Boolean) && !page.locked("#camerasettings_filename_edit"));
    settings.answers.getFilePathSettings = {FolderPath: "/other", FileName: "b"};
    page.click("#camerasettings_path_edit");
    assert.deepEqual([page.told(settings), page.val("#camerasettings_path"), page.val("#camerasettings_filename")],
        [[["openFolder"]], "/other", "b"]);
    page.click("#camerasettings_cancel");
    assert.deepEqual(page.told(settings), [["cancel"]]);
});

settingsTest("the file's name: what was typed lives through the camera's name and back", async (page, settings) => {
    page.click("#camerasettings_filename_edit");
    const preview = () => page.$("#camerasettings_filename_preview").text();
    const sent = () => JSON.parse(page.told(settings, /^send/)[0][1]);
    page.type(`${NAME}user_file_name`, "a/b");
    assert.deepEqual([preview(), page.texts(".ui-dialog-title")], ["ab", ["Edit Filename"]]);
    page.check(`${NAME}camera_name`);
    assert.deepEqual([preview(), page.locked(`${NAME}user_file_name`), page.val(`${NAME}user_file_name`)],
        ["[CAMERA]", true, ""]);
    page.check(`${NAME}user`);
    assert.equal(preview(), "ab");
    page.check(`${NAME}camera_name`);
    page.check(`${NAME}add_timestamp`);
    page.$(`${NAME}add_timestamp_format`).val("HHmmss").trigger("change");
    assert.equal(preview(), "[CAMERA]_<HHmmss>");
    page.click("#camerasettings_filename_ok");
    assert.deepEqual(sent(), {original: false, userFileName: "ab", addTime: true, addTimeFormat: "HHmmss"});
    page.click("#camerasettings_filename_edit"); // the second time, from what is stored
    assert.deepEqual([preview(), page.locked(`${NAME}add_timestamp_format`)], ["mine", true]);
    page.type(`${NAME}user_file_name`, "");
    page.click("#camerasettings_filename_ok");
    assert.deepEqual(page.told(settings, /^(send|alert)/), [["alert", "Invalid filename."]]);
    page.click("#camerasettings_filename_cancel");
    settings.answers.recvFileNameDialogData = {...FILE, addTime: true, addTimeFormat: "yyMMdd"};
    page.click("#camerasettings_filename_edit");
    assert.deepEqual([preview(), page.val(`${NAME}add_timestamp_format`)], ["mine_<yyMMdd>", "yyMMdd"]);
    assert.ok(page.shown(`${NAME}user`));
    page.click("#camerasettings_filename_cancel");
    assert.deepEqual([page.told(settings, /^send/), page.shown(`${NAME}user`)], [[], false]);
    settings.answers.recvFileNameDialogData = "";
    page.click("#camerasettings_filename_edit");
    assert.ok(!page.shown(`${NAME}user`));
});

const found = (id, more) => ({id, name: `C${id}`, address: `10.0.0.${id}`, mask: "255.0.0.0", gateway: "10.0.0.1",
    mac: `m${id}`, adapter: "eth",
    adapteraddress: "10.0.0.9", reachable: true, reason: "", connected: false, ...more});
const discoveryTest = (title, body) => pageTest(title, "discovery_search.html", () => ({
    discoverysearch: mediator({getSearchResults: JSON.stringify([found(1), found(2),
        found(3, {reachable: false, reason: "Other net"}), found(4, {connected: true})])}),
    searchsettings: mediator({place: "10.0.0.*", openSettings: false, areConnected: false})
}), (page, {discoverysearch, searchsettings}) => body(page, discoverysearch, searchsettings));

discoveryTest("cameras that were found are connected, and what was ticked and typed outlives a new search", async (page, search, settings) => {
    const box = (i) => `#found tr[data-index=${i}] input`;
    assert.deepEqual([0, 1, 2, 3].map((i) => page.locked(box(i))), [false, false, true, true]);
    assert.deepEqual([page.texts("#found tbody td:last-child"), page.locked("#connect_btn"), page.locked("#set_btn")],
        [["Reachable", "Reachable", "Other net", "In the list"], true, true]);
    assert.equal(page.$("#place").text(), "Cameras found: 3; already in the list: 1 Searched at %1 only.");
    page.focus("#found tr[data-index=0]").key(KEY.SPACE);
    assert.ok(page.$(box(0)).prop("checked") && !page.locked("#connect_btn"));
    page.key(KEY.SPACE);
    assert.ok(page.locked("#connect_btn"));
    page.check(box(1));
    page.click("#found tr[data-index=2] td:last-child");
    page.type("#address", "10.0.0.77");
    search.answers.getSearchAgainResults = JSON.stringify([found(3, {reachable: false}), found(2)]);
    page.click("#again_btn");
    assert.deepEqual([page.$(box(1)).prop("checked"), page.val("#address"),
        page.$("#found .ui-selected").attr("data-index")],
    [true, "10.0.0.77", "0"]);
    search.answers.getSearchAgainResults = JSON.stringify([found(3, {reachable: false}), found(2), found(5)]);
    page.click("#connect_btn"); // in vain: what is there now shows
    assert.deepEqual([page.$("#found tbody tr").length, page.$(box(1)).prop("checked")], [3, true]);
    assert.deepEqual(page.told(search, /^(connect|accept|set)/), [["connect", "[2]"]]);
    settings.answers.areConnected = true;
    page.click("#connect_btn");
    assert.deepEqual(page.told(search, /^(connect|accept|set)/), [["connect", "[2]"], ["accept"]]);
    page.type("#mask", "255.0.0");
    assert.ok(page.locked("#set_btn") && page.$("#mask").hasClass("wrong") && page.shown("#wrong_address"));
    page.type("#mask", "255.0.0.0");
    assert.ok(!page.$("#mask").hasClass("wrong") && !page.shown("#wrong_address"));
    search.answers.getSearchAgainResults = JSON.stringify([found(3, {address: "10.0.0.78"})]);
    page.click("#set_btn");
    assert.deepEqual(JSON.parse(page.told(search, /^set/)[0][1]),
        {adapteraddress: "10.0.0.9", ipaddress: "10.0.0.77", subnetmask: "255.0.0.0",
            defaultgateway: "10.0.0.1", macaddress: "m3"});
    assert.equal(page.val("#address"), "10.0.0.78", "the search found another");
    page.click("#settings_btn"); // cancelled: nothing is searched again
    page.click("#close_btn");
    assert.deepEqual(page.told(search, /^(get|reject)/), [["reject"]]);
});

discoveryTest("rows of cameras that were found: what they tell, keys, and none", async (page, search, settings) => {
    assert.deepEqual(page.texts("#found tr[data-index=2] td"), ["", "C3", "10.0.0.3", "m3", "eth", "Other net"]);
    assert.deepEqual(Array.from(page.$("#found tbody td:last-child"), (node) => node.className),
        ["reachable", "reachable", "unreachable", "in-list"]);
    assert.equal(page.$("#found tr[data-index=1] input").attr("aria-label"), "C2");
    const at = () => [page.document.activeElement.getAttribute("data-index"), page.$("#found [aria-selected=true]").attr("data-index"),
        page.val("#address")];
    const fields = () => ["address", "mask", "gateway", "set_btn"].map((id) => page.locked(`#${id}`));
    assert.deepEqual([at(), fields(), page.shown("#wrong_address")], [["0", undefined, ""], [true, true, true, true], false]);
    [KEY.DOWN, KEY.DOWN, KEY.DOWN, KEY.UP].forEach((key) => page.key(key));
    assert.deepEqual([at(), fields()], [["2", "2", "10.0.0.3"], [false, false, false, false]]);
    page.focus("#found tr[data-index=3]").key(KEY.ENTER);
    assert.deepEqual(at(), ["3", "3", "10.0.0.4"]);
    page.type("#gateway", "10.0.0.256");
    assert.deepEqual([Array.from(page.$(".wrong"), (box) => box.id), fields()], [["gateway"], [false, false, false, true]]);
    settings.answers.openSettings = true;
    settings.answers.place = "";
    search.answers.getSearchAgainResults = "[]";
    page.click("#settings_btn");
    assert.deepEqual([page.shown("#none_found"), fields(), page.val("#address"), page.$("#place").text()],
        [true, [true, true, true, true], "", "Cameras found: 0; already in the list: 0"]);
    search.answers.getSearchAgainResults = JSON.stringify([found(1)]);
    page.click("#again_btn");
    assert.ok(!page.shown("#none_found") && !page.shown("#wrong_address"));
});

const point = (key, selected) => JSON.stringify({key, ssid: `<b>${key}</b>`, mac: `m${key}`, receive: 50, wificonnect: "here",
    selected: selected ? "ui-selected" : ""});
pageTest("access points: chosen by mouse and keys, connected once", "wifi_setting_dialog.html", () => {
    let chosen = -1;
    return {wifisetting: mediator({getAccessPointList: () => [0, 1, 2].map((key) => point(key, key === chosen)),
        getSelectedNo: () => chosen,
        setSelectedNo: (no) => { chosen = no; }, getConnectedNo: 2})};
}, async (page, {wifisetting}) => {
    const locks = () => ["password", "connect", "disconnect"].map((name) => page.locked(`#${name}_btn`));
    assert.deepEqual(locks(), [true, true, false]);
    assert.equal(page.$("#access_points b").length, 0);
    const row = page.$("#access_points [data-key=2]");
    assert.deepEqual([Array.from(row.children(), (part) => part.textContent), row.attr("title"), row.find(".wifi-level").attr("title")],
        [["<b>2</b>", "here", "50 %"], "m2", "Signal strength"]);
    assert.deepEqual([page.$("#access_points [tabindex=0]").attr("data-key"), page.shown("#no_points")], ["0", false]);
    page.click("#access_points [data-key=0]");
    assert.deepEqual(locks(), [false, false, false]);
    page.click("#connect_btn");
    page.focus("#access_points [data-key=0]").key(KEY.DOWN);
    page.key(KEY.DOWN);
    page.key(KEY.UP);
    assert.deepEqual(Array.from(page.$("#access_points [aria-selected=true]"), (item) => item.tabIndex), [0]);
    page.key(KEY.DOWN);
    assert.deepEqual([locks(), page.document.activeElement.getAttribute("data-key")], [[false, true, false], "2"]);
    page.click("#password_btn");
    page.click("#scan_btn");
    page.click("#disconnect_btn");
    page.click("#close_btn");
    assert.deepEqual(page.told(wifisetting, /^(set|input|scan|connect|disconnect|onClose)/).map((call) => call.join(" ")),
        ["setSelectedNo 0", "connectWifi", ...[1, 2, 1, 2].map((no) => `setSelectedNo ${no}`), "inputPassword 2", "scanWifi", "disconnectWifi",
            "onClose"]);
    page.$("#access_points").children().last().trigger("focus");
    page.key(KEY.SPACE);
    assert.deepEqual(page.told(wifisetting), [["setSelectedNo", 2]]);
    wifisetting.answers.getConnectedNo = -1;
    page.click("#scan_btn");
    assert.deepEqual(locks(), [false, false, true]);
    wifisetting.answers.getAccessPointList = [];
    page.click("#scan_btn");
    assert.ok(page.shown("#no_points"));
});

pageTest("the search settings check the address only where one is asked for", "camera_network_setting.html", () => ({
    cameranetworksetting: mediator({getCameraSearchIPAddress: "10.20.30.0", getCameraSearchWay: 0})
}), async (page, {cameranetworksetting: object}) => {
    const sent = () => page.told(object, /^(set|ok|alert|cancel)/);
    assert.deepEqual([page.val("#ip3"), page.locked("#ip1"), page.$("#way_all").prop("checked")], ["30", true, true]);
    page.click("#ok_btn");
    assert.deepEqual(sent(), [["setCameraSearchWay", 0], ["ok"]]);
    page.check("#way_address");
    assert.ok(!page.locked("#ip1"));
    page.enter("#ip2", "300");
    page.click("#ok_btn");
    assert.deepEqual(sent(), [["alert", "Input IPAddress"]]);
    page.type("#ip2", "2");
    page.key(KEY.ENTER);
    assert.deepEqual(sent(), [["setCameraSearchIPAddress", "10.2.30.0"], ["setCameraSearchWay", 1], ["ok"]]);
    page.check("#way_all");
    assert.ok(page.locked("#ip3"));
    page.click("#cancel_btn");
    assert.deepEqual(sent(), [["cancel"]]);
});

pageTest("the search settings show the way that is stored", "camera_network_setting.html", () => ({
    cameranetworksetting: mediator({getCameraSearchIPAddress: "10.20", getCameraSearchWay: 1})
}), (page) => {
    assert.deepEqual([page.one("#way_address").checked, page.locked("#ip1"), page.val("#ip2"), page.val("#ip3")],
        [true, false, "20", ""]);
});

pageTest("passwords are handed over only when they pass", "change_password_dialog.html", () => ({
    changepass: mediator({getOldPassword: "old", getNewPassword: "new",
        checkPass: (before, first, second) => first === second})
}), async (page, {changepass}) => {
    assert.deepEqual([page.val("#old_password"), page.focused()], ["old", "old_password"]);
    assert.deepEqual([page.val("#new_password"), page.val("#new_password2"), page.one("#old_password").selectionStart], ["new", "new", 0]);
    page.type("#new_password", "a");
    page.key(KEY.ENTER);
    assert.deepEqual(page.told(changepass, /^on/), []);
    page.type("#new_password2", "a");
    page.click("#ok_btn");
    page.click("#cancel_btn");
    assert.deepEqual(page.told(changepass, /^on/), [["onOk", "old", "a"], ["onCancel"]]);
});

pageTest("a password is asked for", "input_password_dialog.html", () => ({inputpass: mediator({getPassword: "p", checkBytes: false})}),
    async (page, {inputpass}) => {
        assert.deepEqual([page.val("#password"), page.focused(), page.one("#password").selectionStart], ["p", "password", 0]);
        page.key(KEY.ENTER);
        assert.deepEqual(page.told(inputpass, /^on/), []);
        inputpass.answers.checkBytes = true;
        page.type("#password", "pp");
        page.click("#ok_btn");
        page.focus("#cancel_btn").key(KEY.ENTER); // the button's own
        page.click("#cancel_btn");
        assert.deepEqual(page.told(inputpass, /^on/), [["onOk", "pp"], ["onCancel"]]);
    });

pageTest("the native list tells the slot of the list that shows", "select_list.html", () => ({items: mediator({})}), async (page, {items}) => {
    const rows = [1, 2, 3].map((value) => ({value, text: `<i>${value}</i>`, selected: value === 2, empty: false,
        separated: false}));
    const told = () => page.told(items, /^(slot|hideSelectBox)/);
    await page.emit(items, "signalShowPartition", [{...rows[0], empty: true}, {...rows[1], selected: false}, {...rows[2], separated: true}]);
    const list = Array.from(page.$("#select_list li"));
    assert.deepEqual(list.map((row) => row.className), ["empty active", "", "separated"], "none is selected: from the first");
    assert.equal(list[1].title, "<i>2</i>");
    await page.emit(items, "signalSetHeight", 40);
    assert.equal(page.one("#select_list").style.height, "40px");
    await page.emit(items, "signalShowPartition", rows);
    assert.deepEqual(Array.from(page.$("#select_list [aria-selected=true]"), (row) => row.className), ["selected active"]);
    assert.equal(page.focused(), "select_list");
    items.answers.getStyle = "light";
    page.key(KEY.ENTER);
    page.click("#select_list li[data-value=3]");
    assert.deepEqual(told(), [["slotNotifyPartition", "2"], ["slotNotifyPartition", "3"]]);
    await page.emit(items, "signalShowVariable", JSON.stringify(rows));
    assert.ok(page.$("html").is(".style-light"));
    page.key(KEY.DOWN);
    page.key(KEY.SPACE);
    await page.emit(items, "signalShowVariableRegist", JSON.stringify(rows.slice(0, 1)));
    assert.equal(page.$("#select_list li").length, 1);
    page.key(KEY.ENTER);
    page.key(KEY.ESCAPE);
    assert.deepEqual(told(), [["slotNotifyVariable", "3"], ["slotNotifyVariableRegist", "1"], ["hideSelectBox"]]);
});
