// Writes a picture as another file type.
// Services used: fileHandling (hConvertFileType), files. Plain data in, plain data out.

import { splitPath } from "../../lib/names.js";
import { isTarget, lostText, sourceNotes, targetNamed } from "./targets.js";
import { CONVERSION_QUALITIES, ORIGINAL } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { usualOutput } from "../shared/by-recipe.js";
import { outputMessages, ready, refused } from "../shared/written.js";

/** What a new pane shows. target: see targets.js. */
export const defaults = {
    target: "jpeg", quality: "8",
    output: usualOutput(ORIGINAL, "10", qsTr("Converted")),
};

/** The output block offers no type, for that is what the pane is about, which also says what metadata goes into. */
export const offer = { types: [], quality: false, metadata: ["public.png", "public.tiff"] };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const target = targetNamed(settings.target);
    return target.quality
        ? fill(qsTr("to %1, quality %2"), target.word, settings.quality) : fill(qsTr("to %1"), target.word);
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    if (!isTarget(settings.target)) {
        messages.push(qsTr("Choose what to convert to."));
    } else if (CONVERSION_QUALITIES.indexOf(settings.quality) < 0) {
        messages.push(qsTr("Choose a quality from 1 to 9."));
    }
    return messages.concat(outputMessages(settings.output));
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings) {
    if (!photo.width || !photo.height) {
        return { status: "Failed", reason: photo.problem || qsTr("not a readable picture") };
    }
    const target = targetNamed(settings.target);
    const planned = ready(splitPath(photo.path).base + target.extension, target, photo, sourceNotes(photo, target));
    planned.word = target.word;
    planned.metadata = target.metadata;
    return planned;
}

function metadataWords(compared) {
    return compared.problem
        ? fill(qsTr("whether the metadata was written cannot be known: %1"), compared.problem)
        : fill(qsTr("the metadata could not be written (%1); the disk may be full"), compared.lost.join(", "));
}

// The service answers the same whatever becomes of the file: only the file itself tells.
function verified(path, planned, photo, services) {
    if (!services.files.info(path).exists) {
        return { status: "Failed", reason: qsTr("the file could not be written"), outputs: [] };
    }
    const written = services.files.picture(path);
    // A page is measured in points.
    const isRight = written.type === planned.word && written.width > 0 &&
        (planned.word === "PDF" || (written.width === photo.width && written.height === photo.height));
    if (!isRight) {
        return { status: "Failed", reason: qsTr("the file was written but cannot be read again"), outputs: [] };
    }
    // The picture is written first and its metadata after it; on a full disk only the first may have gone well.
    const compared = planned.metadata ? services.files.lostMetadata(photo.path, path) : { lost: [], problem: "" };
    if (compared.problem || compared.lost.length > 0) {
        return { status: "Failed", reason: metadataWords(compared), outputs: [] };
    }
    return { status: "OK", reason: "", outputs: [path], width: planned.width, height: planned.height };
}

/** Writes the picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    const planned = plan(photo, settings);
    if (planned.status !== "ready") {
        return refused(planned);
    }
    const path = settings.prefix + planned.name;
    services.fileHandling.hConvertFileType(photo.path, settings.target, settings.quality, path);
    return verified(path, planned, photo, services);
}

/** What the preview does to the upright picture to show the result. bytes: where that is known without a try. */
export function preview(photo, settings, planned) {
    const target = targetNamed(settings.target);
    const shown = { edits: target.alpha ? [] : [{ do: "flatten" }], width: planned.width, height: planned.height,
                    type: planned.type,
                    quality: target.quality ? settings.quality : "" };
    if (settings.target === "pdf" && photo.type === "JPEG" && (photo.orientation || 1) === 1) {
        shown.bytes = photo.bytes;
    }
    return shown;
}

/** What the result of a picture will not hold, in words. */
export function lost(photo, settings) {
    return lostText(photo, targetNamed(settings.target));
}
