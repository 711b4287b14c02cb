import $ from "../jquery.js";
import {inputIpCheck} from "../zel4func/ip-check.js";
import {startDialog} from "./dialog.js";

// What a search through all network adapters found. A row of the result: id, name, model, address, mask, gateway, mac,
// adapter, adapteraddress, reachable, reason (why not), connected. All of it comes from the network: text nodes only.

const FIELDS = ["address", "mask", "gateway"];
let cameras = [];

function parse(text) {
    const rows = text ? JSON.parse(text) : [];
    return Array.isArray(rows) ? rows : [];
}

function mark(camera) {
    if (camera.connected) {
        return ["in-list", "In the list"];
    }
    return camera.reachable ? ["reachable", "Reachable"] : ["unreachable", camera.reason];
}

function rowOf(camera, index) {
    const [kind, text] = mark(camera);
    const box = $("<input>", {type: "checkbox", disabled: !camera.reachable || camera.connected})
        .attr("aria-label", camera.name);
    const cells = [camera.name, camera.address, camera.mac, camera.adapter].map((value) => $("<td>").text(value));
    return $("<tr>", {"data-index": index, tabindex: index === 0 ? 0 : -1})
        .append($("<td>").append(box), cells, $("<td>", {class: kind}).text(window.discoverysearch.translate(text)));
}

// What the user ticked, chose and typed stays with its camera, unless the search found another address for it.
function show(rows) {
    const ticked = checked().map((camera) => camera.id);
    const before = chosen();
    cameras = rows;
    $("#found tbody").empty().append(cameras.map(rowOf));
    cameras.forEach((camera, i) => {
        boxOf(i).filter(":enabled").prop("checked", ticked.indexOf(camera.id) >= 0);
    });
    $("#none_found").toggle(cameras.length === 0);
    const place = window.searchsettings.place();
    const listed = cameras.filter((camera) => camera.connected).length;
    const texts = [window.discoverysearch.translate("Cameras found: %1; already in the list: %2")
        .replace("%1", cameras.length - listed).replace("%2", listed)];
    if (place) {
        texts.push(window.discoverysearch.translate("Searched at %1 only.", place));
    }
    $("#place").text(texts.join(" "));
    chooseAgain(before);
}

function chooseAgain(before) {
    const index = before ? cameras.findIndex((camera) => camera.id === before.id) : -1;
    choose(index < 0 ? null : tableRow(index), index >= 0 && hasSameAddress(cameras[index], before));
}

function hasSameAddress(one, other) {
    return FIELDS.every((field) => one[field] === other[field]);
}

function tableRow(index) {
    return $(`#found tbody tr[data-index=${index}]`);
}

function boxOf(index) {
    return tableRow(index).find("input");
}

function chosen() {
    const index = $("#found tr.ui-selected").attr("data-index");
    return index === undefined ? null : cameras[Number(index)];
}

function choose(row, keepsTyped) {
    $("#found tr").removeClass("ui-selected").attr("aria-selected", "false");
    if (row) {
        row.addClass("ui-selected").attr("aria-selected", "true");
    }
    const camera = chosen();
    if (!keepsTyped) {
        FIELDS.forEach((field) => $(`#${field}`).val(camera ? camera[field] : ""));
    }
    ruleButtons();
}

function checked() {
    return $("#found input:checked").closest("tr").get().map((row) => cameras[Number(row.getAttribute("data-index"))]);
}

function isAddress(text) {
    const numbers = String(text).split(".");
    return numbers.length === 4 && numbers.every((number) => inputIpCheck(number, false));
}

function ruleButtons() {
    const wrong = FIELDS.filter((field) => !isAddress($(`#${field}`).val()));
    const right = wrong.length === 0;
    FIELDS.forEach((field) => $(`#${field}`).toggleClass("wrong", Boolean(chosen()) && wrong.indexOf(field) >= 0));
    $("#wrong_address").toggle(Boolean(chosen()) && !right);
    window.zel4func.disable($("#connect_btn"), checked().length === 0);
    window.zel4func.disable($(FIELDS.map((field) => `#${field}`).join(", ")), !chosen());
    window.zel4func.disable($("#set_btn"), !chosen() || !right);
}

// The user knows of a camera that could not be connected; the user may try another way, and sees what is there now.
function connect(mediator) {
    const wanted = checked();
    mediator.connect(JSON.stringify(wanted.map((camera) => camera.id)));
    if (window.searchsettings.areConnected(JSON.stringify(wanted.map((camera) => camera.address)))) {
        mediator.accept();
    } else {
        show(parse(mediator.getSearchAgainResults()));
    }
}

function correct(mediator) {
    const camera = chosen();
    mediator.setNetworkSettings(JSON.stringify({
        adapteraddress: camera.adapteraddress,
        ipaddress: $("#address").val(),
        subnetmask: $("#mask").val(),
        defaultgateway: $("#gateway").val(),
        macaddress: camera.mac
    }));
    show(parse(mediator.getSearchAgainResults()));
}

function bindTable() {
    $("#found").on("click", "tbody tr", (event) => choose($(event.currentTarget)))
        .on("keydown", "tbody tr", (event) => {
            if (event.which === 32 && event.target === event.currentTarget) {
                event.preventDefault();
                $(event.currentTarget).find("input:enabled").trigger("click");
            }
            const row = $(event.currentTarget);
            const target = {38: row.prev(), 40: row.next(), 13: row}[event.which];
            if (target && target.length) {
                event.preventDefault();
                target.trigger("focus");
                choose(target);
            }
        });
}

$(() => {
    const mediator = window.discoverysearch;
    startDialog(mediator);
    bindTable();
    $("#address, #mask, #gateway").on("input keyup", ruleButtons);
    $("#again_btn").on("click", () => show(parse(mediator.getSearchAgainResults())));
    $("#connect_btn").on("click", () => connect(mediator));
    $("#set_btn").on("click", () => correct(mediator));
    $("#settings_btn").on("click", () => {
        if (window.searchsettings.openSettings()) {
            show(parse(mediator.getSearchAgainResults()));
        }
    });
    $("#close_btn").on("click", () => mediator.reject());
    show(parse(mediator.getSearchResults()));
    $("#found tbody tr").first().trigger("focus");
});
