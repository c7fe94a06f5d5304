// The arithmetic of cutting: the rectangle in whole pixels of the upright picture, origin top left, in the same steps and
// roundings as the crop operation, so that what is shown is what will be cut. Pure functions; no service is used.

export const MODES = ["size", "percent", "pixels"];

// Whole-number division, toward zero.
const half = (value) => Math.trunc(value / 2);

function sizeOf(photo, settings) {
    if (settings.mode === "percent") {
        const kept = 100 - settings.percent;
        return { width: Math.trunc((kept * photo.width) / 100), height: Math.trunc((kept * photo.height) / 100) };
    }
    if (settings.mode === "pixels") {
        return { width: photo.width - settings.pixels, height: photo.height - settings.pixels };
    }
    return { width: settings.width, height: settings.height };
}

function originOf(photo, size, position) {
    const along = (room, place) => [0, half(room), room][place];
    return { x: along(photo.width - size.width, position % 3),
             y: along(photo.height - size.height, Math.trunc(position / 3)) };
}

/**
 * The rectangle {x, y, width, height} that settings give; it may reach outside the picture.
 * settings: mode; width, height; percent, pixels (cut away); position 0 to 8; offsetX, offsetY. All in whole pixels.
 */
export function cropFrame(photo, settings) {
    const size = sizeOf(photo, settings);
    const origin = originOf(photo, size, settings.position);
    return { x: origin.x + settings.offsetX, y: origin.y + settings.offsetY, width: size.width, height: size.height };
}

/** The part of the frame that lies in the picture; null where there is none. */
export function insidePicture(photo, frame) {
    const left = Math.max(0, frame.x);
    const top = Math.max(0, frame.y);
    const width = Math.min(photo.width, frame.x + frame.width) - left;
    const height = Math.min(photo.height, frame.y + frame.height) - top;
    return width > 0 && height > 0 ? { x: left, y: top, width: width, height: height } : null;
}

/** The offsets that put a rectangle of that place and size where it is, from a position 0 to 8. */
export function offsetsFor(photo, rectangle, position) {
    const origin = originOf(photo, rectangle, position);
    return { offsetX: rectangle.x - origin.x, offsetY: rectangle.y - origin.y };
}

/** Width divided by height: "free" gives 0, "original" that of the picture, "16:9" what it says. */
export function ratioOf(name, photo) {
    if (name === "free" || (name === "original" && photo === null)) {
        return 0;
    }
    if (name === "original") {
        return photo.width / photo.height;
    }
    const parts = name.split(":");
    return Number(parts[0]) / Number(parts[1]);
}

/** The largest whole size of that ratio in the picture. */
export function largestOf(ratio, photo) {
    if (photo.width > photo.height * ratio) {
        return { width: Math.max(1, Math.round(photo.height * ratio)), height: photo.height };
    }
    return { width: photo.width, height: Math.max(1, Math.round(photo.width / ratio)) };
}
