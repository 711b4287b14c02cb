import $ from "../jquery.js";
import {disable, isKeptDisabled} from "./disable.js";
import {log} from "./log.js";
import {setPageMediator} from "./page-mediator.js";
import {parseStatus, resolveRules} from "./rules.js";

// Who decides whether a control is enabled
//
// An element that stands in a rule table belongs to the rules: after each setDisable it is disabled if any of its flags
// is true and enabled if none is, whatever the page did to it in between. That is what lets a page disable such an
// element once more after the rules (while a camera records, say) and rely on the next update to free it. A refresh
// that runs before the rules must therefore not disable a listed control and expect it to last; it only enables.
//
// Items of a select box are the exception. A refresh builds them anew and disables those that not all cameras can do,
// through disableItemSumoSelect, and that verdict is no state of the moment: the rules may disable such an item but
// never free it. It lasts until the item is rebuilt, or until the page itself calls disable(item, false).
//
// Elements in no rule are never touched. The functions run after the lists, so what a function disables stays so even
// if the same element stood in a list whose flags are all false.

const reported = new Set();

function reportUnknown(rules) {
    rules.filter((rule) => !reported.has(rule)).forEach((rule) => {
        reported.add(rule);
        log(`no status flag for the rule ${rule}`);
    });
}

function free(node) {
    if (!isKeptDisabled(node)) {
        disable(node, false);
    }
}

/**
 * Applies a page's rule table to the state of the application.
 * After a failed status getter everything stays as it is, and no function is called.
 * @param {Object} mediator script object with getControlStatus
 * @param {Object} controls rule name to `{disabled: [selector], func: function (flag)}`
 */
export function setDisable(mediator, controls) {
    setPageMediator(mediator);
    const status = parseStatus(mediator.getControlStatus());
    if (!status) {
        return;
    }
    const verdict = resolveRules(controls, status);
    const disabled = $(verdict.disabled.join(", "));
    $(verdict.free.join(", ")).not(disabled).each((_, node) => free(node));
    disable(disabled, true);
    verdict.calls.forEach(({func, flag}) => func(flag));
    reportUnknown(verdict.unknown);
}
