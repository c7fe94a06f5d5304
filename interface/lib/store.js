// Settings that outlive a run, stored as one text each in the user's defaults, which are passed in.

/** What was stored under the key, merged into a copy of the standard values; fields of another type are ignored. */
export function recall(defaults, key, standard) {
    const text = defaults.get(key);
    let kept = null;
    try {
        kept = typeof text === "string" ? JSON.parse(text) : null;
    } catch (error) {
        kept = null;
    }
    return merged(standard, kept);
}

/** A copy of the standard values with those of `kept` that have the same types. */
export function completed(standard, kept) {
    return merged(standard, kept);
}

export function keep(defaults, key, value) {
    defaults.set(key, JSON.stringify(value));
}

function merged(standard, kept) {
    const result = {};
    for (const field of Object.keys(standard)) {
        const own = standard[field];
        const other = kept === null || typeof kept !== "object" ? undefined : kept[field];
        if (own !== null && typeof own === "object" && !Array.isArray(own)) {
            result[field] = merged(own, other === undefined ? null : other);
        } else {
            result[field] = typeof other === typeof own && Array.isArray(other) === Array.isArray(own) ? other : own;
        }
    }
    return result;
}

/** The list with the value first, without duplicates, at most `most` long. */
export function withNewest(list, value, most) {
    return [value].concat(list.filter((entry) => entry !== value)).slice(0, most);
}
