import $ from "../../jquery.js";
import {pairsOf, pairsText} from "./choice.js";

// The folder that all goes to, or one for each camera.

/**
 * @param {Object} kind - see kinds.js
 * @param {Function} changed - called after each change
 */
export function folderFields(kind, changed) {
    const settings = window.savefile;
    const dirKey = `${kind.family}/dir`;
    const devicesKey = "export/multipathdevicelist";
    const originalKey = `${kind.family}/dirasoriginal`;
    // What was recorded just now lies beside no file.
    const mayBeBeside = Boolean(kind.original) && (kind.family === "convert" || settings.isFileMode());
    let paths = [];

    /** What is stored of cameras that are not in view stays. */
    function storeDevices() {
        const boxes = $("#device_rows select").get();
        const shown = boxes.map((box) => [box.getAttribute("data-device"), box.value]);
        const others = pairsOf(settings.getPrefString(devicesKey)).filter(([name]) => !shown.some(([each]) => each === name));
        settings.setPrefString(devicesKey, pairsText(others.concat(shown)), false);
    }

    /** A camera that has no folder yet gets the one that its box shows, or its files would go elsewhere. */
    function storeNew(devices) {
        const stored = pairsOf(settings.getPrefString(devicesKey));
        if (paths.length && devices.some((device) => !stored.some(([name]) => name === device.device))) {
            storeDevices();
        }
    }

    function showDevices() {
        paths = JSON.parse(settings.getMultiPaths() || "[]");
        $("#path_rows").empty().append(paths.map((path) => $("<div>", {class: "path-row"}).append(
            $("<span>", {text: `${path.name}: ${path.path}`, title: path.path}),
            $("<button>", {type: "button", text: "×", "data-name": path.name})
                .attr("aria-label", settings.translate("Delete")))));
        const devices = JSON.parse(settings.getMultiPathDevices() || "[]");
        $("#device_rows").empty().toggle(paths.length > 0).append(devices.map((device) => {
            const box = $("<select>", {"data-device": device.device}).attr("aria-label", device.device);
            device.paths.forEach((path) => box.append($("<option>", {value: path.key, text: path.key})));
            return $("<div>", {class: "path-row"}).append($("<span>", {text: device.device}),
                box.val(device.pathselector), $("<span>", {text: device.path}));
        }));
        storeNew(devices);
        window.zel4func.initSumoSelect($("#device_rows select"), 130);
    }

    function show() {
        const folder = settings.getPrefString(dirKey);
        $("#folder").val(folder).attr("title", folder);
        // The names of a batch stand over a dialog that tells the room.
        const free = window.saving ? window.saving.freeSpace(folder) : "";
        $("#free_space").text(folder ? free : settings.translate("Choose a folder."));
        const isBeside = mayBeBeside && settings.getPrefBool(originalKey);
        $("#dir_original").prop("checked", isBeside);
        window.zel4func.disable($("#folder_btn"), isBeside);
        const isSingle = !kind.multi || settings.getPrefBool("export/singlepath") || settings.isFileMode();
        $("#single_path").prop("checked", isSingle);
        $("#multi_paths").toggle(!isSingle);
        if (!isSingle) {
            showDevices();
        }
    }

    /** For a folder without a name: the next number may still be in use after others were deleted. */
    function freeNumber() {
        let number = paths.length + 1;
        while (paths.some((path) => path.name === String(number))) {
            number += 1;
        }
        return String(number);
    }

    function storePaths(pairs) {
        settings.setPrefString("export/multipathlist", pairsText(pairs), false);
        changed();
    }

    $("#folder_btn").on("click", () => {
        const folder = settings.selectFolder(settings.getPrefString(dirKey));
        if (folder) {
            settings.setPrefString(dirKey, folder, false);
            changed();
        }
    });
    $("#original_field").toggle(mayBeBeside);
    $("#dir_original").on("change", (event) => {
        settings.setPrefBool(originalKey, event.target.checked, false);
        changed();
    });
    $("#single_field").toggle(Boolean(kind.multi) && !settings.isFileMode());
    $("#single_path").on("change", (event) => {
        settings.setPrefBool("export/singlepath", event.target.checked, false);
        changed();
    });
    $("#add_path_btn").on("click", () => {
        const folder = settings.selectFolder(settings.getPrefString(dirKey));
        const name = $("#path_name").val().replace(/[|?]/g, "").trim() || freeNumber();
        if (/[|?]/.test(folder || "")) { // they separate what is stored
            settings.alert(settings.translate("The folder's name must not hold \"|\" or \"?\"."));
        } else if (folder && !paths.some((path) => path.name === name)) {
            storePaths(paths.map((path) => [path.name, path.path]).concat([[name, folder]]));
            $("#path_name").val("");
        }
    });
    $("#path_rows").on("click", "button", (event) => storePaths(paths
        .filter((path) => path.name !== $(event.currentTarget).attr("data-name")).map((path) => [path.name, path.path])));
    $("#device_rows").on("change", "select", () => {
        storeDevices();
        changed();
    });
    return {show};
}
