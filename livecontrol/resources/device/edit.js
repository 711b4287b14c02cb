/* global autocameraname_obj, editdevice, editdeviceAutoCameraName, zel4func */
import {dotted, isAddress, numbersOf} from "./address-rules.js";
import {bindBoxes, bindName, bindOk, boxesOf, fill, isAddressRight, valuesOf} from "./fields.js";

const DUMMY_NUMBER = "999";
const ADDRESSES = {ip: "IPAddress", sm: "Subnetmask", dg: "DefaultGateway"};
const boxes = {};
// What the fields were filled with last.
let shown = {CameraName: ""};

function load() {
    Object.keys(ADDRESSES).forEach((prefix) => {
        boxes[prefix] = boxesOf(prefix);
        bindBoxes(boxes[prefix], prefix === "ip", editdevice);
    });
    zel4func.applyStyle(editdevice);
    zel4func.localize(editdevice);
    autocameraname_obj.create(editdeviceAutoCameraName);
    bindName($("#deviceName"));
    const settings = readSettings();
    if (settings) {
        refresh(settings);
        lock(settings);
    }
    $("input[name=interface_type]").on("change", function () {
        editdevice.setEditEtherType(Number(this.value));
        const now = readSettings();
        if (now) {
            refresh(now);
        }
    });
    bindOk($("#ok_btn"), ok);
    $("#cancel_btn").on("click", () => editdevice.cancel());
    zel4func.enableUserOperationLog(editdevice);
    $("#deviceName").trigger("focus");
}

function readSettings() {
    const text = editdevice.getEditDeviceDialogSettings();
    return text ? JSON.parse(text) : null;
}

function refresh(settings) {
    fillUntouched(settings);
    $("#ok_btn").toggleClass("dummy", settings.IsDummy);
    $("#modelname").text(settings.ModelName);
    $("#fwver").text(settings.FWVer);
    showText("#headname", settings.HeadName);
    showText("#deviceSerialNumber", settings.DeviceSerialNumber);
    showText("#headSerialNumber", settings.HeadSerialNumber);
    $("#deviceInterface").toggle(settings.IsSupportWifi);
    $("input[name=interface_type]").each((_, radio) => {
        radio.checked = Number(radio.value) === settings.EtherType;
    });
}

/** Fills the fields, but leaves what the user has changed in them. */
function fillUntouched(settings) {
    if ($("#deviceName").val() === shown.CameraName) {
        $("#deviceName").val(settings.CameraName);
    }
    Object.keys(ADDRESSES).forEach((prefix) => {
        const key = ADDRESSES[prefix];
        if (isAddress(valuesOf(boxes[prefix]), shown[key])) {
            fill(boxes[prefix], numbersOf(settings[key]));
        }
    });
    shown = settings;
}

/** A text with its block, which goes when there is nothing to show. */
function showText(selector, text) {
    $(selector).text(text).closest(".field").toggle(text !== "");
}

function lock(settings) {
    const fixed = settings.IsDummy || settings.isMemoryMode;
    boxes.ip.slice(0, 3).concat(boxes.sm, boxes.dg).forEach((box) => zel4func.disable(box, fixed));
    zel4func.disable(boxes.ip[3], settings.isMemoryMode);
    zel4func.disable($("input[name=interface_type]"), settings.isMemoryMode);
}

function ok() {
    if (!zel4func.deviceNameCheck($.trim($("#deviceName").val()))) {
        editdevice.alert(editdevice.translate("Input DeviceName"));
        return;
    }
    const right = isAddressRight(boxes.ip, true, false) && isAddressRight(boxes.sm, false, false) &&
        isAddressRight(boxes.dg, false, false);
    if (!right) {
        editdevice.alert(editdevice.translate("Input IPAddress"));
        return;
    }
    editdevice.ok($("#deviceName").val(), dotted(addressNumbers()), dotted(valuesOf(boxes.sm)),
        dotted(valuesOf(boxes.dg)));
}

function addressNumbers() {
    const numbers = valuesOf(boxes.ip);
    const isDummy = $("#ok_btn").hasClass("dummy");
    return isDummy ? [DUMMY_NUMBER, DUMMY_NUMBER, DUMMY_NUMBER, numbers[3]] : numbers;
}

$(load);
