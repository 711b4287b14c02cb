/** The script log: a line for who debugs a page. */
export function log(text) {
    window.console.log(text);
}
