import assert from "node:assert/strict";
import test from "node:test";

import {fault, selectedAfter, writable} from "../../../viewer/pages/src/dialogs/custom-items.js";

test("a name must be there and be free, but an item keeps its own", () => {
    const items = [{name: "Load"}, {name: "Run"}];
    assert.equal(fault("  ", items, null), "Enter a name.");
    assert.equal(fault("Run", items, null), "An item has this name.");
    assert.equal(fault("Run", items, "Load"), "An item has this name.");
    assert.equal(fault("Run", items, "Run"), "");
    assert.equal(fault("Force", items, "Run"), "");
});

test("pasted control characters go, letters of any script stay", () => {
    assert.equal(writable("a\u000b\u0000b\uffff \u2028\u6e2c"), "ab \u2028\u6e2c");
});

test("a click selects one record, with Ctrl one more or less, and one always stays", () => {
    assert.deepEqual(selectedAfter([1, 2], 3, false), [3]);
    assert.deepEqual(selectedAfter([1], 2, true), [1, 2]);
    assert.deepEqual(selectedAfter([1, 2], 1, true), [2]);
    assert.deepEqual(selectedAfter([1], 1, true), [1]);
});
