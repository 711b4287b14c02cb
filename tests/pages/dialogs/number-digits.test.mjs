import assert from "node:assert/strict";
import test from "node:test";

import {digitPreferences} from "../../../pagelib/src/dialogs/number-digits.js";

test("the targets are groups of three: group folder, sub folder, file name", () => {
    assert.deepEqual(digitPreferences(0), {
        camera: "export/groupdiraddnumbercameranodigits",
        head: "export/groupdiraddnumberheadnodigits",
        session: "export/groupdiraddnumbersessionnodigits",
        format: "export/groupdiraddnumberformat"
    });
    assert.equal(digitPreferences(4).session, "convert/subdiraddnumbersessionnodigits");
    assert.equal(digitPreferences(8).camera, "snap/filenameaddnumbercameranodigits");
    assert.equal(digitPreferences(13).head, "export/fd/datanameaddnumberheadnodigits");
    assert.equal(digitPreferences(15).format, "layout/subdiraddnumberformat");
    assert.equal(digitPreferences(16).session, "layout/filenameaddnumbersessionnodigits");
});

test("a file name takes no digits from the cameras, a report has no camera at all", () => {
    assert.equal(digitPreferences(2).format, null);
    assert.equal(digitPreferences(13).format, null);
    assert.deepEqual(digitPreferences(10), {
        camera: null, head: null, session: "report/subdiraddnumbersessionnodigits", format: null
    });
});

test("there are no others", () => {
    assert.deepEqual([-1, 9, 12, 14, 17].map(digitPreferences), [null, null, null, null, null]);
});
