import js from "@eslint/js";
import globals from "globals";

/** What the pages' engine lacks. The bundler lowers syntax, but adds no missing library function. */
const missingStatics = [
    ["Object", "entries"], ["Object", "values"], ["Object", "fromEntries"],
    ["Promise", "allSettled"], ["Promise", "any"]
].map(([object, property]) => ({object, property, message: "The pages' engine lacks it."}));

const missingMethods = [
    "padStart", "padEnd", "matchAll", "replaceAll", "trimStart", "trimEnd", "flat", "flatMap", "at", "findLast",
    "toSorted", "replaceChildren", "toggleAttribute", "finally"
];
const missingGlobals = [
    "fetch", "Proxy", "URLSearchParams", "TextEncoder", "ResizeObserver", "IntersectionObserver", "queueMicrotask",
    "structuredClone", "globalThis", "BigInt", "AbortController"
];

const missingSyntax = [
    ...missingMethods.map((name) => ({
        selector: `CallExpression > MemberExpression[property.name='${name}']`,
        message: `The pages' engine lacks ${name}().`
    })),
    {
        selector: "CallExpression[callee.property.name='forEach'] > MemberExpression > " +
            "CallExpression[callee.property.name='querySelectorAll']",
        message: "NodeList has no forEach in the pages' engine."
    },
    {
        selector: "MemberExpression[object.name=/^(e|ev|event)$/][property.name=/^(key|code)$/]",
        message: "The pages' engine knows neither KeyboardEvent.key nor .code; use .which."
    },
    {
        selector: "AssignmentExpression[left.property.name=/^(innerHTML|outerHTML)$/]",
        message: "Text from outside becomes a text node; use jQuery's text() or attr()."
    }
];

const common = {
    ...js.configs.recommended.rules,
    eqeqeq: "error",
    "no-var": "error",
    "prefer-const": "error",
    "no-eval": "error",
    "no-implied-eval": "error",
    "no-implicit-globals": "error",
    "no-shadow": "error",
    "no-unused-vars": ["error", {argsIgnorePattern: "^_", caughtErrors: "none"}],
    "no-throw-literal": "error",
    // One form everywhere: {a}, (x) => ..., a statement in braces, no comma after the last.
    "object-curly-spacing": ["error", "never"],
    "array-bracket-spacing": ["error", "never"],
    "arrow-parens": ["error", "always"],
    "comma-dangle": ["error", "never"],
    curly: "error",
    quotes: ["error", "double", {avoidEscape: true}],
    semi: "error",
    indent: ["error", 4, {SwitchCase: 1, ignoredNodes: ["TemplateLiteral *"]}],
    "max-len": ["error", {code: 128}]
};

/** What every page finds: the libraries that it loads first. */
const libraries = {$: "readonly", jQuery: "readonly", Hogan: "readonly"};

export default [
    {ignores: ["build/", "node_modules/"]},
    {
        files: ["**/*.js", "**/*.mjs"],
        languageOptions: {ecmaVersion: 2022, sourceType: "module"},
        linterOptions: {reportUnusedDisableDirectives: "error"},
        rules: common
    },
    {
        // Scripts of the pages, of the plug-in and of the viewer.
        files: ["livecontrol/resources/**/*.js", "pagelib/**/*.js"],
        languageOptions: {globals: {...globals.browser, ...libraries}},
        rules: {
            "no-restricted-properties": ["error", ...missingStatics],
            "no-restricted-syntax": ["error", ...missingSyntax],
            "no-restricted-globals": ["error", "event", "name", "status", ...missingGlobals]
        }
    },
    {
        // The rest runs in Node.
        files: ["tests/**/*.js", "tests/**/*.mjs", "tools/**/*.mjs", "eslint.config.js"],
        languageOptions: {globals: globals.node},
        rules: {"max-len": ["error", {code: 144}]}
    }
];
