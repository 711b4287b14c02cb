/* global livecontrol, zel4func, devicelist_obj */
import {bindAddressKeys} from "../../device/address-keys.js";
import {guardedHandler} from "../frame/guard.js";
import {addressBoxes, searchAddress} from "./address.js";
import {parseSettings} from "../frame/json-text.js";

const BOXES = ["#livecontrol_ip1", "#livecontrol_ip2", "#livecontrol_ip3"];

/** Shows the address that was searched last. */
export function refreshIPAddress() {
    const settings = parseSettings(livecontrol.getIPAddressSettings());
    if (!settings) {
        return;
    }
    // What the user is just typing stays.
    if (!$(document.activeElement).is(BOXES.join(", "))) {
        addressBoxes(settings.IPAddress).forEach((number, i) => $(BOXES[i]).val(number));
    }
}

export function refreshUseIpCameraName() {
    $("#livecontrol_useip_cameraname").prop("checked", livecontrol.isUseIpCameraName());
}

/** Rebuilds the list of devices, unless the user is just choosing in it. */
export function refreshDeviceList() {
    if (devicelist_obj.deviceSelecting) {
        return;
    }
    devicelist_obj.setListName("#livecontrol_device_item_list");
    devicelist_obj.setTemplate("#deviceSettingItem");
    devicelist_obj.createList();
}

export function bindDeviceSettings() {
    $(BOXES.join(", ")).on("keyup input blur", guardedHandler("address", ruleSearch));
    bindAddressKeys(BOXES.map((box) => $(box)), guardedHandler("search", search));
    $("#livecontrol_search").on("click", guardedHandler("search", search));
    $("#livecontrol_discovery").on("click", guardedHandler("discovery", () => livecontrol.discoverySearch()));
    $("#livecontrol_update").on("click", guardedHandler("update cameras", () => livecontrol.updateCameras()));
    $("#livecontrol_useip_cameraname").on("change", guardedHandler("address as name", function () {
        livecontrol.setUseIpCameraName(this.checked);
        livecontrol.updateUI();
    }));
}

function numbers() {
    return BOXES.map((box) => String($(box).val()));
}

function isRight(number) {
    return zel4func.inputIpCheck(number, false);
}

function areNumbersRight() {
    return numbers().every(isRight);
}

// An empty box is not yet wrong.
function markWrong() {
    const wrong = numbers().map((number) => number !== "" && !isRight(number));
    BOXES.forEach((box, i) => $(box).toggleClass("wrong", wrong[i]).attr("aria-invalid", String(wrong[i])));
    $("#livecontrol_ip_wrong").toggle(wrong.some(Boolean));
}

/** Only an address can be searched. Comes after the recording lock, which frees the button whatever the boxes hold. */
export function ruleSearch() {
    zel4func.disable($("#livecontrol_search"), !areNumbersRight());
    markWrong();
}

function search() {
    if (!areNumbersRight()) {
        livecontrol.alert("Input IPAddress");
        return;
    }
    livecontrol.findCameras(searchAddress(numbers()));
}
