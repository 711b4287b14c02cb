import $ from "../jquery.js";
import {startDialog} from "./dialog.js";

// The access points that a camera sees. SSIDs come from the air: they are only ever text nodes.

const mediator = () => window.wifisetting;

function cell(kind, text) {
    return $("<span>", {class: kind}).text(text);
}

// In percent.
function levelCell(receive) {
    return cell("wifi-level", `${receive} %`).attr("title", mediator().translate("Signal strength"));
}

function rowOf(point) {
    return $("<li>", {"data-key": point.key, role: "option", tabindex: -1})
        .addClass(point.selected)
        .attr("aria-selected", String(point.selected !== ""))
        .attr("title", point.mac)
        .append(cell("device-name", point.ssid), cell("wifi-state", point.wificonnect), levelCell(point.receive));
}

function refresh() {
    const points = Array.from(mediator().getAccessPointList() || []).map((text) => JSON.parse(text));
    const $list = $("#access_points").empty().append(points.map(rowOf));
    const $stop = $list.children(".ui-selected").length ? $list.children(".ui-selected") : $list.children().first();
    $stop.attr("tabindex", 0);
    $("#no_points").toggle(points.length === 0);
    const selected = mediator().getSelectedNo();
    const connected = mediator().getConnectedNo();
    window.zel4func.disable($("#password_btn"), selected < 0);
    window.zel4func.disable($("#connect_btn"), selected < 0 || selected === connected);
    window.zel4func.disable($("#disconnect_btn"), connected < 0);
    return points.length;
}

function choose(row) {
    mediator().setSelectedNo(Number(row.attr("data-key")));
    refresh();
    $("#access_points .ui-selected").trigger("focus");
}

function act(slot) {
    return () => {
        mediator()[slot]();
        refresh();
    };
}

function bindList() {
    $("#access_points").on("click", "li", (event) => choose($(event.currentTarget))).on("keydown", "li", (event) => {
        const row = $(event.currentTarget);
        const target = {38: row.prev(), 40: row.next(), 32: row}[event.which];
        if (target && target.length) {
            event.preventDefault();
            choose(target);
        }
    });
}

$(() => {
    startDialog(mediator());
    bindList();
    $("#scan_btn").on("click", act("scanWifi"));
    $("#connect_btn").on("click", act("connectWifi"));
    $("#disconnect_btn").on("click", act("disconnectWifi"));
    $("#password_btn").on("click", () => {
        mediator().inputPassword(mediator().getSelectedNo());
        refresh();
    });
    $("#close_btn").on("click", () => mediator().onClose());
    refresh();
});
