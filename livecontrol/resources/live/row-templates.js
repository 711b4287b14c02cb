/* global livecontrol */

/** Translates the tool tips of the row templates once, so each row comes with translated ones. */
export function localizeTemplates() {
    $("template#cameraSelectItem, template#deviceSettingItem").each((_, template) => {
        Array.prototype.forEach.call(template.content.querySelectorAll("[title]"), (element) => {
            element.setAttribute("title", livecontrol.translate(element.getAttribute("title")));
        });
    });
}
