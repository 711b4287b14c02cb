import assert from "node:assert/strict";
import {test} from "node:test";
import {
    decimals, format, isSettled, pace, parse, settle, stepped, ticksBetween, typedNumber
} from "../../../pagelib/src/spinner/arithmetic.js";

const whole = {min: 0, max: 99, step: 5, decimal: false, natural: true};
const percent = {min: 0, max: 100, step: 0.01, decimal: true, decimalPoint: 2};
const free = {min: null, max: null, step: 3};

test("steps lie on the grid of the minimum, and a limit off the grid ends the way", () => {
    assert.equal(stepped(95, 1, 1, whole), 99);
    assert.equal(stepped(99, -1, 1, whole), 95);
    assert.equal(stepped(0, -1, 1, whole), 0);
    assert.equal(stepped(97, 1, 1, {...whole, max: 200}), 100);
    assert.equal(stepped(97, -1, 1, {...whole, max: 200}), 95);
    assert.equal(stepped(6, 1, 1, {min: 1, max: 50, step: 4}), 9);
});

test("steps of a hundredth gather no binary noise", () => {
    let value = 0;
    for (let i = 0; i < 1000; ++i) {
        value = stepped(value, 1, 1, percent);
    }
    assert.equal(value, 10);
    assert.equal(stepped(0.3, -1, 1, percent), 0.29);
    assert.equal(stepped(0.29, 1, 100, percent), 1.29);
    assert.equal(stepped(99.995, 1, 1, percent), 100);
});

test("without limits the grid is that of 0, and it goes below 0", () => {
    assert.equal(stepped(1, -1, 2, free), -3);
    assert.equal(stepped(null, 1, 1, {...free, min: 7}), 7);
    assert.equal(stepped(2, 1, 1, {min: "", max: undefined, step: 0}), 3);
});

test("who tells no step gets the smallest that the field shows", () => {
    const iris = {min: 2.8, max: 22, step: 0, decimal: true, decimalPoint: 1};
    assert.equal(stepped(5.6, 1, 1, iris), 5.7);
    assert.equal(ticksBetween(5.6, 5.9, iris), 3);
});

test("a committed value is cut to limits and decimals, not to the step", () => {
    assert.equal(settle(98, whole), 98);
    assert.equal(settle(500, whole), 99);
    assert.equal(settle(-1, {...whole, min: null}), 0);
    assert.equal(settle(5.7, whole), 6);
    assert.equal(settle(99.999, percent), 100);
    assert.equal(settle(12.345, percent), 12.35);
    assert.equal(settle(5, {min: "10", max: "20"}), 10);
});

test("a text is valid if it can stand as it is", () => {
    assert.ok(isSettled(" 98 ", whole));
    for (const text of ["", "-", "abc", "5.5", "100", "-1", "1e2", "0x10"]) {
        assert.ok(!isSettled(text, whole), text);
    }
    assert.ok(isSettled("12,34", percent));
    assert.ok(!isSettled("12.345", percent));
});

test("a field of whole numbers takes no number made of the digits of another text", () => {
    for (const text of ["4 3", "57.5", "57,5", "1e9", "0x10", "40.0", "--5", "5-", "", " ", "４３"]) {
        assert.equal(typedNumber(text, whole), null, text);
    }
    assert.equal(typedNumber(" +43 ", whole), 43);
    assert.equal(typedNumber("-5", whole), -5); // a whole number, cut to the limits when it is committed
    assert.equal(typedNumber("57,5", percent), 57.5);
    assert.equal(typedNumber("5 7", percent), null);
});

test("texts and numbers", () => {
    assert.equal(parse(null), null);
    assert.equal(parse("1.5."), null);
    assert.equal(parse(".5"), 0.5);
    assert.equal(format(0.1, percent), "0.10");
    assert.equal(format(null, percent), "");
    assert.equal(decimals({decimal: true, decimalPoint: null, step: 0.1}), 1);
    assert.equal(decimals({decimal: false, decimalPoint: 2}), 0);
});

test("a held button speeds up only when told to", () => {
    assert.equal(pace(false, 1000), 1);
    assert.deepEqual([0, 24, 25, 50, 500].map((n) => pace(true, n)), [1, 1, 10, 100, 100]);
    assert.equal(pace((n) => n / 2, 5), 2);
    assert.equal(pace(() => NaN, 5), 1);
});

test("a typed value is some steps away", () => {
    assert.equal(ticksBetween(2.8, 5.6, {step: 0.1}), 28);
    assert.equal(ticksBetween(400, 380, {step: 4}), -5);
    assert.equal(ticksBetween(400, 403, {step: 4}), 1);
    assert.equal(ticksBetween(null, 3, {step: 1}), 0);
});
