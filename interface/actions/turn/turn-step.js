// Turns and flips a picture, in its own type.
// Services used: image (hFlipHorizontalPicture, hFlipVerticalPicture, hRotatePicture), files. Plain data in, plain data out.

import { splitPath } from "../../lib/names.js";
import { forStored, isExact, isNothing, operations, shortestTurn, turnedSize, upright, wanted } from "./turns.js";
import { ORIGINAL, writtenType } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { usualOutput } from "../shared/by-recipe.js";
import { outcome, outputMessages, ready, refused, targetOf } from "../shared/written.js";

/** What a new pane shows. The angle is in degrees, counter-clockwise, in tenths. */
export const defaults = {
    angle: 0, flipHorizontal: false, flipVertical: false,
    output: usualOutput(ORIGINAL, "10", qsTr("Turned")),
};

/** What the output block offers: the type is always the picture's own. */
export const offer = { types: [], quality: false, metadata: ["public.jpeg", "public.tiff"] };

// The types that keep the orientation tag of the source, and with it the pixels as they are stored.
const KEEPS_TAG = ["public.jpeg", "public.tiff"];

/** The settings in a few words, for the log. */
export function describe(settings) {
    const parts = settings.angle !== 0 ? [fill(qsTr("turn %1°"), settings.angle)] : [];
    return parts
        .concat(settings.flipHorizontal ? [qsTr("flip horizontally")] : [],
                settings.flipVertical ? [qsTr("flip vertically")] : []).join(", ");
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    if (!(settings.angle >= -180 && settings.angle <= 180)) {
        messages.push(qsTr("Enter an angle from -180 to 180 degrees."));
    } else if (isNothing(wanted(settings))) {
        messages.push(qsTr("Choose an angle or a flip."));
    }
    return messages.concat(outputMessages(settings.output));
}

function sidesSwapped(size) {
    return { width: size.height, height: size.width };
}

// What is done to the pixels as they are stored, and the size that they come out in.
function workOn(photo, settings, type) {
    const orientation = photo.orientation || 1;
    const keepsTag = KEEPS_TAG.indexOf(type.id) >= 0;
    const element = forStored(wanted(settings), orientation, keepsTag);
    const lies = upright(orientation).angle % 180 !== 0;
    const source = lies ? sidesSwapped(photo) : photo;
    const stored = turnedSize(source, element);
    return { element: element, source: source, stored: stored, seen: keepsTag && lies ? sidesSwapped(stored) : stored };
}

// True where it is certain: the stored sides are whole blocks of the file.
function isLossless(photo, type, work, services) {
    if (type.id !== "public.jpeg" || !isExact(work.element)) {
        return false;
    }
    const block = services.files.jpegBlock(photo.path);
    return block !== null && work.source.width % block.width === 0 && work.source.height % block.height === 0;
}

function notesFor(photo, type, work, services) {
    const exact = isExact(work.element);
    const notes = isLossless(photo, type, work, services) ? [qsTr("Turned without loss.")] : [];
    if (!exact) {
        notes.push(type.alpha ? qsTr("The canvas grows so that the corners fit.")
                              : qsTr("The canvas grows so that the corners fit; what is beside the picture becomes black."));
    }
    return notes;
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings, services) {
    const target = targetOf(photo, ORIGINAL);
    if (target.refusal !== null) {
        const reason = target.refusal.status === "Not Supported"
            ? qsTr("%1 cannot be written; convert it first").replace("%1", photo.type
                                                                     || splitPath(photo.path).extension.toUpperCase())
            : target.refusal.reason;
        return { status: target.refusal.status, reason: reason };
    }
    const work = workOn(photo, settings, target.type);
    const planned = ready(splitPath(photo.path).name, target.type, work.seen,
                          notesFor(photo, target.type, work, services));
    planned.stored = work.stored;
    planned.operations = operations(work.element);
    return planned;
}

function carryOut(operation, path, prefix, image) {
    if (operation.turn !== undefined) {
        return image.hRotatePicture(path, prefix, operation.turn);
    }
    return operation.flip === "horizontal"
        ? image.hFlipHorizontalPicture(path, prefix) : image.hFlipVerticalPicture(path, prefix);
}

/** Writes the turned picture as settings.prefix + its own name; see the Resize step. */
export function run(photo, settings, services) {
    const planned = plan(photo, settings, services);
    if (planned.status !== "ready") {
        return refused(planned);
    }
    const output = settings.prefix + planned.name;
    let from = photo.path;
    let status = "OK";
    for (const operation of planned.operations) {
        // Nothing at all is answered for a file without a picture in it.
        status = status === "OK" ? carryOut(operation, from, settings.prefix, services.image) : status;
        from = output;
    }
    if (status === null) {
        return { status: "Failed", reason: qsTr("not a readable picture"), outputs: [] };
    }
    return outcome(status, output, planned, services, planned.stored);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    /** @type {any[]} */
    const deeds = operations(wanted(settings)).map((operation) => (operation.turn !== undefined
        ? { do: "turn", degrees: shortestTurn(operation.turn) }
        : { do: "flip", axis: operation.flip }));
    return { deeds: writtenType(planned.type).alpha ? deeds : deeds.concat([{ do: "flatten" }]), width: planned.width,
             height: planned.height, type: planned.type, quality: "" };
}
