// Turns and flips put together. The operations turn the pixels as they are stored, while a person thinks of the upright
// picture: what is worked out here is what has to be done to the stored pixels. Pure functions; no service is used.
//
// An element {mirror, angle} mirrors left to right first, where mirror is true, and then turns by the angle in degrees,
// counter-clockwise.

const AS_STORED = { mirror: false, angle: 0 };

// What makes the stored pixels upright, by the orientation tag.
const UPRIGHT = {
    1: AS_STORED, 2: { mirror: true, angle: 0 }, 3: { mirror: false, angle: 180 }, 4: { mirror: true, angle: 180 },
    5: { mirror: true, angle: 90 }, 6: { mirror: false, angle: 270 }, 7: { mirror: true, angle: 270 },
    8: { mirror: false, angle: 90 },
};

/** The angle as 0 up to, but not including, 360; kept to tenths. */
export function wholeTurn(angle) {
    const tenths = Math.round(angle * 10) % 3600;
    return (tenths < 0 ? tenths + 3600 : tenths) / 10;
}

/** The angle as more than -180 up to 180. */
export function shortestTurn(angle) {
    const turn = wholeTurn(angle);
    return turn > 180 ? Math.round((turn - 360) * 10) / 10 : turn;
}

/** First one element, then the other, as one. */
export function then(first, second) {
    return { mirror: first.mirror !== second.mirror,
             angle: wholeTurn(second.angle + (second.mirror ? -first.angle : first.angle)) };
}

export function inverse(element) {
    return element.mirror
        ? { mirror: true, angle: element.angle } : { mirror: false, angle: wholeTurn(-element.angle) };
}

/** What the settings do to the upright picture: flips first, then the turn. */
export function wanted(settings) {
    const across = { mirror: settings.flipHorizontal, angle: 0 };
    const down = { mirror: settings.flipVertical, angle: settings.flipVertical ? 180 : 0 };
    return then(then(across, down), { mirror: false, angle: wholeTurn(settings.angle) });
}

export function upright(orientation) {
    return UPRIGHT[orientation] || AS_STORED;
}

export function isNothing(element) {
    return !element.mirror && element.angle === 0;
}

/**
 * What has to be done to the stored pixels so that the wanted comes out, seen upright.
 * keepsTag: the file that is written has the orientation tag of the source, otherwise it has none.
 */
export function forStored(element, orientation, keepsTag) {
    const toUpright = upright(orientation);
    const seen = then(toUpright, element);
    return keepsTag ? then(seen, inverse(toUpright)) : seen;
}

/**
 * The operations that make up an element: at most one flip, then at most one turn, and at least one of them:
 * {flip: "horizontal" | "vertical"} and {turn: degrees}.
 */
export function operations(element) {
    if (element.mirror && element.angle === 180) {
        return [{ flip: "vertical" }];
    }
    /** @type {any[]} */
    const flips = element.mirror ? [{ flip: "horizontal" }] : [];
    const turns = element.angle !== 0 || !element.mirror ? [{ turn: shortestTurn(element.angle) }] : [];
    return flips.concat(turns);
}

/** True for a turn by a multiple of 90 degrees: every pixel stays what it is. */
export function isExact(element) {
    return element.angle % 90 === 0;
}

/** The size of the canvas that just holds a turned picture, in whole pixels. */
export function turnedSize(size, element) {
    if (isExact(element)) {
        return element.angle % 180 === 0
            ? { width: size.width, height: size.height } : { width: size.height, height: size.width };
    }
    // The operation takes the angle in single precision.
    const radians = Math.fround(shortestTurn(element.angle)) * 0.017453292519943295;
    const across = Math.abs(Math.cos(radians));
    const down = Math.abs(Math.sin(radians));
    return { width: Math.trunc(size.width * across + size.height * down),
             height: Math.trunc(size.width * down + size.height * across) };
}
