import $ from "../jquery.js";
import {startDialog} from "./dialog.js";

$(() => {
    const mediator = window.changepass;
    startDialog(mediator, "#ok_btn");
    $("#old_password").val(mediator.getOldPassword()).trigger("focus").trigger("select");
    $("#new_password, #new_password2").val(mediator.getNewPassword());
    $("#ok_btn").on("click", () => {
        const fields = ["#old_password", "#new_password", "#new_password2"];
        const [before, first, second] = fields.map((id) => String($(id).val()));
        if (mediator.checkPass(before, first, second)) {
            mediator.onOk(before, first);
        }
    });
    $("#cancel_btn").on("click", () => mediator.onCancel());
});
