import assert from "node:assert/strict";
import {readdirSync, readFileSync} from "node:fs";
import {test} from "node:test";

const folder = new URL("../../../pagelib/style/", import.meta.url);
const read = (name) => readFileSync(new URL(name, folder), "utf8");
const rulesText = readdirSync(folder).filter((name) => !name.startsWith("ui-")).map(read).join("\n");
const styles = ["dark", "light"];

function coloursOf(style) {
    const colours = {};
    for (const [, name, value] of read(`ui-${style}.css`).matchAll(/(--[a-z-]+):\s*([^;]+);/g)) {
        colours[name] = value;
    }
    return colours;
}

function luminance(hex) {
    const [r, g, b] = [1, 3, 5].map((at) => parseInt(hex.slice(at, at + 2), 16) / 255)
        .map((c) => (c <= 0.03928 ? c / 12.92 : ((c + 0.055) / 1.055) ** 2.4));
    return 0.2126 * r + 0.7152 * g + 0.0722 * b;
}

function contrast(one, other) {
    const [dark, light] = [luminance(one), luminance(other)].sort((a, b) => a - b);
    return (light + 0.05) / (dark + 0.05);
}

// Which text stands on which ground.
const TEXTS = [
    ["--text", "--ground", "--surface", "--hover", "--surface-press", "--field"],
    ["--text-soft", "--ground", "--surface", "--field", "--hover"],
    ["--text-dim", "--ground", "--surface", "--field"],
    ["--accent", "--ground", "--field"],
    ["--danger", "--ground"],
    ["--on-accent", "--accent-ground"],
    ["--on-mode", "--mode-ground"]
];
// What is seen without being read: borders of fields, the focus, marks.
const MARKS = [
    ["--line-strong", "--ground", "--field"],
    ["--focus", "--ground", "--field"],
    ["--good", "--field"],
    ["--accent", "--line"]
];

for (const style of styles) {
    const colours = coloursOf(style);
    const weakest = (pairs) => pairs.flatMap(([front, ...grounds]) =>
        grounds.map((ground) => ({front, ground, ratio: contrast(colours[front], colours[ground])})));

    test(`all text of the ${style} style has a contrast of 4.5 or more`, () => {
        assert.deepEqual(weakest(TEXTS).filter(({ratio}) => ratio < 4.5), []);
    });

    test(`marks of the ${style} style have a contrast of 3 or more, a slider's range 2`, () => {
        const weak = weakest(MARKS).filter(({front, ratio}) => ratio < (front === "--accent" ? 2 : 3));
        assert.deepEqual(weak, []);
    });

    test(`the ${style} style gives each colour that the rules use`, () => {
        const used = new Set(Array.from(rulesText.matchAll(/var\((--[a-z-]+)\)/g), ([, name]) => name));
        assert.deepEqual([...used].filter((name) => !(name in colours)), []);
    });
}

test("the rules use no layout that the pages' engine lacks", () => {
    assert.doesNotMatch(rulesText, /display:\s*(inline-)?grid|[^-]gap:|position:\s*sticky|:focus-visible|aspect-ratio/);
});
