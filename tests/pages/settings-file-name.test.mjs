import assert from "node:assert/strict";
import {test} from "node:test";
import {isAcceptable, previewOf} from "../../livecontrol/resources/settings/file-name.js";

// [user's name?, name, time added?, preview]
for (const [user, name, addTime, expected] of [
    [false, "", false, "[CAMERA]"], [false, "x", true, "[CAMERA]_12"], [true, "a", false, "a"], [true, "a", true, "a_12"],
    [true, "", true, "12"], [true, "", false, ""]
]) {
    test(`the preview of ${user ? `"${name}"` : "the camera's name"}${addTime ? " with time" : ""} is "${expected}"`, () => {
        assert.equal(previewOf({user: user, name: name, addTime: addTime}, "12"), expected);
    });
}

test("a name has 1 to 256 characters", () => {
    assert.ok(!isAcceptable(""));
    assert.ok(isAcceptable("a"));
    assert.ok(isAcceptable("a".repeat(256)));
    assert.ok(!isAcceptable("a".repeat(257)));
});
