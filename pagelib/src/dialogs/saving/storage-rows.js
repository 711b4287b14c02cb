// What the page of a camera's storage shows, and by which script object it is asked.

/** The slots of a camera, by what its script objects tell. SD slots count from 1 for their object. */
export function slotsOf(objects, dockey) {
    const slots = [];
    if (objects.sd.isManaged(dockey)) {
        [1, 2].filter((slot) => objects.sd.isEnabaleSlot(dockey, slot)).forEach((slot) => slots.push({kind: "sd", slot}));
    }
    if (objects.store.isManaged(dockey)) {
        const slot = objects.store.getSlotNo(dockey, 0);
        if (objects.store.isEnabaleSlot(dockey, slot)) {
            slots.push({kind: "store", slot});
        }
    }
    if (objects.cfast.isManaged(dockey) && objects.cfast.isEnabaleSlot(dockey, 0)) {
        slots.push({kind: "cfast", slot: 0});
    }
    return slots;
}

const TITLES = {sd: "SD card %1", store: "DockStore", cfast: "CFast"};

/** @return {string} untranslated; %1 is the slot */
export function titleOf(slot) {
    return TITLES[slot.kind];
}

/** Whether something is in the slot. */
export function isThere(objects, dockey, {kind, slot}) {
    return kind === "store" ? objects.store.isConnected(dockey, slot) : objects[kind].isInserted(dockey, slot);
}

/** Whether the drive in the slot asks for its password. */
export function isLocked(objects, dockey, {kind, slot}) {
    return kind === "store" && objects.drives.isLocked(dockey, slot);
}

/** Words about the state of a card, untranslated. */
export function stateWords(objects, dockey, {kind, slot}) {
    if (!objects.drives.isLinked(dockey)) {
        return ["There is no link to the camera"];
    }
    if (!isThere(objects, dockey, {kind, slot})) {
        return ["Empty slot"];
    }
    if (isLocked(objects, dockey, {kind, slot})) {
        return ["Locked by a password"];
    }
    const words = [objects[kind].isFormatted(dockey, slot) ? "Formatted" : "Not formatted"];
    return kind === "sd" && objects.sd.isProtected(dockey, slot) ? words.concat("Write protected") : words;
}
