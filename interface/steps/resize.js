// Makes a resized copy of a picture.
// Services used: image (resizeImage, resizeImage2), files (storedSize). Plain data in, plain data out.

import { newSize } from "../lib/sizes.js";
import { splitPath } from "../lib/names.js";
import { ORIGINAL, resultType, WRITTEN } from "../lib/types.js";

export const MOST_PIXELS = 100000;
export const MOST_PERCENT = 1000;

/** What a new pane shows. */
export const defaults = {
    mode: "longest", width: 1600, height: 1200, longest: 1600, percent: 50, boxWidth: 1600, boxHeight: 1200,
    boxFit: "fill", neverEnlarge: true,
    output: {
        fileType: ORIGINAL, quality: "8", destination: { kind: "beside", name: "Resized", path: "" },
        ifTaken: "number", simulation: false,
    },
};

/** What the output block offers: types to write, a quality for JPEG, and the types that metadata goes along into. */
export const offer = { types: WRITTEN.map((type) => type.id), quality: true, metadata: ["public.tiff"] };

/** The settings in a few words, for the log. */
export function describe(settings) {
    return settings.mode === "box" ? "box " + settings.boxWidth + "×" + settings.boxHeight : settings.mode + " " + settings[settings.mode];
}

function outOfRange(value, most) {
    return !(Number.isInteger(value) && value >= 1 && value <= most);
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    const used = settings.mode === "box" ? ["boxWidth", "boxHeight"] : [settings.mode];
    for (const field of used) {
        const most = field === "percent" ? MOST_PERCENT : MOST_PIXELS;
        if (outOfRange(settings[field], most)) {
            messages.push(qsTr("Enter a whole number from 1 to %1.").replace("%1", String(most)));
        }
    }
    const destination = settings.output.destination;
    if (destination.kind === "folder" && !destination.path) {
        messages.push(qsTr("Choose a folder to save to."));
    }
    return messages;
}

function notesFor(photo, type) {
    const notes = [];
    if (type.id === "public.tiff" && (photo.orientation || 1) !== 1) {
        notes.push(qsTr("The pixels are turned upright; the orientation tag goes along with the other metadata."));
    }
    return notes;
}

/**
 * What a run would write for one picture: {status: "ready", name, width, height, part, notes}, or a final status with its
 * reason.
 */
export function plan(photo, settings, services) {
    const parts = splitPath(photo.path);
    const type = resultType(parts.extension, settings.output.fileType);
    if (type === null) {
        const word = photo.type || parts.extension.toUpperCase();
        return { status: "Not Supported", reason: qsTr("%1 cannot be written, choose another file type").replace("%1", word) };
    }
    if (!photo.width || !photo.height) {
        return { status: "Failed", reason: qsTr("not a readable picture") };
    }
    const size = newSize(photo, settings);
    if (size.width < 1 || size.height < 1) {
        return { status: "Failed", reason: qsTr("it would be less than one pixel in size") };
    }
    return { status: "ready", reason: "", name: parts.base + type.extension, type: type.id, width: size.width,
             height: size.height, part: size.part, notes: notesFor(photo, type) };
}

function callService(photo, size, settings, image) {
    const output = settings.output;
    if (size.box) {
        return image.resizeImage2(photo.path, size.width, size.height, size.mode, settings.prefix, output.fileType, output.quality);
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
        return { status: planned.status, reason: planned.reason, outputs: [] };
    }
    const status = callService(photo, newSize(photo, settings), settings, services.image);
    if (status !== "OK") {
        const reason = status === "Not Supported" ? qsTr("this type cannot be written") : qsTr("the file could not be written");
        return { status: status, reason: reason, outputs: [] };
    }
    // The operation also answers "OK" where no bitmap could be made and no file was written.
    const output = settings.prefix + planned.name;
    const written = services.files.storedSize(output);
    if (written === null) {
        return { status: "Failed", reason: qsTr("not a readable picture"), outputs: [] };
    }
    if (written.width !== planned.width || written.height !== planned.height) {
        const reason = qsTr("the result is %1 instead of %2").replace("%1", written.width + "×" + written.height)
            .replace("%2", planned.width + "×" + planned.height);
        return { status: "Failed", reason: reason, outputs: [] };
    }
    return { status: "OK", reason: "", outputs: [output], width: written.width, height: written.height };
}
