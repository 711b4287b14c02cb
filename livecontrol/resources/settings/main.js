/* global cameraSettings, zel4func */
import {bindFileNameDialog, openFileNameDialog} from "./file-name-dialog.js";

const FILE = 0;
const LIST = "#camerasettings_preset_item_list";
const FILE_CONTROLS = "#camerasettings_path, #camerasettings_path_edit, #camerasettings_filename, "
    + "#camerasettings_filename_edit";

/** The object of the page, whose functions others may call. */
const camerasettings_obj = {
    userFileName: "",
    setPanelLock: setPanelLock,
    refresh: refresh,
    getFilePath: getFilePath,
    getPresetList: getPresetList
};
window.camerasettings_obj = camerasettings_obj;

let presetRow = null;
const touched = {}; // what the user has chosen, by row

/** Locks what belongs to the other target. */
function setPanelLock(place) {
    zel4func.disable($(FILE_CONTROLS), place !== FILE);
    $("#camerasettings_camera_lock").toggle(place === FILE);
    // The keyboard reaches what lies under the lock.
    $(LIST).find("input").prop("disabled", place === FILE);
    $(LIST).find(".lost input").prop("disabled", true);
}

/** Keys of the cameras that can't be reached. */
function lostCameras() {
    return zel4func.translateJSONListToObj(cameraSettings.getDeviceInfoList(false))
        .filter((camera) => camera.found === "")
        .map((camera) => camera.key);
}

function target() {
    return Number($("input[name=to_place]:checked").val());
}

function refresh() {
    getFilePath();
    getPresetList();
}

function getFilePath() {
    const text = cameraSettings.getFilePathSettings();
    if (text) {
        const settings = JSON.parse(text);
        $("#camerasettings_path").val(settings.FolderPath);
        $("#camerasettings_filename").val(settings.FileName);
    }
}

/** Rebuilds the list of the cameras; a radio that the user has set is not forgotten. */
function getPresetList() {
    const $list = $(LIST).empty();
    if ($list.hasClass("disabled")) {
        return;
    }
    const lost = lostCameras();
    zel4func.translateJSONListToObj(cameraSettings.getPresetList()).forEach((camera) => {
        camera.lost = lost.indexOf(camera.key) >= 0;
        $list.append(presetRow.render(camera));
    });
    Object.keys(touched).forEach((row) => $list.find(`#${touched[row]}`).prop("checked", true));
    // One camera that is sure to refuse must not keep the others from their presets.
    $list.find(".lost input[value='-1']").prop("checked", true);
    zel4func.updateUserOperationLogHandler(LIST);
    zel4func.localize(cameraSettings);
    setPanelLock(target());
}

/** What is chosen in each row; without a value where nothing is. */
function choices() {
    return $(".device-list .item").toArray().map((row) => ({
        key: $(row).attr("data-key"),
        value: $(row).find("input:checked").val()
    }));
}

function ok() {
    cameraSettings.ok(JSON.stringify({
        dialogMode: target(),
        directoyPath: $("#camerasettings_path").val(),
        filePath: $("#camerasettings_filename").val(),
        presetList: choices()
    }));
}

function load() {
    presetRow = Hogan.compile($("#presetSettingItem").html());
    zel4func.applyStyle(cameraSettings);
    zel4func.localize(cameraSettings);
    $(LIST).on("change", "input", function () {
        touched[this.name] = this.id;
    });
    $("input[name=to_place]").on("click", function () {
        setPanelLock(Number(this.value));
    });
    $("#camerasettings_path_edit").on("click", () => {
        cameraSettings.openFolder();
        refresh();
    });
    bindFileNameDialog(camerasettings_obj);
    $("#camerasettings_filename_edit").on("click", () => {
        openFileNameDialog(camerasettings_obj);
        refresh();
    });
    $("#camerasettings_OK").on("click", ok);
    $("#camerasettings_cancel").on("click", () => cameraSettings.cancel());
    zel4func.enableUserOperationLog(cameraSettings);
    setPanelLock(FILE);
    refresh();
}

$(load);
