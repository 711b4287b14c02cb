import assert from "node:assert/strict";
import {createRequire} from "node:module";
import {test} from "node:test";
import {escapingTemplate, parseRows} from "../../../pagelib/src/devicelist/row-data.js";
import {inputIpCheck} from "../../../pagelib/src/zel4func/ip-check.js";
import {isSecret, kindOfField, logArguments} from "../../../pagelib/src/zel4func/operation-words.js";

const Hogan = createRequire(import.meta.url)("hogan.js");

test("an address box takes 0 to 255, and 999 for a dummy", () => {
    for (const text of ["0", "007", "255", 42]) {
        assert.ok(inputIpCheck(text, false), String(text));
    }
    for (const text of ["", "256", "999", "-1", "1.5", "1e2", " 1", "0001", "abc", null, undefined]) {
        assert.ok(!inputIpCheck(text, false), String(text));
    }
    assert.ok(inputIpCheck("999", true));
    assert.ok(!inputIpCheck("998", true));
});

test("a log line has the arguments in the slot's order, and never undefined", () => {
    const place = {url: "qrc:/p.html", id: "ok", className: null};
    assert.deepEqual(logArguments(place, "clicked", "Button", undefined),
        ["qrc:/p.html", "clicked", "Button", "ok", "", ""]);
    assert.deepEqual(logArguments({url: "u", id: "", className: "edit"}, "changed", "CheckBox", false),
        ["u", "changed", "CheckBox", "", "edit", false]);
    assert.equal(logArguments(place, "changed", "TextField", "x".repeat(1000000))[5], `${"x".repeat(200)}... (1000000)`);
});

test("a field that holds a password is known as one after it shows its text, too", () => {
    const plain = {type: "text", id: "t", name: "", className: "", wasPassword: false};
    assert.ok(!isSecret(plain));
    assert.ok(isSecret({...plain, type: "password"}));
    assert.ok(isSecret({...plain, wasPassword: true}));
    assert.ok(isSecret({...plain, id: "wifiPassphrase"}));
    assert.ok(isSecret({...plain, className: "new-password wide"}));
});

test("kinds of fields", () => {
    assert.equal(kindOfField("SELECT", "select-one"), "SelectBox");
    assert.equal(kindOfField("INPUT", "checkbox"), "CheckBox");
    assert.equal(kindOfField("INPUT", "text"), "TextField");
    assert.equal(kindOfField("TEXTAREA", "textarea"), "TextField");
});

test("no tag of a row template lets markup through", () => {
    const template = escapingTemplate("<b>{{{name}}}</b><i title=\"{{& name }}\">{{sup-wifi}}</i>{{#found}}+{{/found}}");
    const html = Hogan.compile(template).render({name: "<img onerror='x'>\"&", "sup-wifi": "<w>", found: "found"});
    assert.equal(html, "<b>&lt;img onerror=&#39;x&#39;&gt;&quot;&amp;</b>" +
        "<i title=\"&lt;img onerror=&#39;x&#39;&gt;&quot;&amp;\">&lt;w&gt;</i>+");
});

test("a broken row is left out, the others stay", () => {
    assert.deepEqual(parseRows(["{\"key\":\"1\"}", "{", "null", "{\"key\":\"2\"}"]), [{key: "1"}, {key: "2"}]);
    assert.deepEqual(parseRows(""), []);
    assert.deepEqual(parseRows(undefined), []);
});
