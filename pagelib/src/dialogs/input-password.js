import $ from "../jquery.js";
import {startDialog} from "./dialog.js";

$(() => {
    const mediator = window.inputpass;
    startDialog(mediator, "#ok_btn");
    $("#password").val(mediator.getPassword()).trigger("focus").trigger("select");
    $("#ok_btn").on("click", () => {
        const password = String($("#password").val());
        if (mediator.checkBytes(password)) {
            mediator.onOk(password);
        }
    });
    $("#cancel_btn").on("click", () => mediator.onCancel());
});
