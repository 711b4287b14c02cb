import $ from "../jquery.js";
import {inputIpCheck} from "../zel4func/ip-check.js";
import {startDialog} from "./dialog.js";

// How and where the camera search looks: 0 all networks of this computer, 1 the network of an address.

const BOXES = ["#ip1", "#ip2", "#ip3"];
const BY_ADDRESS = 1;

function way() {
    return Number($("input[name=search_way]:checked").val());
}

function rule() {
    window.zel4func.disable($(BOXES.join(", ")), way() !== BY_ADDRESS);
}

function ok(mediator) {
    if (way() === BY_ADDRESS) {
        if (!BOXES.every((box) => inputIpCheck($(box).val(), false))) {
            mediator.alert(mediator.translate("Input IPAddress"));
            return;
        }
        mediator.setCameraSearchIPAddress(BOXES.map((box) => Number($(box).val())).concat(0).join("."));
    }
    mediator.setCameraSearchWay(way());
    mediator.ok();
}

$(() => {
    const mediator = window.cameranetworksetting;
    startDialog(mediator, "#ok_btn");
    const address = String(mediator.getCameraSearchIPAddress()).split(".");
    BOXES.forEach((box, i) => $(box).val(address[i] || ""));
    const stored = mediator.getCameraSearchWay() === BY_ADDRESS ? BY_ADDRESS : 0;
    $(`input[name=search_way][value=${stored}]`).prop("checked", true);
    $("input[name=search_way]").on("change", rule);
    rule();
    $("#ok_btn").on("click", () => ok(mediator));
    $("#cancel_btn").on("click", () => mediator.cancel());
});
