// How one setting of a recipe is edited: a field is {kind, label, get(), set(value)} and what its kind needs besides.
// Kinds: "number" (least, most, decimals, suffix), "text" and "lines" (tokens: values of the picture can be inserted),
// "choice" (choices: [value, words]), "color", "position" (one of the nine), "check", "file" (types: extensions) and
// "folder". Any of them may have a tip, which explains words that not everybody knows. Pure but for translation.

/** The nine places of recipes, row by row as the pad counts them. */
export const PLACES =
    ["top left", "top", "top right", "left", "center", "right", "bottom left", "bottom", "bottom right"];
/** The part that draws the eye, instead of one of the nine. */
export const ATTENTION = "attention";

/** A key of an object, which is omitted if it has its default value. */
export function keyed(object, key, usual) {
    return {
        get: () => (object[key] === undefined ? usual : object[key]),
        set: (value) => {
            if (value === usual) {
                delete object[key];
            } else {
                object[key] = value;
            }
        },
    };
}

function field(kind, label, access, more) {
    return Object.assign({ kind: kind, label: label }, access, more);
}

/** The same field with a tooltip. */
export function explained(tip, plain) {
    return Object.assign(plain, { tip: tip });
}

/** The same fields, the first of them with a tooltip. */
export function explainedFirst(tip, fields) {
    return [explained(tip, fields[0])].concat(fields.slice(1));
}

/** range: the minimum and maximum. */
export function number(label, access, range, decimals, suffix) {
    return field("number", label, access, { least: range[0], most: range[1], decimals: decimals, suffix: suffix });
}

export function choice(label, access, choices) {
    return field("choice", label, access, { choices: choices });
}

export function check(label, access) {
    return field("check", label, access, {});
}

export function text(label, access, tokens) {
    return field("text", label, access, { tokens: tokens });
}

export function lines(label, access) {
    return field("lines", label, access, { tokens: true });
}

export function file(label, access, types) {
    return field("file", label, access, { types: types });
}

export function folder(label, access) {
    return field("folder", label, access, { tokens: true });
}

/** Colours with an opacity keep it: only the colour is chosen. */
export function color(label, access) {
    const bare = (value) => value.slice(0, 7);
    return field("color", label, {
        get: () => bare(access.get()),
        set: (value) => access.set(value + access.get().slice(7)),
    }, {});
}

/** One of the nine places, by its number. */
export function position(label, access) {
    return field("position", label, {
        get: () => PLACES.indexOf(access.get()),
        set: (place) => access.set(PLACES[place]),
    }, {});
}

/** A position that may also be where the eye is drawn to: the switch and, when it is off, the pad. */
export function positionOrAttention(object) {
    const place = keyed(object, "position", "center");
    const isDrawn = place.get() === ATTENTION;
    const drawn = check(qsTr("Focus of attention"),
                        { get: () => isDrawn, set: (on) => place.set(on ? ATTENTION : "center") });
    return isDrawn ? [drawn] : [drawn, position(qsTr("Position"), place)];
}

/** Something optional, such as a band: a switch, and its own fields while it is on. */
export function optional(label, object, key, standard, fieldsOf) {
    const isThere = object[key] !== undefined;
    const onOff = check(label, {
        get: () => isThere,
        set: (on) => {
            if (on) {
                object[key] = standard;
            } else {
                delete object[key];
            }
        },
    });
    return isThere ? [onOff].concat(fieldsOf()) : [onOff];
}
