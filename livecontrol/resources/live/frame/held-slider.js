/**
 * Whether the user holds a slider, with the mouse or with a key. An update leaves its handle in the hand; when it is let
 * go, the slide's end still finds the place where the user put it.
 */
export function isHeld($slider) {
    const slider = $slider.slider("instance");
    return Boolean(slider && (slider._mouseSliding || slider._keySliding));
}
