// jQuery is a script of its own on every page; the modules share that one copy.
export default window.jQuery;
