/**
 * Options of a jQuery UI slider as the pages use it; a page sets its own range, step and handlers on the object.
 * @param {number} value where the handle stands at first
 */
export function SliderProperty(value) {
    if (!(this instanceof SliderProperty)) {
        return new SliderProperty(value);
    }
    this.value = Number(value) || 0;
    this.min = 0;
    this.max = 100;
    this.step = 1;
    this.range = "min";
    this.orientation = "horizontal";
    this.animate = false;
    return this;
}
