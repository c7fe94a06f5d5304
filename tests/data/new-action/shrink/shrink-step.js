// Makes pictures smaller. Plain data in, plain data out.

import { splitPath } from "../../lib/names.js";
import { ORIGINAL, typeOfExtension, WRITTEN, writtenType } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { usualOutput } from "../shared/by-recipe.js";
import { outcome, outputMessages, ready, refused, unreadable } from "../shared/written.js";

const PER_CENT = 3;

export const defaults = {
    percent: 50,
    output: usualOutput(ORIGINAL, "9", "Shrunk"),
};

export const offer = { types: WRITTEN.map((type) => type.id), quality: true, metadata: ["public.tiff"] };

export function describe(settings) {
    return fill(qsTr("to %1 %"), settings.percent);
}

export function validate(settings) {
    return outputMessages(settings.output);
}

export function plan(photo, settings) {
    const parts = splitPath(photo.path);
    const chosen = settings.output.fileType;
    const type = writtenType(chosen === ORIGINAL ? typeOfExtension(parts.extension) : chosen);
    const part = (length) => Math.trunc((length * settings.percent) / 100);
    const size = { width: part(photo.width), height: part(photo.height) };
    return unreadable(photo) || ready(parts.base + type.extension, type, size, []);
}

export function run(photo, settings, services) {
    const planned = plan(photo, settings);
    if (planned.status !== "ready") {
        return refused(planned);
    }
    const output = settings.output;
    const status = services.image.resizeImage(photo.path, settings.percent, PER_CENT, settings.prefix, output.fileType,
                                              output.quality);
    return outcome(status, settings.prefix + planned.name, planned, services);
}

export function preview(photo, settings, planned) {
    return { deeds: [{ do: "scale", width: planned.width, height: planned.height }], width: planned.width,
             height: planned.height,
             type: planned.type, quality: settings.output.quality };
}
