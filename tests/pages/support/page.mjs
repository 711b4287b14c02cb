// A page of the plug-in or of a dialog in a DOM of its own: the real HTML, the scripts that its tags name, bundled as the
// build does it, and script objects that answer what a test sets and keep what they were asked. A test gets a fresh page.
import assert from "node:assert/strict";
import {readFileSync} from "node:fs";
import {after, test} from "node:test";
import {Script} from "node:vm";
import {build} from "esbuild";
import {JSDOM, VirtualConsole} from "jsdom";

const ROOT = new URL("../../../", import.meta.url);
const read = (path) => readFileSync(new URL(path, ROOT), "utf8");

const PAGES = "livecontrol/resources/pages/";
const LIBRARIES = {
    "jquery.js": "node_modules/jquery/dist/jquery.min.js",
    "jquery-ui.js": "node_modules/jquery-ui/dist/jquery-ui.min.js",
    "sumoselect.js": "node_modules/sumoselect/jquery.sumoselect.js",
    "hogan.js": "node_modules/hogan.js/web/builds/3.0.2/hogan-3.0.2.min.js"
};
const ENTRIES = {
    "livecontrol.js": "livecontrol/resources/live/frame/main.js",
    "lenscontrol.js": "livecontrol/resources/live/lens/lenscontrol.js",
    "livecontrol_adddevice.js": "livecontrol/resources/device/add.js",
    "livecontrol_editdevice.js": "livecontrol/resources/device/edit.js",
    "camerasettings.js": "livecontrol/resources/settings/main.js",
    "editinfo.js": "livecontrol/resources/info/main.js"
};
for (const [, name, entry] of read("pagelib/CMakeLists.txt").matchAll(/^page_script\((\S+\.js) (\S+\.js)/gm)) {
    ENTRIES[name] = `pagelib/src/${entry}`;
}

const names = Object.keys(ENTRIES);
const bundles = await build({
    absWorkingDir: ROOT.pathname, entryPoints: names.map((name) => ({in: ENTRIES[name], out: name.replace(/\.js$/, "")})),
    bundle: true, format: "iife", target: "es2015", charset: "utf8", write: false, outdir: "build/unwritten"
});
const scripts = new Map();
for (const file of bundles.outputFiles) {
    const name = file.path.split("/").pop();
    scripts.set(name, new Script(file.text, {filename: ENTRIES[name]}));
}
for (const name of Object.keys(LIBRARIES)) {
    scripts.set(name, new Script(read(LIBRARIES[name]), {filename: name}));
}

const TAG = /<script src="(?:qrc:\/)?([^"]+)"><\/script>/g;

/** A page's text without what it loads, and the names of its scripts in their order. */
function taken(html) {
    return {html: html.replace(TAG, "").replace(/<link [^>]*>/g, ""),
        scripts: [...html.matchAll(TAG)].map((tag) => tag[1])};
}

/** The panel's fragment with its parts, put together as the build does it. */
function panelFragment() {
    return read(`${PAGES}livecontrol.html`).replace(/@(auto_exposure|hwimage_trigger)_(\w+)@/g,
        (_, page, part) => read(`${PAGES}parts/${part}.html`).replaceAll("@id@", `livecontrol_${page}`));
}

const plain = (value) => value !== null && typeof value === "object" && !Array.isArray(value);

/**
 * A script object. Each slot gives what `answers` has under its name: a value, a function of the arguments, an object as
 * its JSON text; without one "", as a slot gives after a failure. `null` takes the slot away. Signals have connect().
 */
export function recorder(answers = {}, log = []) {
    const signals = new Map();
    const signalOf = (name) => {
        if (!signals.has(name)) {
            const slots = [];
            signals.set(name, {
                slots, connect: (slot) => slots.push(slot), disconnect: (slot) => slots.splice(slots.indexOf(slot), 1)
            });
        }
        return signals.get(name);
    };
    return new Proxy({answers, log}, {
        get(target, name) {
            if (typeof name === "symbol" || name in target) {
                return target[name];
            }
            if (["open", "update", "close"].includes(name) || name.startsWith("signal")) {
                return answers[name] ?? signalOf(name);
            }
            if (answers[name] === null || name === "then" || name === "toJSON" || name === "nodeType") {
                return undefined;
            }
            return (...args) => {
                log.push([name, ...args]);
                const answer = typeof answers[name] === "function" ? answers[name](...args) : answers[name];
                return answer === undefined ? "" : plain(answer) ? JSON.stringify(answer) : answer;
            };
        }
    });
}

const ASKS = /^(get|is|has|exist|translate|userOperation|errorLog|recv|hideSelectBox|existsAuto)/;

const LAST_ID = /^[^:()"']*#([\w-]+)(?:[.[][^\s>+~]*)?$/;
const LABEL = /^label\[for="([\w-]+)"\]$/;

/**
 * jsdom walks the whole document for each selector. Where all of a list end in an id, the map of the ids finds them; the
 * panel's labels stand in its HTML alone, and are looked up once a load.
 */
function findFast(page) {
    const {Document, Element} = page.window;
    for (const prototype of [Document.prototype, Element.prototype]) {
        const walk = prototype.querySelectorAll;
        prototype.querySelectorAll = function (list) {
            const label = page.labels && LABEL.exec(list);
            if (label) {
                return page.labels.filter((node) => node.htmlFor === label[1]);
            }
            const selectors = list.split(/,\s*/);
            const ids = selectors.map((selector) => LAST_ID.exec(selector)?.[1]);
            if (!ids.every(Boolean) || !this.isConnected) {
                return walk.call(this, list);
            }
            const {document} = page;
            const found = ids.map((id, i) => [document.getElementById(id), selectors[i]])
                .filter(([node, selector]) => node && (this === document || this.contains(node))
                    && node.matches(selector));
            return [...new Set(found.map(([node]) => node))]
                .sort((one, other) => one.compareDocumentPosition(other) & 4 ? -1 : 1);
        };
    }
}

/** jsdom lays nothing out: what no one hides takes up room. */
function layOut(window) {
    const shown = (node) => node.isConnected && !node.closest("[style*='display: none']");
    window.Element.prototype.getClientRects = function () {
        return shown(this) ? [{}] : [];
    };
    window.Element.prototype.scrollIntoViewIfNeeded = () => {};
    window.scrollTo = () => {};
    window.getComputedStyle = (node) => ({
        getPropertyValue: (name) => node.style[name] || (name === "display" ? "block" : "")
    });
}

class Page {
    constructor(file) {
        const base = file === "panel" ? "pagelib/zelpanel.html"
            : file.startsWith("livecontrol_") || ["camerasettings.html", "editinfo.html"].includes(file)
                ? PAGES + file : `pagelib/dialogs/${file}`;
        this.outer = taken(read(base));
        const virtualConsole = new VirtualConsole();
        this.errors = [];
        virtualConsole.on("jsdomError", (error) => this.errors.push(error.detail?.stack ?? error.message));
        this.dom = new JSDOM(this.outer.html, {url: "http://page/", runScripts: "outside-only", virtualConsole});
        this.window = this.dom.window;
        this.document = this.window.document;
        layOut(this.window);
        this.document.hasFocus = () => true;
        findFast(this);
    }

    async start(objects) {
        Object.assign(this.window, objects);
        this.run(this.outer.scripts);
        this.$ = this.window.$;
        this.$.fx.off = true;
        await this.ready();
    }

    run(list) {
        list.forEach((name) => scripts.get(name).runInContext(this.dom.getInternalVMContext()));
    }

    /** Shows the plug-in's page in the panel, for the first time or once more. */
    async load(objects = {}) {
        Object.assign(this.window, objects);
        const inner = taken(panelFragment());
        this.window.panel.load(inner.html);
        this.labels = [...this.document.getElementsByTagName("label")];
        this.run(inner.scripts);
        await this.ready();
    }

    ready() {
        return new Promise((resolve) => { this.$(resolve); });
    }

    /** Lets run what the scripts have put off until they have ended. */
    rest(ms = 0) {
        return new Promise((resolve) => { this.window.setTimeout(resolve, ms); });
    }

    /** Lets a signal of a script object reach who is connected. */
    async emit(object, signal, ...args) {
        [...object[signal].slots].forEach((slot) => slot(...args));
        await this.rest();
    }

    /** What a script object was told since it was asked last, without questions; `only` names the slots that count. */
    told(object, only = null) {
        const calls = object.log.splice(0).filter(([name]) => only ? only.test(name) : !ASKS.test(name));
        return JSON.parse(JSON.stringify(calls)); // of this realm
    }

    one(selector) {
        const found = this.$(selector);
        assert.equal(found.length, 1, `one ${selector}`);
        return found[0];
    }

    click(selector, init = {}) {
        const node = this.one(selector);
        const event = (type) => new this.window.MouseEvent(type,
            {bubbles: true, cancelable: true, button: 0, which: 1, ...init});
        node.dispatchEvent(event("mousedown"));
        node.dispatchEvent(event("mouseup"));
        node.dispatchEvent(event("click"));
    }

    /** Presses or releases the mouse alone. */
    mouse(type, selector) {
        this.one(selector).dispatchEvent(new this.window.MouseEvent(type,
            {bubbles: true, cancelable: true, button: 0, which: 1}));
    }

    /** Presses a key where the focus is; up to the caller whether it is let go. */
    down(which, init = {}) {
        return this.#key("keydown", which, init);
    }

    up(which) {
        return this.#key("keyup", which, {});
    }

    key(which, init = {}) {
        this.down(which, init);
        this.up(which);
    }

    #key(type, which, init) {
        const event = new this.window.KeyboardEvent(type,
            {bubbles: true, cancelable: true, keyCode: which, which, ...init});
        return this.document.activeElement.dispatchEvent(event);
    }

    /** What the browser makes of keys that write text, for a list that is searched by it. */
    letters(text) {
        [...text].forEach((letter) => this.#key("keypress", letter.charCodeAt(0), {}));
    }

    /** Pastes a text where the focus is. Gives false if the page has taken it itself. */
    paste(text) {
        const event = new this.window.Event("paste", {bubbles: true, cancelable: true});
        event.clipboardData = {getData: () => text};
        return this.document.activeElement.dispatchEvent(event);
    }

    focus(selector) {
        this.one(selector).focus();
        return this;
    }

    /** Types into a field without leaving it. */
    type(selector, text) {
        const node = this.one(selector);
        node.focus();
        node.value = text;
        node.dispatchEvent(new this.window.Event("input", {bubbles: true}));
    }

    /** Types and leaves. */
    enter(selector, text) {
        this.type(selector, text);
        this.one(selector).blur();
    }

    /** Ticks or unticks a box, or chooses a radio button. */
    check(selector) {
        this.one(selector).click();
    }

    /** A row of a drop-down box. */
    row(selector, value) {
        const item = this.one(selector).sumo.ul.children("li").filter((_, li) => this.$(li).data("opt")[0].value === value);
        assert.equal(item.length, 1, `one row ${value} in ${selector}`);
        return item;
    }

    /** Chooses a row of a drop-down box as the mouse does. */
    choose(selector, value) {
        this.one(selector).sumo.showOpts();
        this.row(selector, value)[0].click();
    }

    val(selector) {
        return this.$(selector).val();
    }

    shown(selector) {
        return this.$(selector).is(":visible");
    }

    /** Whether a control of any kind can't be used. */
    locked(selector) {
        const node = this.one(selector);
        return node.disabled === true || this.$(node).hasClass("disabled");
    }

    /** What a list of texts has, each put in one line. */
    texts(selector) {
        return Array.from(this.$(selector), (node) => this.$(node).text().trim().replace(/\s+/g, " "));
    }

    focused() {
        return this.document.activeElement.id || this.document.activeElement.className || this.document.activeElement.nodeName;
    }
}

let panel = null;
after(() => panel && panel.window.close());

/** The panel's document outlives the pages that it shows, as in the viewer, and is dear to make. */
async function opened(file, objects) {
    if (file !== "panel") {
        const page = new Page(file);
        await page.start(objects);
        return page;
    }
    if (!panel) {
        panel = new Page(file);
        await panel.start(objects);
    }
    panel.errors.length = 0;
    panel.window.zel4_obj = {openCameraList: true, openTriggerParam: true};
    await panel.load(objects);
    return panel;
}

/**
 * A test with a page of its own; what a script of it throws, or logs as an error, fails the test.
 * @param {string} title
 * @param {string} file - "panel", or the name of a dialog's page
 * @param {function(): Object} objectsOf - makes the script objects of the page
 * @param {function(Page, Object): Promise} body
 */
export function pageTest(title, file, objectsOf, body) {
    test(title, async () => {
        const objects = objectsOf();
        const page = await opened(file, objects);
        try {
            await body(page, objects);
            await page.rest();
            await page.rest(); // jQuery throws what a ready handler threw two turns later
            const logged = Object.values(objects).filter((object) => object?.log)
                .flatMap((object) => object.log).filter(([name]) => name === "errorLog");
            assert.deepEqual(page.errors.concat(logged.map((call) => call[1])), []);
        } finally {
            if (file !== "panel") {
                page.window.close();
            }
        }
    });
}

export const KEY = {
    TAB: 9, ENTER: 13, ESCAPE: 27, SPACE: 32, END: 35, HOME: 36, LEFT: 37, UP: 38, RIGHT: 39, DOWN: 40, DELETE: 46, A: 65,
    MENU: 93, F2: 113
};
