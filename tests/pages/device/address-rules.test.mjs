import assert from "node:assert/strict";
import {test} from "node:test";
import {clampNumber, dotted, isLastRight, lastLimits, numbersOf} from "../../../livecontrol/resources/device/address-rules.js";
import {addressBoxes, searchAddress} from "../../../livecontrol/resources/live/cameras/address.js";

// [address, right as a camera's]
const hosts = [
    ["192.168.0.255", false], ["192.168.0.254", true], ["10.0.0.255", true], ["10.0.0.0", false], ["192.167.0.255", true],
    ["999.999.999.1", true], ["1.2.3", false]
];
for (const [address, right] of hosts) {
    test(`${address} is ${right ? "" : "not "}a camera's address`, () => {
        assert.equal(isLastRight(numbersOf(address)), right);
    });
}

test("a number that leaves its box is brought within its limits, and what is none stays", () => {
    const private4 = lastLimits(["192", "168", "0", ""]);
    assert.equal(clampNumber("255", private4), "254");
    assert.equal(clampNumber("0", private4), "1");
    assert.equal(clampNumber("300", {min: 0, max: 255}), "255");
    assert.equal(clampNumber("007", {min: 0, max: 255}), "7");
    assert.equal(clampNumber("", private4), null);
    assert.equal(clampNumber("1e2", private4), null);
    assert.equal(clampNumber("-1", private4), null);
});

test("an address that is short or missing leaves boxes empty", () => {
    assert.deepEqual(numbersOf("10.1"), ["10", "1", "", ""]);
    assert.deepEqual(numbersOf(undefined), ["", "", "", ""]);
    assert.deepEqual(addressBoxes("192.168.7.0"), ["192", "168", "7"]);
    assert.equal(searchAddress(["192", "168", "7"]), "192.168.7.0");
    assert.equal(dotted(["010", "1", "2", "3"]), "10.1.2.3");
});
