/** The first three numbers of an address, for its boxes; empty texts for what the address lacks. */
export function addressBoxes(address) {
    const parts = String(address || "").split(".");
    return [0, 1, 2].map((i) => parts[i] || "");
}

/** The address of the network that the three numbers name. */
export function searchAddress(numbers) {
    return numbers.map(Number).concat(0).join(".");
}
