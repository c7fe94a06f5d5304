// Makes a resized copy of a picture.
// Services used: image (resizeImage, resizeImage2), units, files. Plain data in, plain data out.

import { inPixels, PIXEL } from "../../lib/measure.js";
import { splitPath } from "../../lib/names.js";
import { newSize } from "./sizes.js";
import { ORIGINAL, WRITTEN, writtenType } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { handsOnTurn, outputMessages, ready, refused, targetOf, uprightOutcome } from "../shared/written.js";

export const MOST_PIXELS = 100000;
export const MOST_PERCENT = 1000;
/** The settings that are lengths in the unit. */
export const LENGTHS = ["width", "height", "longest", "boxWidth", "boxHeight"];

/** How a picture gets the shape of the box. */
export const BOX_FITS = ["fill", "stretch"];

/** What a new pane shows. */
export const defaults = {
    mode: "longest", width: 1600, height: 1200, longest: 1600, percent: 50, boxWidth: 1600, boxHeight: 1200,
    boxFit: "fill", neverEnlarge: true, unit: PIXEL,
    output: {
        fileType: ORIGINAL, quality: "8", destination: { kind: "beside", name: qsTr("Resized"), path: "" },
        ifTaken: "number", simulation: false,
    },
};

/** What the output block offers: types to write, a quality for JPEG, and the types that metadata goes along into. */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, metadata: ["public.tiff"] };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const unit = settings.unit === PIXEL || settings.mode === "percent" ? "" : " " + settings.unit;
    const size = settings.mode === "box"
        ? settings.boxWidth + "×" + settings.boxHeight : String(settings[settings.mode]);
    const words = { width: qsTr("width %1"), height: qsTr("height %1"), longest: qsTr("longest %1"),
                    percent: qsTr("percent %1"), box: qsTr("box %1") };
    return fill(words[settings.mode], size + unit);
}

function usedFields(settings) {
    return settings.mode === "box" ? ["boxWidth", "boxHeight"] : [settings.mode];
}

function isInRange(value, least, most, whole) {
    return value >= least && value <= most && (!whole || Number.isInteger(value));
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    for (const field of usedFields(settings)) {
        const most = field === "percent" ? MOST_PERCENT : MOST_PIXELS;
        const whole = field === "percent" || settings.unit === PIXEL;
        if (!isInRange(settings[field], whole ? 1 : 0.01, most, whole)) {
            const text = whole ? qsTr("Enter a whole number from 1 to %1.") : qsTr("Enter a number above 0, up to %1.");
            messages.push(text.replace("%1", String(most)));
        }
    }
    return messages.concat(outputMessages(settings.output));
}

// The size in pixels of one picture, or why there is none: {size, reason}.
function sizeFor(photo, settings, services) {
    const lengths = usedFields(settings).filter((field) => field !== "percent");
    const inUnits = inPixels(photo, settings, lengths, services);
    if (lengths.some((field) => inUnits[field] > MOST_PIXELS)) {
        return { size: null, reason: qsTr("it would be larger than %n pixels", "", MOST_PIXELS) };
    }
    const size = lengths.every((field) => inUnits[field] >= 1) ? newSize(photo, inUnits) : { width: 0, height: 0 };
    return size.width < 1 || size.height < 1
        ? { size: null, reason: qsTr("it would be less than one pixel in size") }
        : { size: size, reason: "" };
}

/**
 * What a run would write for one picture: {status: "ready", name, type, width, height, part, notes}, or a final status with
 * its reason.
 */
export function plan(photo, settings, services) {
    const target = targetOf(photo, settings.output.fileType);
    if (target.refusal !== null) {
        return target.refusal;
    }
    const found = sizeFor(photo, settings, services);
    if (found.size === null) {
        return { status: "Failed", reason: found.reason };
    }
    const planned = ready(splitPath(photo.path).base + target.type.extension, target.type, found.size, []);
    planned.part = found.size.part;
    return planned;
}

function callService(photo, size, settings, image) {
    const output = settings.output;
    if (size.box) {
        return image.resizeImage2(photo.path, size.width, size.height, size.mode, settings.prefix, output.fileType,
                                  output.quality);
    }
    return image.resizeImage(photo.path, size.n, size.mode, settings.prefix, output.fileType, output.quality);
}

/**
 * Writes the resized copy as settings.prefix + name, where plan() tells the name; what is there is replaced.
 * Returns {status, reason, outputs: [path], width, height}.
 */
export function run(photo, settings, services) {
    const planned = plan(photo, settings, services);
    if (planned.status !== "ready") {
        return refused(planned);
    }
    const status = callService(photo, sizeFor(photo, settings, services).size, settings, services.image);
    return uprightOutcome(status, settings.prefix + planned.name, planned, handsOnTurn(photo, planned, offer.metadata),
                          services);
}

/**
 * What the preview does to the upright picture to show the result: {deeds, width, height, type, quality}. Deeds are done in
 * their order, lengths are pixels of the full picture, origin top left.
 */
export function preview(photo, settings, planned) {
    const part = planned.part;
    /** @type {any[]} */
    const deeds = part.width < 1 || part.height < 1
        ? [{ do: "cut", x: Math.round(part.left * photo.width), y: Math.round(part.top * photo.height),
             width: Math.round(part.width * photo.width), height: Math.round(part.height * photo.height) }]
        : [];
    deeds.push({ do: "scale", width: planned.width, height: planned.height });
    return { deeds: writtenType(planned.type).alpha ? deeds : deeds.concat([{ do: "flatten" }]), width: planned.width,
             height: planned.height, type: planned.type, quality: settings.output.quality };
}
