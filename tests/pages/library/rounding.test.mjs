import assert from "node:assert/strict";
import {test} from "node:test";
import {floatceil, floatfloor, round} from "../../../pagelib/src/zel4func/rounding.js";

test("numbers round as they are printed, not as they lie in binary", () => {
    assert.equal(round(1.005, 2), 1.01);
    assert.equal(round(0.285, 2), 0.29);
    assert.equal(floatfloor(0.29, 2), 0.29); // 0.29 * 100 is 28.999...
    assert.equal(floatceil(1.1, 1), 1.1);
    assert.equal(floatceil(0.07 * 100, 0), 7); // 7.000000000000001
    assert.equal(floatfloor((1 - 0.9) * 10, 0), 1); // 0.9999999999999998
});

test("up, down and nearest at several decimals", () => {
    assert.equal(floatceil(999 / 1000, 4), 0.999);
    assert.equal(floatceil(19999 / 20000, 4), 1);
    assert.equal(floatfloor(1 / 20000, 4), 0);
    assert.equal(floatfloor(1 / 10000, 4), 0.0001);
    assert.equal(round(1 * 10000 / 1000, 0), 10);
    assert.equal(round(12345.678, -2), 12300);
});

test("halves go away from 0 on both sides", () => {
    assert.equal(round(2.5, 0), 3);
    assert.equal(round(-2.5, 0), -3);
    assert.ok(Object.is(round(-0.2, 0), 0));
});

test("texts and tiny numbers count, what is no number gives NaN", () => {
    assert.equal(round("12.345", 2), 12.35);
    assert.equal(round(1e-9, 2), 0);
    assert.equal(round(1e21, 0), 1e21);
    assert.ok(Number.isNaN(round(undefined, 2)));
    assert.ok(Number.isNaN(floatceil("abc", 2)));
});
