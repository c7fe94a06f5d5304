// The arithmetic of new sizes, in the same steps and roundings as the resize operations, so that what is shown is what
// will be written. Pure functions; no service is used.

export const MODES = ["width", "height", "longest", "percent", "box"];

// Fractions are cut off, as the operations do it.
const whole = (value) => Math.trunc(value);

function byWidth(width, height, target) {
    const scale = (target * 100) / width;
    return { width: target, height: whole((scale * height) / 100) };
}

function byHeight(width, height, target) {
    const scale = (target * 100) / height;
    return { width: whole((scale * width) / 100), height: target };
}

function byPercent(width, height, percent) {
    return { width: whole((width * percent) / 100), height: whole((height * percent) / 100) };
}

function result(size, n, mode) {
    return { width: size.width, height: size.height, n: n, mode: mode, box: false, part: wholePicture() };
}

function wholePicture() {
    return { left: 0, top: 0, width: 1, height: 1 };
}

// One number: the operation's modes are 0 width, 1 height, 2 longest side, 3 per cent.
function scaled(photo, settings) {
    const limit = (target, own) => (settings.neverEnlarge ? Math.min(target, own) : target);
    const w = photo.width;
    const h = photo.height;
    if (settings.mode === "percent") {
        const percent = limit(settings.percent, 100);
        return result(byPercent(w, h, percent), percent, 3);
    }
    if (settings.mode === "height") {
        const target = limit(settings.height, h);
        return result(byHeight(w, h, target), target, 1);
    }
    if (settings.mode === "longest") {
        const target = limit(settings.longest, Math.max(w, h));
        return result(w > h ? byWidth(w, h, target) : byHeight(w, h, target), target, 2);
    }
    const target = limit(settings.width, w);
    return result(byWidth(w, h, target), target, 0);
}

// A box that the picture cannot fill without growing is made smaller in its own proportions.
function boxFor(photo, settings) {
    const box = { width: settings.boxWidth, height: settings.boxHeight };
    if (!settings.neverEnlarge) {
        return box;
    }
    const factor = Math.min(1, photo.width / box.width, photo.height / box.height);
    return { width: Math.max(1, whole(box.width * factor)), height: Math.max(1, whole(box.height * factor)) };
}

// The part of the original that is left when the picture covers the box and the excess is cut away.
function partThatFills(photo, box) {
    const scaleHeight = (box.height * 100) / photo.height;
    const scaleWidth = (box.width * 100) / photo.width;
    const drawn = scaleHeight > scaleWidth
        ? { width: whole((photo.width * scaleHeight) / 100), height: box.height }
        : { width: box.width, height: whole((photo.height * scaleWidth) / 100) };
    return {
        left: whole((drawn.width - box.width) / 2) / drawn.width,
        top: whole((drawn.height - box.height) / 2) / drawn.height,
        width: Math.min(1, box.width / drawn.width),
        height: Math.min(1, box.height / drawn.height),
    };
}

function boxed(photo, settings) {
    const box = boxFor(photo, settings);
    const fills = settings.boxFit === "fill";
    const part = fills ? partThatFills(photo, box) : wholePicture();
    return { width: box.width, height: box.height, n: 0, mode: fills ? 1 : 0, box: true, part: part };
}

/**
 * The size that a picture gets.
 *
 * photo: {width, height} in pixels, upright, both at least 1.
 * settings: mode; width, height, longest (pixels), percent, boxWidth, boxHeight; boxFit "fill" or "stretch"; neverEnlarge.
 * Returns {width, height, part (of the original, 0 to 1), box, n, mode (of the operation)}; a side may come out as 0.
 */
export function newSize(photo, settings) {
    return settings.mode === "box" ? boxed(photo, settings) : scaled(photo, settings);
}

/** The new width as a share of the old one, in per cent. */
export function scalePercent(photo, size) {
    return (size.width / (size.part.width * photo.width)) * 100;
}
