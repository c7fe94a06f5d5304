// The settings of the operations of recipes as fields: which there are depends on what is chosen. Pure but for translation; only the
// fonts are asked for. See field-kinds.js.

import { recipes } from "quorlin/recipes";
import { PICTURE_INPUT } from "../../lib/types.js";
import {
    ATTENTION, check, choice, color, explained, explainedFirst, file, keyed, lines, number, optional, position,
    positionOrAttention, text,
} from "./field-kinds.js";

const MOST_PIXELS = 100000;
const MOST_DPI = 10000;
const MOST_PERCENT = 1000;
export const PIXEL = "pixel";
const WHITE = "#ffffff";

/** The lengths of a resize, and what else determines a size. */
const SIDES = ["width", "height", "longest", "shortest"];
const RESIZE_BY = SIDES.concat(["percent", "megapixels", "box"]);
const FIRST_SIZE = { width: 1600, height: 1200, longest: 2048, shortest: 1200, percent: 50, megapixels: 2,
                     box: [1600, 1200] };

/** Which one of several alternative keys an operation has. */
export function keyAmong(object, keys) {
    return keys.find((key) => object[key] !== undefined) || keys[0];
}

/** Replaces one of several alternative keys by another. */
function oneOf(object, keys, first) {
    return {
        get: () => keyAmong(object, keys),
        set: (key) => {
            keys.forEach((each) => { delete object[each]; });
            object[key] = first[key];
        },
    };
}

function unitWords() {
    return [[PIXEL, qsTr("pixels")], ["mm", "mm"], ["cm", "cm"], ["in", qsTr("inches")], ["pt", qsTr("points")],
            ["pica", qsTr("picas")]];
}

// Lengths in pixels are whole; others begin at a hundredth.
function lengthOf(operation, label, access, mayBeNothing) {
    const inPixels = operation.unit === undefined;
    const least = inPixels ? 1 : 0.01;
    return number(label, access, [mayBeNothing ? 0 : least, MOST_PIXELS], inPixels ? 0 : 2, "");
}

/** The field of the key dpi. */
export function resolutionField(object, tip) {
    return explained(tip, number(qsTr("Resolution"), keyed(object, "dpi", undefined), [1, MOST_DPI], 0, qsTr("dpi")));
}

function unitFields(operation) {
    const unit = keyed(operation, "unit", PIXEL);
    const choose = (value) => {
        unit.set(value);
        if (value === PIXEL) {
            delete operation.dpi;
        }
    };
    const fields = [choice(qsTr("Unit"), { get: unit.get, set: choose }, unitWords())];
    return unit.get() === PIXEL
               ? fields
               : fields.concat(explainedFirst(
                     qsTr("Otherwise lengths use the resolution of each picture"),
                     optional(qsTr("At a chosen resolution"), operation, "dpi", 300,
                              () => [resolutionField(operation,
                                                     qsTr("Dots per inch used to turn lengths into pixels"))])));
}

function pairAt(operation, key, index) {
    return { get: () => operation[key][index],
             set: (value) => { operation[key] = operation[key].map((each, i) => (i === index ? value : each)); } };
}

function boxFields(operation) {
    const fit = keyed(operation, "fit", "inside");
    const chosen = {
        get: fit.get,
        set: (value) => {
            fit.set(value);
            ["position", "color"].forEach((key) => { delete operation[key]; });
        },
    };
    const own = {
        fill: () => positionOrAttention(operation),
        pad: () => [position(qsTr("Position"), keyed(operation, "position", "center")),
                    color(qsTr("Colour"), keyed(operation, "color", WHITE))],
        inside: () => [], stretch: () => [],
    };
    return [lengthOf(operation, qsTr("Width"), pairAt(operation, "box", 0)),
            lengthOf(operation, qsTr("Height"), pairAt(operation, "box", 1)),
            choice(qsTr("Mode"), chosen, [["inside", qsTr("Fit inside")], ["fill", qsTr("Fill (crops)")],
                                         ["stretch", qsTr("Stretch")], ["pad", qsTr("Fit and pad")]])]
        .concat((own[fit.get()] || own.inside)());
}

function resizeFields(operation) {
    const words = [["width", qsTr("Width")], ["height", qsTr("Height")], ["longest", qsTr("Longest side")],
                   ["shortest", qsTr("Shortest side")], ["percent", qsTr("Percentage")],
                   ["megapixels", qsTr("Megapixels")], ["box", qsTr("Box")]];
    const by = oneOf(operation, RESIZE_BY, FIRST_SIZE);
    const key = by.get();
    const sizes = {
        percent: () => [number(qsTr("Size"), keyed(operation, "percent", undefined), [0.01, MOST_PERCENT], 2, "%")],
        megapixels:
            () => [number(qsTr("Size"), keyed(operation, "megapixels", undefined), [0.01, MOST_PERCENT], 2,
                          qsTr("MP"))],
        box: () => boxFields(operation),
    };
    const hasLengths = sizes[key] === undefined || key === "box";
    const forget = (value) => {
        // Another kind of size does not use the rest.
        ["fit", "position", "color", "unit", "dpi"].forEach((each) => { delete operation[each]; });
        by.set(value);
    };
    return [choice(qsTr("By"), { get: by.get, set: forget }, words)]
        .concat((sizes[key] || (() => [lengthOf(operation, qsTr("Length"), keyed(operation, key, undefined))]))(),
                hasLengths ? unitFields(operation) : [],
                [check(qsTr("Enlarge small pictures too"), keyed(operation, "enlarge", false))]);
}

const CROP_BY = ["ratio", "width", "percent", "trim"];

function cropFields(operation) {
    const first = { ratio: "3:2", width: 1000, percent: 10, trim: 20 };
    const by = oneOf(operation, CROP_BY, first);
    const key = by.get();
    const choose = (value) => {
        ["height", "turn", "unit", "dpi"].forEach((each) => { delete operation[each]; });
        by.set(value);
        if (value === "width") {
            operation.height = first.width;
        }
    };
    const own = {
        ratio: () => [text(qsTr("Ratio"), keyed(operation, "ratio", undefined), false),
                      check(qsTr("Larger number for the longer side"), keyed(operation, "turn", true))],
        width: () => [lengthOf(operation, qsTr("Width"), keyed(operation, "width", undefined)),
                      lengthOf(operation, qsTr("Height"), keyed(operation, "height", undefined))]
                         .concat(unitFields(operation)),
        percent: () => [number(qsTr("Trim"), keyed(operation, "percent", undefined), [0, 99], 2, "%")],
        trim: () => [number(qsTr("Trim"), keyed(operation, "trim", undefined), [0, MOST_PIXELS], 0, "px")],
    };
    const words = [["ratio", qsTr("Ratio")], ["width", qsTr("Width and height")], ["percent", qsTr("Percentage")],
                   ["trim", qsTr("Pixels")]];
    const both = [-MOST_PIXELS, MOST_PIXELS];
    const offset = () => [number(qsTr("Offset to the right"), pairAt(operation, "offset", 0), both, 0, "px"),
                          number(qsTr("Offset downward"), pairAt(operation, "offset", 1), both, 0, "px")];
    return [choice(qsTr("By"), { get: by.get, set: choose }, words)].concat(
        own[key](), positionOrAttention(operation),
        operation.position === ATTENTION ? []
                                         : optional(qsTr("Offset from there"), operation, "offset", [0, 0], offset));
}

function turnFields(operation) {
    return [number(qsTr("Angle"), keyed(operation, "degrees", undefined), [-360, 360], 1, "°")]
        .concat(optional(qsTr("Fill new corners"), operation, "color", WHITE,
                         () => [color(qsTr("Colour"), keyed(operation, "color", undefined))]));
}

function roundFields(operation) {
    const shape = keyed(operation, "shape", "rectangle");
    const choose = (value) => {
        shape.set(value);
        delete operation.radius;
        if (value === "rectangle") {
            operation.radius = 40;
        }
    };
    const radius = shape.get() === "rectangle"
        ? [lengthOf(operation, qsTr("Radius"), keyed(operation, "radius", undefined), true)] : [];
    const band = () => [lengthOf(operation, qsTr("Border width"), bandKey(operation, "width")),
                        color(qsTr("Border colour"), bandKey(operation, "color"))];
    return [choice(qsTr("Shape"), { get: shape.get, set: choose },
                   [["rectangle", qsTr("Rectangle")], ["circle", qsTr("Circle")], ["ellipse", qsTr("Ellipse")]])]
        .concat(radius,
                optional(qsTr("Fill colour"), operation, "color", WHITE,
                         () => [color(qsTr("Colour"), keyed(operation, "color", undefined))]),
                optional(qsTr("Border inside the picture"), operation, "band", { width: 4, color: WHITE }, band),
                unitFields(operation));
}

function bandKey(operation, key) {
    return { get: () => operation.band[key],
             set: (value) => {
                 operation.band = Object.assign({}, operation.band);
                 operation.band[key] = value;
             } };
}

function backgroundFields(operation) {
    const under = oneOf(operation, ["color", "pattern"], { color: WHITE, pattern: "" });
    return [choice(qsTr("Under the picture"), under, [["color", qsTr("A colour")], ["pattern", qsTr("A pattern")]]),
            under.get() === "color" ? color(qsTr("Colour"), keyed(operation, "color", undefined))
                                    : file(qsTr("Pattern"), keyed(operation, "pattern", undefined), PICTURE_INPUT)];
}

function frameFields(operation) {
    return [lengthOf(operation, qsTr("Width"), keyed(operation, "width", undefined)),
            color(qsTr("Colour"), keyed(operation, "color", WHITE))].concat(unitFields(operation));
}

// A font that is not installed stays chosen, so that the message about it can be understood.
function fontWords(own) {
    const there = recipes.fonts();
    const fonts = own === "" || there.indexOf(own) >= 0 ? there : [own].concat(there);
    return [["", qsTr("Standard")]].concat(fonts.map((font) => [font, font]));
}

function markFields(operation) {
    const isText = operation.text !== undefined;
    const mark = oneOf(operation, ["text", "picture"], { text: "© {taken:yyyy}", picture: "" });
    const choose = (value) => {
        ["font", "size", "color"].forEach((key) => { delete operation[key]; });
        mark.set(value);
    };
    const font = keyed(operation, "font", "");
    const own = isText
        ? [lines(qsTr("Text"), keyed(operation, "text", undefined)), choice(qsTr("Font"), font, fontWords(font.get())),
           number(qsTr("Size"), keyed(operation, "size", 4), [0.1, 100], 1, "%"),
           color(qsTr("Colour"), keyed(operation, "color", WHITE))]
        : [file(qsTr("Picture"), keyed(operation, "picture", undefined), PICTURE_INPUT),
           number(qsTr("Size"), keyed(operation, "size", 20), [0.1, 100], 1, "%")];
    return [
        choice(qsTr("Watermark"), { get: mark.get, set: choose },
               [["text", qsTr("Text")], ["picture", qsTr("Picture")]])
    ].concat(own,
             [
                 position(qsTr("Position"), keyed(operation, "position", "bottom right")),
                 number(qsTr("Margin"), keyed(operation, "margin", 2), [0, 100], 1, "%"),
                 number(qsTr("Angle"), keyed(operation, "angle", 0), [-360, 360], 1, "°"),
                 number(qsTr("Opacity"), keyed(operation, "opacity", 70), [0, 100], 0, "%"),
                 check(qsTr("Over the whole picture"), keyed(operation, "tile", false))
             ]);
}

function sharpenFields(operation) {
    return [choice(qsTr("Amount"), keyed(operation, "amount", "standard"),
                   [["low", qsTr("Low")], ["standard", qsTr("Standard")], ["high", qsTr("High")]])];
}

/**
 * The choice of a colour profile, and the field for its file. none: the text for no conversion, if that can be chosen.
 */
export function profileFields(object, key, none) {
    const known = ["sRGB", "Display P3", "Adobe RGB", "gray"];
    const value = object[key];
    const isFile = value !== undefined && known.indexOf(value) < 0;
    const access = {
        get: () => (isFile ? "file" : value || ""),
        set: (chosen) => {
            if (chosen === "") {
                delete object[key];
            } else {
                object[key] = chosen === "file" ? "" : chosen;
            }
        },
    };
    const words = (none === "" ? [] : [["", none]])
        .concat(known.map((name) => [name, name === "gray" ? qsTr("Grey") : name]), [["file", qsTr("A profile file")]]);
    const fields = [explained(qsTr("Converts the colours. sRGB suits screens and the web."),
                              choice(qsTr("Profile"), access, words))];
    const chosen = () => explained(qsTr("A colour profile with the extension .icc or .icm"),
                                   file(qsTr("File"), keyed(object, key, undefined), ["icc", "icm"]));
    return isFile ? fields.concat([chosen()]) : fields;
}

const FIELDS = {
    resize: resizeFields, crop: cropFields, turn: turnFields, round: roundFields, background: backgroundFields,
    frame: frameFields, watermark: markFields, sharpen: sharpenFields,
    flip: (operation) => [choice(qsTr("Direction"), keyed(operation, "direction", undefined),
                                 [["horizontal", qsTr("Left and right")], ["vertical", qsTr("Top and bottom")]])],
    profile: (operation) => profileFields(operation, "to", ""),
};

/** The fields of an operation, in its present state; it is changed in place. None for an unknown one. */
export function operationFields(operation) {
    return FIELDS[operation.do] === undefined ? [] : FIELDS[operation.do](operation);
}
