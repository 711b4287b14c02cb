/* global cameraSettings, zel4func */
import {isAcceptable, previewOf} from "./file-name.js";

const DIALOG = "#camerasettings_filename_edit_dialog";
const CAMERA_NAME = `${DIALOG}_camera_name`;
const USER = `${DIALOG}_user`;
const NAME = `${DIALOG}_user_file_name`;
const ADD_TIME = `${DIALOG}_add_timestamp`;
const FORMAT = `${DIALOG}_add_timestamp_format`;

/** @param {Object} page - keeps what the user typed while the camera's name is chosen */
export function bindFileNameDialog(page) {
    zel4func.initializeTextfield4ProhibitionFilename(NAME);
    zel4func.createDatetimeFormatSelector(FORMAT);
    $(CAMERA_NAME).on("change", () => {
        page.userFileName = $(NAME).val();
        $(NAME).val("");
        lock();
    });
    $(USER).on("change", () => {
        $(NAME).val(page.userFileName);
        lock();
    });
    $(ADD_TIME).on("change", lock);
    $(`${NAME}, ${FORMAT}`).on("input change", previewUpdate);
}

/** Nothing opens if the settings can't be read to their end: OK would write over them. */
export function openFileNameDialog(page) {
    const settings = JSON.parse(cameraSettings.recvFileNameDialogData() || "{}");
    if (settings.addTimeFormat === undefined) {
        return;
    }
    $(DIALOG).dialog({
        title: cameraSettings.translate("Edit Filename"),
        modal: true,
        resizable: false,
        draggable: false,
        width: "auto",
        height: "auto",
        open: () => fill(page, settings),
        buttons: [
            {text: cameraSettings.translate("OK"), id: "camerasettings_filename_ok", click: () => accept(page)},
            {text: cameraSettings.translate("Cancel"), id: "camerasettings_filename_cancel", click: () => leave(page)}
        ]
    });
    zel4func.updateUserOperationLogHandler(".ui-dialog-buttonpane");
}

function fill(page, settings) {
    page.userFileName = settings.userFileName;
    $(USER).prop("checked", settings.original);
    $(CAMERA_NAME).prop("checked", !settings.original);
    $(NAME).val(settings.original ? settings.userFileName : "");
    $(ADD_TIME).prop("checked", settings.addTime);
    showFormat(settings.addTimeFormat);
    lock();
}

/** A format of another program's making is not lost. */
function showFormat(format) {
    if ($(FORMAT).find("option").filter((_, option) => option.value === format).length === 0) {
        $(FORMAT).append($("<option>").val(format).text(format));
    }
    $(FORMAT).val(format);
}

function lock() {
    zel4func.disable($(NAME), !isUser());
    zel4func.disable($(FORMAT), !addsTime());
    previewUpdate();
}

function previewUpdate() {
    $("#camerasettings_filename_preview").text(preview());
}

function preview() {
    const wish = {user: isUser(), name: $(NAME).val(), addTime: addsTime()};
    return previewOf(wish, wish.addTime ? cameraSettings.addDateTime($(FORMAT).val()) : "");
}

function accept(page) {
    if (!isAcceptable(preview())) {
        cameraSettings.alert(cameraSettings.translate("Invalid filename."));
        return;
    }
    cameraSettings.sendFileNameDialogData(JSON.stringify({
        original: isUser(),
        userFileName: isUser() ? $(NAME).val() : page.userFileName,
        addTime: addsTime(),
        addTimeFormat: $(FORMAT).val()
    }));
    leave(page);
}

function leave(page) {
    $(DIALOG).dialog("close");
    page.refresh();
}

function isUser() {
    return $(USER).prop("checked");
}

function addsTime() {
    return $(ADD_TIME).prop("checked");
}
