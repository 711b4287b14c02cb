// What is ticked, and what a camera's slots hold.
import assert from "node:assert/strict";
import {test} from "node:test";
import {columnsOf, documentsOf, firstTicks, keptTicks, lastColumnOf, momentOf, pairsOf, pairsText, rowOfCurrent, skipTargets, sourceOf,
    tickedRows} from
    "../../../pagelib/src/dialogs/saving/choice.js";
import {kindOf} from "../../../pagelib/src/dialogs/saving/kinds.js";
import {slotsOf, stateWords} from "../../../pagelib/src/dialogs/saving/storage-rows.js";

const row = (dockey, partitionno, selected = "false") => ({dockey, partitionno, selected});

test("ticks follow rows that go and come", () => {
    const rows = [row("7", "1"), row("7", "2"), row("9", "1")];
    assert.deepEqual(firstTicks(rows), ["7:1", "7:2", "9:1"], "all, if nothing is selected");
    const ticks = firstTicks([row("7", "1"), row("7", "2", "true"), row("9", "1", "true")]);
    assert.deepEqual(ticks, ["7:2", "9:1"]);
    assert.deepEqual(keptTicks(rows.slice(0, 2), ticks), ["7:2"]);
    assert.deepEqual(skipTargets(tickedRows(rows, ["7:1", "7:2", "9:1"])), {7: [1, 2], 9: [1]});
    assert.deepEqual(documentsOf(rows), ["7", "9"]);
    assert.equal(pairsText([["a", "/x"], ["b", "/y"]]), "a|/x?b|/y");
    assert.deepEqual([pairsOf("a|/x?b|/y"), pairsOf("")], [[["a", "/x"], ["b", "/y"]], []]);
    assert.equal(rowOfCurrent(rows, 7), rows[0], "the first of its partitions");
    const selected = [row("9", "1", "true"), row("7", "1"), row("7", "2", "true")];
    assert.deepEqual([rowOfCurrent(selected, 7), rowOfCurrent(selected, 8)], [selected[2], undefined]);
});

test("the last column is the size of a partition, or the rate of a file", () => {
    const shown = {cameraname: "Marlin", partitionno: "1", totalframes: "40", resolution: "64 x 48", recordrate: "1000"};
    assert.deepEqual(columnsOf(shown), ["Marlin", "1", "40", "64 x 48", "1000"]);
    assert.equal(lastColumnOf(shown), "Frame rate");
    assert.deepEqual([columnsOf({filename: "f"})[0], columnsOf({})[0], columnsOf({})[4]], ["f", "", ""]);
    assert.deepEqual([sourceOf({path: "/a/b/f.rch"}), sourceOf({path: "/a/b", serialno: "7"}), sourceOf({})], ["/a/b", "/a/b", ""]);
    assert.deepEqual([momentOf({date: "d", time: "t"}), momentOf({})], ["d t", ""]);
    const sized = Object.assign({capacitylabel: "1.00KB"}, shown);
    assert.deepEqual([columnsOf(sized)[4], lastColumnOf(sized)], ["1.00KB", "Size"]);
});

test("each kind has its own preferences, the skip of an export where it has none", () => {
    assert.deepEqual([kindOf("batchconverter").family, kindOf("batchconverter").skip], ["convert", "export"]);
    assert.equal(kindOf("layoutsavedialog").group, false);
    assert.equal(kindOf("anything").family, "export");
    assert.equal(kindOf("snapshotdialog").skip, null);
});

test("slots that can't be used are left out, and each object counts them in its way", () => {
    const yes = () => true;
    const objects = {
        sd: {isManaged: yes, isEnabaleSlot: (key, slot) => slot === 2, isInserted: yes, isFormatted: () => false, isProtected: yes},
        store: {isManaged: yes, getSlotNo: () => 3, isEnabaleSlot: (key, slot) => slot === 3, isConnected: () => false},
        cfast: {isManaged: () => false}, drives: {isLinked: yes, isLocked: () => false}
    };
    const slots = slotsOf(objects, 7);
    assert.deepEqual(slots, [{kind: "sd", slot: 2}, {kind: "store", slot: 3}]);
    assert.deepEqual(stateWords(objects, 7, slots[0]), ["Not formatted", "Write protected"]);
    assert.deepEqual(stateWords(objects, 7, slots[1]), ["Empty slot"]);
});
