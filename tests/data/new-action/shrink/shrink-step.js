// Makes pictures smaller. Plain data in, plain data out.

import { splitPath } from "../../lib/names.js";
import { ORIGINAL, typeOfExtension, WRITTEN, writtenType } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { makeBy, showBy, statedQuality, usualOutput } from "../shared/by-recipe.js";
import { outputMessages, ready, unreadable } from "../shared/written.js";

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

function recipe(settings) {
    return { quorlin: 1, operations: [{ do: "resize", percent: settings.percent }], outputs: [{ type: "original" }] };
}

export function run(photo, settings, services) {
    return makeBy(photo, settings, recipe(settings), plan(photo, settings), services);
}

export function preview(photo, settings, planned) {
    return showBy(photo, recipe(settings), planned, statedQuality(settings.output));
}
