// Operations and outputs of recipes in words: titles, search words of the menu, and their settings in a line. Pure but
// for translation.

import { splitPath } from "../../lib/names.js";
import { fill } from "../../lib/wording.js";
import { ATTENTION } from "./field-kinds.js";
import { keyAmong } from "./operation-fields.js";
import { typeWords } from "./output-fields.js";

const SIZES = ["width", "height", "longest", "shortest", "percent", "megapixels", "box"];

/** {title, explanation, words} by the word of the operation. */
export function operationWords() {
    return {
        resize: {
            title: qsTr("Resize"),
            explanation: qsTr("To a side, a percentage, megapixels or a box"),
            words: qsTr("scale small large pixels size")
        },
        crop: {
            title: qsTr("Crop"),
            explanation: qsTr("To a ratio or size, or trim the edges"),
            words: qsTr("cut trim ratio")
        },
        turn: {
            title: qsTr("Rotate"),
            explanation: qsTr("By any angle, clockwise"),
            words: qsTr("turn angle straighten")
        },
        flip: { title: qsTr("Flip"), explanation: qsTr("Horizontally or vertically"), words: qsTr("mirror") },
        round: {
            title: qsTr("Round corners"),
            explanation: qsTr("Rectangle, circle or ellipse, with a border"),
            words: qsTr("radius circle")
        },
        background: {
            title: qsTr("Background"),
            explanation: qsTr("Fills transparent parts"),
            words: qsTr("colour pattern transparent")
        },
        frame:
            { title: qsTr("Frame"), explanation: qsTr("Around the picture on all sides"), words: qsTr("border edge") },
        watermark: {
            title: qsTr("Watermark"),
            explanation: qsTr("A text or a picture over the picture"),
            words: qsTr("copyright logo text stamp")
        },
        sharpen: {
            title: qsTr("Sharpen"),
            explanation: qsTr("For the size at that point"),
            words: qsTr("crisp unsharp")
        },
        profile: {
            title: qsTr("Colour profile"),
            explanation: qsTr("Convert colours to sRGB, Display P3 or another"),
            words: qsTr("icc grey convert")
        },
    };
}

const NEW = {
    resize: { longest: 2048 },
    crop: { ratio: "3:2" },
    turn: { degrees: 90 },
    flip: { direction: "horizontal" },
    round: { radius: 40 },
    background: { color: "#ffffff" },
    frame: { width: 20 },
    watermark: { text: "© {taken:yyyy}" },
    sharpen: {},
    profile: { to: "sRGB" },
};

/** What the menu of operations offers, in order: [{title, explanation, words, operation}]. */
export function operationMenu() {
    const words = operationWords();
    return Object.keys(words).map(
        (name) => Object.assign({ operation: Object.assign({ do: name }, NEW[name]) }, words[name]));
}

function unitOf(operation) {
    return operation.unit === undefined ? "px" : operation.unit;
}

function resizeText(operation) {
    const key = keyAmong(operation, SIZES);
    const size = key === "box" ? operation.box.join(" × ") : String(operation[key]);
    const words = { width: qsTr("Width %1"), height: qsTr("Height %1"), longest: qsTr("Longest side %1"),
                    shortest: qsTr("Shortest side %1"), percent: "%1", megapixels: "%1", box: qsTr("Box %1") };
    const unit = { percent: "%", megapixels: "MP" }[key] || unitOf(operation);
    return fill(words[key], size + " " + unit);
}

function cropText(operation) {
    const key = keyAmong(operation, ["ratio", "width", "percent", "trim"]);
    return {
        ratio: () => String(operation.ratio),
        width: () => operation.width + " × " + operation.height + " " + unitOf(operation),
        percent: () => fill(qsTr("Trim %1%"), operation.percent),
        trim: () => fill(qsTr("Trim %1 px"), operation.trim)
    }[key]() +
           (operation.position === ATTENTION ? " · " + qsTr("at the focus of attention") : "");
}

function fileText(path) {
    return path === "" ? qsTr("no file chosen") : splitPath(path).name;
}

const SUMMARIES = {
    resize: resizeText,
    crop: cropText,
    turn: (operation) => operation.degrees + "°",
    flip: (operation) => operation.direction === "vertical" ? qsTr("Top and bottom") : qsTr("Left and right"),
    round: (operation) => ({ circle: qsTr("Circle"), ellipse: qsTr("Ellipse") }[operation.shape]
        || fill(qsTr("Radius %1"), (operation.radius || 0) + " " + unitOf(operation))),
    background: (operation) => operation.pattern === undefined ? operation.color : fileText(operation.pattern),
    frame: (operation) => operation.width + " " + unitOf(operation),
    watermark: (operation) => operation.text === undefined
        ? fileText(operation.picture) : fill(qsTr("“%1”"), operation.text.split("\n").join(" ")),
    sharpen: (operation) => ({ low: qsTr("Low"), high: qsTr("High") }[operation.amount] || qsTr("Standard")),
    profile: (operation) => operation.to.indexOf("/") >= 0 ? fileText(operation.to) : operation.to,
};

/** The settings of an operation in a line. */
export function operationSummary(operation) {
    return SUMMARIES[operation.do] === undefined ? "" : SUMMARIES[operation.do](operation);
}

function typeWord(type) {
    const found = typeWords().find((each) => each[0] === type);
    return found === undefined ? type : found[1];
}

/** The result in a line: the type and its quality, and where it goes. */
export function outputSummary(output) {
    const parts = [];
    if (output.lossless === true) {
        parts.push(qsTr("lossless"));
    } else if (output.quality !== undefined) {
        parts.push(fill(qsTr("quality %1"), output.quality));
    }
    if (output.maxBytes !== undefined) {
        parts.push(fill(qsTr("at most %1 kB"), Math.round(output.maxBytes / 1000)));
    }
    const place = (output.folder || "") === "" ? "" : output.folder + "/";
    return parts.concat([place + (output.name || "{name}")]).join(" · ");
}

/** "Output 2: JPEG". */
export function outputTitle(output, index) {
    return fill(qsTr("Output %1: %2"), index + 1, typeWord(output.type || "original"));
}
