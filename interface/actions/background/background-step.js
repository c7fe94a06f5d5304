// Lays pictures on a colour or a pattern, and puts a frame round them or a band inside their edge.
// Services used: image (addOverlayColor, roundCornersOfImage, addBorderToImage, hSaveToNewImageFile), pictures, files.
// Plain data in, plain data out.

import { FORMAT_CODES, MASK_TYPES, maskName } from "../shared/masks.js";
import { ORIGINAL, writtenType } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { usualOutput } from "../shared/by-recipe.js";
import { handsOnTurn, mayBeTransparent, outcome, outputMessages, ready, refused, targetOf,
         uprightOutcome } from "../shared/written.js";

export const MOST_BAND = 10000;
/** What can lie under a picture. */
export const GROUNDS = ["color", "pattern"];
export const FRAMES = ["none", "white", "band"];
/** The white frame is as wide on every side, in pixels. */
export const FRAME = 10;

/** What a new pane shows. */
export const defaults = {
    under: "color", color: "#ffffff", pattern: "", frame: "none", bandColor: "#202124", bandWidth: 40,
    output: usualOutput(ORIGINAL, "10", qsTr("Framed")),
};

/** What the output block offers; see the Resize step. */
export const offer = { types: MASK_TYPES, quality: false, metadata: [] };

/** The types that metadata goes along into with these settings. */
export function carried(settings) {
    return settings.frame === "band" ? ["public.jpeg"] : offer.metadata;
}

/** The settings in a few words, for the log. */
export function describe(settings) {
    const under = settings.under === "color"
        ? fill(qsTr("on %1"), settings.color) : fill(qsTr("on pattern %1"), settings.pattern);
    const frames = { none: [], white: [qsTr("white frame")],
                     band: [fill(qsTr("band of %1 px in %2"), settings.bandWidth, settings.bandColor)] };
    return [under].concat(frames[settings.frame]).join(", ");
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    if (settings.under === "pattern" && !settings.pattern) {
        messages.push(qsTr("Choose a pattern."));
    }
    if (settings.frame === "band"
        && !(Number.isInteger(settings.bandWidth) && settings.bandWidth >= 1 && settings.bandWidth <= MOST_BAND)) {
        messages.push(qsTr("Enter a width of the band from 1 to %1.").replace("%1", String(MOST_BAND)));
    }
    return messages.concat(outputMessages(settings.output));
}

// True if something is laid under this picture, in a file of its own or on the way to the frame.
function isLaid(photo, settings) {
    return settings.frame === "none" || mayBeTransparent(photo);
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings) {
    const target = targetOf(photo, settings.output.fileType);
    if (target.refusal !== null) {
        return target.refusal;
    }
    if (settings.frame === "band" && 2 * settings.bandWidth >= Math.min(photo.width, photo.height)) {
        return { status: "Failed", reason: qsTr("the band would cover all of it") };
    }
    const grown = settings.frame === "white" ? 2 * FRAME : 0;
    const size = { width: photo.width + grown, height: photo.height + grown };
    const notes = settings.frame === "none" && !mayBeTransparent(photo)
        ? [qsTr("A %1 picture has no transparent parts: it stays as it looks.").replace("%1", photo.type)] : [];
    return ready(maskName(photo.path, settings.output.fileType), target.type, size, notes);
}

// Writes the picture with what lies under it as `output`; returns a status, or a sentence where a pattern failed.
function lay(photo, settings, planned, output, services) {
    if (settings.under === "color") {
        services.outlets.backgroundColor.color = settings.color;
        return services.image.addOverlayColor(photo.path, settings.prefix, "", "",
                                              FORMAT_CODES[settings.output.fileType]);
    }
    const problem = services.pictures.layOnPattern(photo.path, settings.pattern, output);
    return problem || "OK";
}

// The frame is drawn in points: a picture of another resolution is first told that a pixel is a point.
function putFrame(from, planned, output, services) {
    const opened = services.openPicture(from);
    if (opened === null) {
        return "Failed";
    }
    const pointwise = services.image.imageFromCGImageRef(opened.bitmap());
    const framed = pointwise === null ? null : services.image.addBorderToImage(pointwise);
    const status = framed === null
        ? "Failed" : services.image.hSaveToNewImageFile(output, planned.type, framed.bitmap(), {});
    [opened, pointwise, framed].forEach((picture) => picture !== null && picture.release());
    return status;
}

function putBand(from, settings, code, services) {
    const outlets = services.outlets;
    outlets.backgroundCheck.state = 1;
    outlets.backgroundColor.color = settings.bandColor;
    outlets.bandWidth.stringValue = String(settings.bandWidth);
    return services.image.roundCornersOfImage(from, settings.prefix, 0, "0", code);
}

/** Writes the picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    const planned = plan(photo, settings);
    if (planned.status !== "ready") {
        return refused(planned);
    }
    const output = settings.prefix + planned.name;
    const laid = isLaid(photo, settings);
    const status = laid ? lay(photo, settings, planned, output, services) : "OK";
    const from = laid ? output : photo.path;
    if (["OK", "Failed", "Not Supported"].indexOf(status) < 0) {
        return { status: "Failed", reason: status, outputs: [] };
    }
    if (status !== "OK" || settings.frame === "none") {
        return outcome(status, output, planned, services);
    }
    if (settings.frame === "white") {
        return outcome(putFrame(from, planned, output, services), output, planned, services);
    }
    const code = laid ? FORMAT_CODES[ORIGINAL] : FORMAT_CODES[settings.output.fileType];
    const isTagged = handsOnTurn(photo, planned, ["public.jpeg", "public.tiff"]);
    return uprightOutcome(putBand(from, settings, code, services), output, planned, isTagged, services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    const deeds = [];
    if (isLaid(photo, settings)) {
        deeds.push(settings.under === "color"
                   ? { do: "lay", color: settings.color } : { do: "pattern", path: settings.pattern });
    }
    if (settings.frame === "white") {
        deeds.push({ do: "frame" });
    } else if (settings.frame === "band") {
        deeds.push({ do: "round", shape: "0", radius: 0, color: settings.bandColor, band: settings.bandWidth });
    }
    return { deeds: writtenType(planned.type).alpha ? deeds : deeds.concat([{ do: "flatten" }]), width: planned.width,
             height: planned.height, type: planned.type, quality: "" };
}
