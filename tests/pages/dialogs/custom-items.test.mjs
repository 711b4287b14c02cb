import assert from "node:assert/strict";
import test from "node:test";

import {edited, fault, isPending, selectedAfter} from "../../../pagelib/src/dialogs/custom-items.js";

test("a name must be there and be free, but an item keeps its own", () => {
    const names = ["Load", "Run"];
    assert.equal(fault("  ", names, null), "Enter a name.");
    assert.equal(fault("Run", names, null), "An item has this name.");
    assert.equal(fault("Run", names, "Load"), "An item has this name.");
    assert.equal(fault("Run", names, "Run"), "");
    assert.equal(fault("Force", names, "Run"), "");
});

test("what was entered waits until an item has it", () => {
    const none = {name: "", value: "", unit: ""};
    const load = {name: "Load", value: "3", unit: "kN"};
    assert.ok(!isPending(none, none));
    assert.ok(isPending({name: "", value: "3", unit: ""}, none));
    assert.ok(!isPending({oldname: "Load", ...load}, load));
    assert.ok(isPending({name: "Load", value: "4", unit: "kN"}, load));
    assert.ok(isPending(load, none));
});

test("pasted control characters go, letters of any script stay", () => {
    const empty = {name: "", value: "", unit: ""};
    const now = {name: " x ", value: "a\u000b\u0000b\uffff \u2028\u6e2c", unit: ""};
    assert.deepEqual(edited(empty, empty, now), {name: "x", value: "ab \u2028\u6e2c", unit: ""});
});

test("a click selects one record, with Ctrl one more or less, and one always stays", () => {
    assert.deepEqual(selectedAfter([1, 2], 3, false), [3]);
    assert.deepEqual(selectedAfter([1], 2, true), [1, 2]);
    assert.deepEqual(selectedAfter([1, 2], 1, true), [2]);
    assert.deepEqual(selectedAfter([1], 1, true), [1]);
});
