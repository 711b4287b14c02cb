import $ from "../jquery.js";

// The side panel's document stays while plug-ins come and go in it; these objects are what it lends to their pages.

const SLOT = "#zelpanel_plugin";

// Members that a plug-in's page keeps while the panel is rebuilt. The camera list and the trigger parameters are what a
// user needs first, so their expanders are open until the user closes them.
window.zel4_obj = window.zel4_obj || {openCameraList: true, openTriggerParam: true};

window.main = window.main || {};

// The play bar follows the documents by itself; a page may still say that a recording's length has changed.
window.timeline_obj = window.timeline_obj || {appUpdate() {}};

window.timeline = window.timeline || {
    translate(text) {
        const mediator = window.zel4func.pageMediator();
        return (mediator && mediator.translate(text)) || text;
    }
};

window.panel = {
    /**
     * Shows a plug-in's page. Its script tags run at once, in order.
     * @param {string} html the page's text, a fragment
     */
    load(html) {
        window.panel.clear();
        $(SLOT).html(html);
    },

    /** Takes the plug-in's page out, with what it and its select boxes have bound to the document and the window. */
    clear() {
        $(window).off("resize.scrollarea resize.sumo");
        $(document).off("click.sumo");
        $(SLOT).empty();
    }
};
