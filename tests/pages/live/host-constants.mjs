// The support levels that the host's script library gives to every page.
Object.assign(globalThis, {
    MULTIPLE_DOCS_NOTHING: 0,
    MULTIPLE_DOCS_NOT_IN_CURRENT: 1,
    MULTIPLE_DOCS_CURRENT_AND_ANY: 2,
    MULTIPLE_DOCS_ALL: 3
});

/** Stands in for the host's translation: marks what went through it. */
export const translate = (text) => "<" + text + ">";
