import assert from "node:assert/strict";
import {test} from "node:test";
import {matchingNames, SHOWN} from "../../../pagelib/src/dialogs/matching-names.js";

test("names that hold what was typed come in the list's order, whatever the case, and not too many", () => {
    const names = ["Left wing", "tail", "LEFT tail"].map((label) => ({label, category: ""}));
    assert.deepEqual(matchingNames(names, "left").map((name) => name.label), ["Left wing", "LEFT tail"]);
    assert.equal(matchingNames(names, "(").length, 0);
    const many = Array.from({length: 100000}, (_, i) => ({label: `camera ${i}`, category: ""}));
    assert.equal(matchingNames(many, "").length, SHOWN);
});
