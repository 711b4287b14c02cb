import assert from "node:assert/strict";
import {test} from "node:test";
import {
    correctedStep, levelMaxima, placeMax, raisedToStep, sizeMax
} from "../../../livecontrol/resources/live/area/select-area-math.js";

const grid = {min: 32, max: 100, step: 8};

// [typed, on the grid, raised to the grid]
const typed = [
    [32, 32, 32], [35, 32, 40], [36, 40, 40], [40, 40, 40], [97, 96, 100], [99, 96, 100], [100, 100, 100], [20, 32, 32],
    [140, 100, 100]
];
for (const [value, nearest, raised] of typed) {
    test(`of 32 to 100 by 8, ${value} becomes ${nearest}, and ${raised} when it is raised`, () => {
        assert.equal(correctedStep(value, grid), nearest);
        assert.equal(raisedToStep(value, grid), raised);
    });
}

test("an area of the camera's steps never leaves its largest size, whatever place and size are taken", () => {
    for (let seed = 1; seed < 4000; seed += 1) {
        const random = (limit) => Math.floor(Math.abs(Math.sin(seed * 12.9898 + limit) * 43758.5453) % 1 * limit);
        const step = 1 << random(6);
        const placeStep = 1 << random(5);
        const min = step * (1 + random(3));
        const max = min + random(1300);
        const size = min + step * random(Math.floor((max - min) / step) + 1);
        const lastPlace = placeMax(max, size, placeStep);
        assert.ok(lastPlace >= 0 && lastPlace + size <= max && lastPlace % placeStep === 0, `place ${seed}`);
        const place = placeStep * random(Math.floor(lastPlace / placeStep) + 1);
        const largest = sizeMax({min, max, step}, place);
        assert.ok(largest >= size && largest + place <= max, `size ${seed}`);
        assert.equal((largest - min) % step, 0);
        assert.equal(correctedStep(largest, {min, max: largest, step}), largest);
    }
});

test("a place outside leaves the smallest size", () => {
    assert.equal(sizeMax(grid, 90), 32);
    assert.equal(sizeMax(grid, -50), 96);
});

test("a centred size is as large as the area, on the grid or not", () => {
    assert.equal(sizeMax(grid, null), 100);
});

test("a camera that told no largest size leaves a typed number alone", () => {
    const unlimited = {min: 0, max: null, step: 8};
    assert.equal(correctedStep(50, unlimited), 48);
    assert.equal(raisedToStep(50, unlimited), 56);
});

test("target and range share a limit where there is one", () => {
    const value = {Value: 128, Max: 255};
    const range = {Value: 16, Max: 255};
    assert.deepEqual(levelMaxima(value, range, null), {value: 255, range: 255});
    assert.deepEqual(levelMaxima(value, range, 240), {value: 224, range: 112});
});
