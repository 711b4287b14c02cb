import $ from "../jquery.js";
import {hasSlot, setPageMediator} from "./page-mediator.js";

const SOURCE = "zelSourceTexts";
const ATTRIBUTES = ["title", "placeholder", "aria-label"];

// A list is localized at each rebuild with the same few texts; each crosses the bridge once.
const known = new Map();

function translate(mediator, text) {
    if (!known.has(text)) {
        // A failed translation gives an empty text; the source text says more than nothing.
        known.set(text, mediator.translate(text) || text);
    }
    return known.get(text);
}

function isLabelledButton(node) {
    return node.nodeName === "INPUT" && /^(button|submit|reset)$/.test(node.type);
}

// The source texts are kept with the element, so that localizing twice doesn't translate a translation.
function sourceTexts(node) {
    let source = $.data(node, SOURCE);
    if (!source) {
        source = {attributes: {}, texts: []};
        ATTRIBUTES.filter((name) => node.getAttribute(name)).forEach((name) => {
            source.attributes[name] = node.getAttribute(name);
        });
        if (isLabelledButton(node)) {
            source.attributes.value = node.getAttribute("value");
        }
        $(node).contents().each((_, child) => {
            if (child.nodeType === Node.TEXT_NODE && child.nodeValue.trim()) {
                source.texts.push({child, text: child.nodeValue});
            }
        });
        $.data(node, SOURCE, source);
    }
    return source;
}

function localizeNode(mediator, node) {
    const source = sourceTexts(node);
    Object.keys(source.attributes).forEach((name) => {
        if (source.attributes[name]) {
            node.setAttribute(name, translate(mediator, source.attributes[name]));
        }
    });
    source.texts.forEach(({child, text}) => {
        const trimmed = text.trim();
        child.nodeValue = text.replace(trimmed, () => translate(mediator, trimmed));
    });
}

/**
 * Translates the elements of class `localize`: the label of a button input, the title, and the text of the element
 * itself (elements inside it are translated only if they bear the class too).
 * @param {Object} mediator script object with translate
 * @param {jQuery|Element|string} [root] bounds the elements; the whole page if left out
 */
export function localize(mediator, root) {
    if (!hasSlot(mediator, "translate")) {
        return;
    }
    setPageMediator(mediator);
    if (root === undefined) {
        known.clear(); // the language may have changed
    }
    const scope = root === undefined ? $(document) : $(root);
    scope.find(".localize").addBack(".localize").each((_, node) => localizeNode(mediator, node));
}
