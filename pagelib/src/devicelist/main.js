import $ from "../jquery.js";
import {hasSlot} from "../zel4func/page-mediator.js";
import {refreshFilter} from "./filter.js";
import {fillList, focusRowOf, rowOf} from "./list-view.js";
import {openMenu} from "./menu.js";
import {escapingTemplate, parseRows} from "./row-data.js";
import {actionsFor, createRow, hasRowButtons, ROW_BUTTONS} from "./rows.js";
import {bindSelection} from "./selection.js";

// The list of cameras, built from what the mediator reports. A page names the mediator once, and before each rebuild
// the element and the row template.

const EVENTS = ".zelDeviceListButtons";
const DELETE_ALL_QUESTION = "Do you want to delete all?";
const MOST_NAMES = 10; // in a question

const compiled = new Map();
let mediator = null;
let settingMode = false;
let listName = "";
let templateName = "";
let asked = ""; // key of the camera that a question is about

// Slots of the rows lie on the list's mediator or on the panel's own one, which also knows devices with several heads.
function findSlot(name) {
    const owner = [mediator, window.livecontrol].find((object) => hasSlot(object, name));
    if (!owner) {
        return null;
    }
    return (...args) => owner[name](...args); // in a conditional expression the pages' engine can't read an arrow
}

function templateOf(name) {
    const text = escapingTemplate($(name).html());
    if (!compiled.has(text)) {
        compiled.set(text, {template: window.Hogan.compile(text), isShort: !hasRowButtons(text)});
    }
    return compiled.get(text);
}

// In the setting mode a mark is the page's own; the host knows nothing of it.
function keepMarks(list, infos) {
    infos.forEach((info) => {
        info.selected = rowOf(list, String(info.key)).hasClass("ui-selected") ? "ui-selected" : "";
    });
}

// Of several cameras the panel shows the values of one.
function currentKey() {
    const values = window.selected_cameras;
    return hasSlot(values, "currentKey") ? values.currentKey() : "";
}

function markCurrent(row) {
    row.addClass("current").attr("aria-current", "true")
        .find(".device-name").attr("title", (_, title) => `${title} – ${mediator.translate("its values are shown")}`);
}

// All that makes rows what they are, each as one text.
function sourcesOf(infos, templateSelector) {
    const current = currentKey();
    const slots = Object.keys(ROW_BUTTONS).filter((name) => ROW_BUTTONS[name].slot && findSlot(ROW_BUTTONS[name].slot));
    return infos.map((info) => JSON.stringify({info, templateSelector, slots, isCurrent: String(info.key) === current}));
}

function rowFrom(source, template) {
    const {info, isCurrent} = JSON.parse(source);
    const row = createRow(template, info, findSlot);
    if (isCurrent) {
        markCurrent(row);
    }
    return row;
}

function build(listSelector, templateSelector) {
    const list = $(listSelector).first();
    if (!list.length || !hasSlot(mediator, "getDeviceInfoList")) {
        return;
    }
    const {template, isShort} = templateOf(templateSelector);
    const infos = parseRows(mediator.getDeviceInfoList(isShort));
    if (settingMode) {
        keepMarks(list, infos);
    }
    fillList(list, sourcesOf(infos, templateSelector), (source) => rowFrom(source, template));
    if (window.zel4func) {
        window.zel4func.localize(mediator, list);
    }
    refreshFilter(list, mediator.translate("Filter cameras"));
    rowOf(list, asked).addClass("asked");
    bindSelection(list, actionsOf(listSelector, templateSelector));
}

// A camera that isn't connected can only be marked: the list's mediator does that, and the others stay selected.
function selectOnly(key, isConnected) {
    if (isConnected) {
        mediator.setSelectDoc(key);
    } else {
        mediator.selectDoc(key);
        mediator.updateUI();
    }
}

// The panel's mediator holds the live image back and keeps the heads of a device together.
function toggle(key, wasSelected, isConnected) {
    const name = wasSelected ? "unselectDoc" : "selectDoc";
    const owner = isConnected && hasSlot(window.livecontrol, name) ? window.livecontrol : mediator;
    owner[name](key);
    mediator.updateUI();
}

// The camera that is chosen first is selected alone, unless the others stay; the rest of them is added.
function selectRows(rows, keepsOthers) {
    const keys = rows.get().map((row) => ({key: row.getAttribute("data-key"), isConnected: $(row).hasClass("found"),
        isSelected: $(row).hasClass("ui-selected")}));
    const first = selectFirst(keys, keepsOthers);
    keys.filter((row) => row !== first && !(keepsOthers && row.isSelected)).forEach(({key, isConnected}) => {
        const owner = isConnected && hasSlot(window.livecontrol, "selectDoc") ? window.livecontrol : mediator;
        owner.selectDoc(key);
    });
    mediator.updateUI();
}

function selectFirst(keys, keepsOthers) {
    const first = keepsOthers ? undefined : keys.find((row) => row.isConnected);
    if (first) {
        mediator.setSelectDoc(first.key);
    }
    return first;
}

// While a question is open, the row that it is about is marked.
function callFor(row, name) {
    const call = ROW_BUTTONS[name].slot && findSlot(ROW_BUTTONS[name].slot);
    devicelist.deviceSelecting = false;
    if (!call) {
        return;
    }
    asked = row.attr("data-key");
    row.addClass("asked");
    try {
        call(asked);
    } finally {
        asked = "";
        $("[data-key].asked").removeClass("asked");
    }
}

function markInPage(row, isToggle) {
    const list = row.parent();
    const on = isToggle ? !row.hasClass("ui-selected") : true;
    const cleared = isToggle ? $() : list.children();
    cleared.not(row).removeClass("ui-selected").attr("aria-selected", "false");
    row.toggleClass("ui-selected", on).attr("aria-selected", String(on));
}

function actionsOf(listSelector, templateSelector) {
    // While a selection goes on, the page's updates leave the list alone; it is rebuilt when the selection has ended.
    const selecting = (action) => {
        devicelist.deviceSelecting = true;
        try {
            action();
        } finally {
            devicelist.deviceSelecting = false;
            build(listSelector, templateSelector);
        }
    };
    return {
        hold() {
            devicelist.deviceSelecting = true;
        },
        letGo() {
            if (devicelist.deviceSelecting) {
                selecting(() => {});
            }
        },
        select(row, isToggle) {
            const key = row.attr("data-key");
            if (settingMode) {
                devicelist.deviceSelecting = false;
                markInPage(row, isToggle);
            } else if (isToggle) {
                selecting(() => toggle(key, row.hasClass("ui-selected"), row.hasClass("found")));
            } else {
                selecting(() => selectOnly(key, row.hasClass("found")));
            }
        },
        selectRange(rows, keepsOthers) {
            if (settingMode) {
                devicelist.deviceSelecting = false;
                const added = keepsOthers ? rows.not(".ui-selected") : rows;
                added.each((i, row) => markInPage($(row), keepsOthers || i > 0));
            } else {
                selecting(() => selectRows(rows, keepsOthers));
            }
        },
        selectAll() {
            selecting(() => mediator.selectAllDocs());
        },
        press(row, button) {
            const name = Object.keys(ROW_BUTTONS).find((each) => button.hasClass(each));
            if (name) {
                callFor(row, name);
            }
        },
        call(row, name) {
            if (actionsFor(row, findSlot).indexOf(name) >= 0) {
                callFor(row, name);
            }
        },
        showMenu(row, at) { // another name than what it calls: in a method the engine finds itself by its own
            const key = row.attr("data-key");
            const list = row.parent();
            openMenu(actionsFor(row, findSlot).map((name) => ({
                label: mediator.translate(ROW_BUTTONS[name].label),
                action: () => callFor(rowOf(list, key), name)
            })), at, () => focusRowOf(list, key));
        }
    };
}

function bindButton(kind, selector, action) {
    const events = `click${EVENTS}${kind}`;
    $(document).off(events).on(events, selector, (event) => {
        if (!event.currentTarget.disabled && !$(event.currentTarget).hasClass("disabled")) {
            action();
        }
    });
}

// Whom it concerns, those included that a filter or the short list hides.
function namesOfAll() {
    const names = parseRows(mediator.getDeviceInfoList(false)).map((info) => info.cameraname);
    const shown = names.slice(0, MOST_NAMES).join(", ");
    return names.length > MOST_NAMES ? `${shown}, ... (${names.length})` : shown;
}

const devicelist = {
    /** True while the user picks a camera: an update is to leave the list alone then. */
    deviceSelecting: false,

    /** @param {Object} object script object with getDeviceInfoList and the selection slots */
    setMediator(object) {
        mediator = object;
    },

    /** @param {boolean} on rows are only marked in the page (class ui-selected), nothing is selected in the host */
    setSettingMode(on) {
        settingMode = Boolean(on);
    },

    /** @param {string} selector the button that adds a device */
    setAddButtonName(selector) {
        bindButton("Add", selector, () => mediator.addDoc());
    },

    /** @param {string} selector the button that deletes all, after a question */
    setDeleteAllButtonName(selector) {
        bindButton("DeleteAll", selector, () => {
            if (mediator.confirm(`${mediator.translate(DELETE_ALL_QUESTION)}\n${namesOfAll()}`)) {
                mediator.deleteAllDocs();
            }
        });
    },

    /** @param {string} selector the element whose children are the rows */
    setListName(selector) {
        listName = selector;
    },

    /** @param {string} selector the template element of a row, in mustache style; every tag escapes */
    setTemplate(selector) {
        templateName = selector;
    },

    /** Brings the list up to date. Selection, scroll position and keyboard focus stay. */
    createList() {
        build(listName, templateName);
    }
};

window.devicelist_obj = devicelist;
