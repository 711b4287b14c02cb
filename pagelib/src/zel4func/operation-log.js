import $ from "../jquery.js";
import {isSecret, kindOfField, logArguments} from "./operation-words.js";
import {hasSlot, pageMediator, setPageMediator} from "./page-mediator.js";

// One set of listeners on the document serves all elements, those built later included, so an element that lies in two
// bounds still gives one line. They run in the capture phase: a line stands before the lines of what the operation
// does, and a handler that stops an event does not silence the log. Events that a script made are no operations.

const WAS_PASSWORD = "zelWasPassword";
const CLICKED = "button, a, input[type=button], input[type=submit], input[type=reset], input[type=image], " +
    "[role=button], [role=option], [role=row]";
const ROWS = "[role=option], [role=row]";
const RETURN = 13;

const scopes = [];
let listening = false;

function scopeOf(node) {
    return scopes.find((scope) => !scope.selector || $(node).closest(scope.selector).length > 0);
}

function send(node, operation, kind, value) {
    const scope = scopeOf(node);
    if (scope && hasSlot(scope.mediator, "userOperationLogWebView")) {
        const place = {url: document.URL, id: node.id, className: node.getAttribute("class")};
        scope.mediator.userOperationLogWebView(...logArguments(place, operation, kind, value));
    }
}

function fieldValue(field) {
    const facts = {
        type: field.type,
        id: field.id,
        name: field.name || "",
        className: field.className,
        wasPassword: $.data(field, WAS_PASSWORD) === true
    };
    if (isSecret(facts)) {
        return "";
    }
    return field.type === "checkbox" ? field.checked : field.value;
}

function notePasswords() {
    $("input[type=password]").each((_, field) => {
        $.data(field, WAS_PASSWORD, true);
    });
}

function isSpinner(node) {
    return $(node).closest(".zel-spinner").length > 0;
}

function kindOfClicked(node) {
    if ($(node).is(ROWS)) {
        return "ListItem";
    }
    return node.nodeName === "A" && node.getAttribute("role") !== "button" ? "Link" : "Button";
}

function sendClick(node) {
    // In a list the value tells which row.
    const row = $(node).closest("[data-key], [data-log]");
    send(node, "clicked", kindOfClicked(node), row.attr("data-log") || row.attr("data-key"));
}

function onClick(event) {
    const node = $(event.target).closest(CLICKED)[0];
    const isOurs = node && event.isTrusted && !node.disabled && !$(node).closest(".disabled").length &&
        !($(node).is("[role=row]") && $(event.target).is("input")); // which reports its change
    // A select box reports its change, a spinner its commit; their parts are no controls.
    if (isOurs && !isSpinner(node) && !$(node).closest(".SumoSelect").length) {
        sendClick(node);
    }
}

// A page may take what was typed at once, and there is no change to report then.
function onKey(event) {
    const node = event.target;
    if (event.which === RETURN && event.isTrusted && $(node).is("input") && !isSpinner(node) &&
        kindOfField(node.nodeName, node.type) === "TextField") {
        send(node, "entered", "TextField", fieldValue(node));
    }
}

function onChange(event) {
    const node = event.target;
    // A drop-down box changes its select by script, and is open only while the user chooses.
    const isUsers = event.isTrusted || (node.sumo && node.sumo.is_opened);
    if (isUsers && $(node).is("input, select, textarea") && !isSpinner(node)) {
        send(node, "changed", kindOfField(node.nodeName, node.type), fieldValue(node));
    }
}

// Widgets report by events of jQuery's, which carry the user's event if there was one.
function onWidget(kind, valueOf) {
    return (event, ui) => {
        if (event.originalEvent) {
            send(event.target, "changed", kind, valueOf(ui));
        }
    };
}

function listen() {
    if (listening) {
        return;
    }
    listening = true;
    document.addEventListener("click", onClick, true);
    document.addEventListener("change", onChange, true);
    document.addEventListener("keydown", onKey, true);
    document.addEventListener("focusin", notePasswords, true);
    $(document).on("slidestop.zelLog", onWidget("Slider", (ui) => ui.value));
    $(document).on("zelcommit.zelLog", onWidget("Spinner", (ui) => ui.value));
}

function addScope(mediator, selector) {
    const known = scopes.find((scope) => scope.selector === selector);
    if (known) {
        known.mediator = mediator;
    } else {
        scopes.push({mediator, selector});
    }
    setPageMediator(mediator);
    notePasswords();
    listen();
}

/**
 * Turns the log of the user's operations on: one line for each click or change of a control.
 * @param {Object} mediator script object whose userOperationLogWebView gets the lines
 * @param {string} [selector] bounds the elements; the whole page if left out
 */
export function enableUserOperationLog(mediator, selector) {
    addScope(mediator, selector || "");
}

/**
 * A row of a list was chosen in another way than by a click, with an arrow key for instance: writes the line of a click.
 * @param {Element} row
 */
export function logChosenRow(row) {
    sendClick(row);
}

/**
 * To be called when elements were added to the page. The listeners see new elements by themselves; this notes new
 * password fields, and turns the log on where the page had not.
 * @param {Object|jQuery|string} added the new elements, or the script object that is to get their lines
 */
export function updateUserOperationLogHandler(added) {
    if (hasSlot(added, "userOperationLogWebView")) {
        addScope(added, "");
    } else if (!scopes.length && pageMediator()) {
        addScope(pageMediator(), "");
    }
    notePasswords();
}
