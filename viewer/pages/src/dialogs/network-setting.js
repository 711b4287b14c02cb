import $ from "../jquery.js";
import { inputIpCheck } from "../zel4func/ip-check.js";
import { startDialog } from "./dialog.js";

// How and where the camera search looks: 0 all networks of this computer, 1 the network of an address.

const BOXES = ["#ip1", "#ip2", "#ip3"];
const BY_ADDRESS = 1;

function way() {
    return Number($("input[name=search_way]:checked").val());
}

function rule() {
    const byAddress = way() === BY_ADDRESS;
    const right = BOXES.every(box => inputIpCheck($(box).val(), false));
    window.zel4func.disable($(BOXES.join(", ")), !byAddress);
    window.zel4func.disable($("#ok_btn"), byAddress && !right);
}

$(() => {
    const mediator = window.cameranetworksetting;
    startDialog(mediator, "#ok_btn");
    const address = String(mediator.getCameraSearchIPAddress()).split(".");
    BOXES.forEach((box, i) => $(box).val(address[i] || ""));
    $(`input[name=search_way][value=${mediator.getCameraSearchWay() === BY_ADDRESS ? BY_ADDRESS : 0}]`).prop("checked", true);
    $("input").on("change input keyup", rule);
    rule();
    $("#ok_btn").on("click", () => {
        mediator.setCameraSearchWay(way());
        if (way() === BY_ADDRESS) {
            mediator.setCameraSearchIPAddress(BOXES.map(box => Number($(box).val())).concat(0).join("."));
        }
        mediator.ok();
    });
    $("#cancel_btn").on("click", () => mediator.cancel());
});
