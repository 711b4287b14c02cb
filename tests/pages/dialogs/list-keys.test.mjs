import assert from "node:assert/strict";
import {test} from "node:test";
import {rowAfterKey} from "../../../pagelib/src/dialogs/list-keys.js";

const UP = 38, DOWN = 40, HOME = 36, END = 35, PAGE_UP = 33, PAGE_DOWN = 34, LETTER = 65;

// [key, active row, rows, expected]
for (const [key, at, count, expected] of [
    [DOWN, -1, 3, 0], [DOWN, 2, 3, 2], [UP, 0, 3, 0], [UP, 2, 3, 1], [HOME, 2, 3, 0], [END, 0, 3, 2],
    [PAGE_UP, 15, 20, 5], [PAGE_UP, 5, 20, 0], [PAGE_DOWN, 5, 20, 15], [PAGE_DOWN, 15, 20, 19], [LETTER, 1, 3, null], [DOWN, -1, 0, null]
]) {
    test(`key ${key} at row ${at} of ${count} leads to ${expected}`, () => {
        assert.equal(rowAfterKey(key, at, count), expected);
    });
}
