// Dummy cameras carry addresses of the form 999.999.999.n, which no network has.
const DUMMY_NUMBER = 999;

/**
 * Whether a text is one number of an IPv4 address: one to three digits, 0 to 255.
 * @param {string|number} text content of an address box
 * @param {boolean} dummy the address belongs to a dummy camera, so 999 passes too
 */
export function inputIpCheck(text, dummy) {
    const digits = String(text);
    if (!/^[0-9]{1,3}$/.test(digits)) {
        return false;
    }
    const number = Number(digits);
    return number <= 255 || (Boolean(dummy) && number === DUMMY_NUMBER);
}
