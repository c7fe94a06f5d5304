// Lengths in units of printing, and the pixels that they are in a picture of a given resolution. Services used:
// pictures (resolution, inPixels); what they say about a file is cached in unitCache.

export const PIXEL = "pixel";
/** The names that the conversion uses. */
export const UNITS = [PIXEL, "mm", "cm", "inch", "pica", "punt"];

// Inches per unit, and the number of useful decimals.
const INCHES = { mm: 1 / 25.4, cm: 1 / 2.54, inch: 1, pica: 4.2175176 / 25.4, punt: 0.3527777777778 / 25.4 };
const DECIMALS = { pixel: 0, mm: 1, cm: 2, inch: 2, pica: 1, punt: 0 };

export function decimalsOf(unit) {
    return DECIMALS[unit];
}

/** The symbol of a unit, for menus and after numbers. */
export function unitSign(unit) {
    return { pixel: qsTr("px"), mm: qsTr("mm"), cm: qsTr("cm"), inch: qsTr("in"), pica: qsTr("pc"),
             punt: qsTr("pt") }[unit];
}

function remembered(services, key, find) {
    const cache = services.unitCache;
    if (cache[key] === undefined) {
        cache[key] = find();
    }
    return cache[key];
}

/** Whole pixels of a picture for a length in a unit; NaN if the file does not say. */
export function toPixels(photo, unit, value, services) {
    if (unit === PIXEL) {
        return Math.trunc(value);
    }
    return remembered(services, photo.path + "\n" + unit + "\n" + value,
                      () => services.pictures.inPixels(value, unit, services.pictures.resolution(photo.path)));
}

/** The resolution of a picture, in whole dots per inch. */
export function dpiOf(photo, services) {
    return remembered(services, photo.path, () => services.pictures.resolution(photo.path));
}

export const MOST_DPI = 10000;

/** The resolution for lengths in a few words, for the log; nothing if it is each picture's own. */
export function dpiWords(dpi) {
    return dpi === 0 ? "" : qsTr(" at %1 dpi").replace("%1", String(dpi));
}

/** A message if settings have lengths that no resolution can convert to pixels. */
export function dpiMessages(settings) {
    const isSound = Number.isInteger(settings.dpi) && settings.dpi >= 0 && settings.dpi <= MOST_DPI;
    return settings.unit === PIXEL || isSound
        ? [] : [qsTr("Enter a resolution from 1 to %1 dpi.").replace("%1", String(MOST_DPI))];
}

/** A length in one unit as the nearest one in another that a field can show, at a given resolution. */
export function converted(value, from, to, dpi) {
    const inches = from === PIXEL ? value / dpi : value * INCHES[from];
    const result = to === PIXEL ? inches * dpi : inches / INCHES[to];
    const factor = Math.pow(10, DECIMALS[to]);
    return Math.round(result * factor) / factor;
}

/** Remembers each length as it was typed, with its unit, until somebody changes the converted value. */
export class UnitMemory {
    constructor() {
        this.lengths = Object.create(null);
    }

    /** The length that shows @p value, in @p from, in the unit @p to. */
    inUnit(field, value, from, to, dpi) {
        const known = this.lengths[field];
        const length = known !== undefined && known.shown === value && known.shownUnit === from
            ? known : { value: value, unit: from };
        length.shown = to === length.unit ? length.value : converted(length.value, length.unit, to, dpi);
        length.shownUnit = to;
        this.lengths[field] = length;
        return length.shown;
    }
}

/** A copy of the settings in which the named lengths are whole pixels of the picture. */
export function inPixels(photo, settings, fields, services) {
    const result = Object.assign({}, settings);
    for (const field of fields) {
        result[field] = toPixels(photo, settings.unit, settings[field], services);
    }
    return result;
}
