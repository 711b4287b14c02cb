// What the file of the settings will be called. No DOM here.

const LONGEST = 256; // characters

/**
 * @param {{user: boolean, name: string, addTime: boolean}} wish
 * @param {string} time - date and time as they will stand
 */
export function previewOf(wish, time) {
    const name = wish.user ? wish.name : "[CAMERA]";
    if (!wish.addTime) {
        return name;
    }
    return name + (name === "" ? "" : "_") + time;
}

export function isAcceptable(preview) {
    return preview.length >= 1 && preview.length <= LONGEST;
}
