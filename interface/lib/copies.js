// Copies of plain data. Pure; no service is used.

/** A copy of settings or other plain data that shares nothing with it. */
export function copyOf(value) {
    return JSON.parse(JSON.stringify(value));
}
