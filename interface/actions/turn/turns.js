// Combinations of rotations and flips. Pure functions; no service is used.
//
// An element {mirror, angle} first mirrors left to right, if mirror is true, and then rotates by the angle in degrees,
// anticlockwise.

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

/** Combines two elements; the first is applied first. */
export function then(first, second) {
    return { mirror: first.mirror !== second.mirror,
             angle: wholeTurn(second.angle + (second.mirror ? -first.angle : first.angle)) };
}

/** What the settings do to the upright picture: flips first, then the rotation. */
export function wanted(settings) {
    const across = { mirror: settings.flipHorizontal, angle: 0 };
    const down = { mirror: settings.flipVertical, angle: settings.flipVertical ? 180 : 0 };
    return then(then(across, down), { mirror: false, angle: wholeTurn(settings.angle) });
}

export function isNothing(element) {
    return !element.mirror && element.angle === 0;
}
