/* global adddevice, adddeviceAutoCameraName, autocameraname_obj, zel4func */
import {dotted, numbersOf} from "./address-rules.js";
import {bindBoxes, bindName, bindOk, boxesOf, fill, isAddressRight, valuesOf} from "./fields.js";

const NONE = {DefaultCameraName: "", DefaultIPAddress: "", DefaultDummyIPAddress: ""};

function load() {
    const text = adddevice.getAddDeviceDialogSettings();
    const settings = text ? JSON.parse(text) : NONE;
    const boxes = boxesOf("ip");
    zel4func.applyStyle(adddevice);
    zel4func.localize(adddevice);
    autocameraname_obj.create(adddeviceAutoCameraName);
    $("#deviceName").val(settings.DefaultCameraName);
    showAddress(boxes, settings.DefaultIPAddress, false);
    bindName($("#deviceName"));
    bindBoxes(boxes, true, adddevice);
    $("#dummy").on("change", function () {
        showAddress(boxes, this.checked ? settings.DefaultDummyIPAddress : settings.DefaultIPAddress, this.checked);
    });
    showTyped(boxes);
    bindOk($("#ok_btn"), () => ok(boxes));
    $("#cancel_btn").on("click", () => adddevice.cancel());
    zel4func.enableUserOperationLog(adddevice);
    $("#deviceName").trigger("focus").trigger("select");
}

/** What was typed into the dialog before, which could not be added. */
function showTyped(boxes) {
    const text = adddevice.getTyped();
    if (text) {
        const typed = JSON.parse(text);
        $("#deviceName").val(typed.name);
        $("#dummy").prop("checked", typed.isDummy);
        showAddress(boxes, typed.ipAddress, typed.isDummy);
    }
}

/** A dummy camera has an address that no network has; only its last number is the user's. */
function showAddress(boxes, address, isDummy) {
    fill(boxes, numbersOf(address));
    boxes.slice(0, 3).forEach((box) => zel4func.disable(box, isDummy));
}

function ok(boxes) {
    const isDummy = $("#dummy").prop("checked");
    if (!zel4func.deviceNameCheck($.trim($("#deviceName").val()))) {
        adddevice.alert(adddevice.translate("Input DeviceName"));
    } else if (!isAddressRight(boxes, true, isDummy)) {
        adddevice.alert(adddevice.translate("Input IPAddress"));
    } else {
        adddevice.ok($("#deviceName").val(), dotted(valuesOf(boxes)), isDummy);
    }
}

$(load);
