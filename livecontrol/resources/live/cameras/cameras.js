/* global livecontrol, zel4func, devicelist_obj */
import {guardedHandler} from "../frame/guard.js";
import {livecontrol_obj} from "../frame/panel.js";

/** What edits the information over the image. */
export const INFO_BUTTONS =
    "#livecontrol_editCommentButton, #livecontrol_editInfoButton, #livecontrol_editCustomButton";

/** Shows whether information stands over the image; its texts can be edited only then. */
export function refreshDisplayInfo() {
    const showing = livecontrol.isDisplayInfoShowing();
    $("#livecontrol_showInfoCheckbox").prop("checked", showing);
    zel4func.disable($(INFO_BUTTONS), !showing);
}

export function refreshConnectedCameraShowing() {
    $("#livecontrol_show_connected_camera").prop("checked", livecontrol.getConnectedCameraShowing());
}

/** Rebuilds the short list of cameras, unless the user is just choosing in it. */
export function refreshCameraList() {
    if (devicelist_obj.deviceSelecting) {
        return;
    }
    devicelist_obj.setListName("#livecontrol_camera_item_list");
    devicelist_obj.setTemplate("#cameraSelectItem");
    devicelist_obj.createList();
}

export function bindCameras() {
    $("#livecontrol_showInfoCheckbox").on("change", guardedHandler("show info", function () {
        livecontrol.setDisplayInfoShowing(this.checked);
        refreshDisplayInfo();
    }));
    $("#livecontrol_editCommentButton").on("click", guardedHandler("comment", () => livecontrol.editComment()));
    $("#livecontrol_editInfoButton").on("click", guardedHandler("information", () => livecontrol.editInfo()));
    $("#livecontrol_editCustomButton").on("click", guardedHandler("custom info", () => livecontrol.editCustom()));
    $("#livecontrol_show_connected_camera").on("change", guardedHandler("connected cameras", function () {
        livecontrol.setConnectedCameraShowing(this.checked);
        livecontrol_obj.update();
    }));
    $("#panels .view-all").on("click", guardedHandler("select all", () => livecontrol.selectAllDocs()));
}
