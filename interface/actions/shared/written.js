// What the steps share that write pictures: unreadable and unwritable pictures, and a check of the written file.
// Services used: files (storedSize), tokens.

import { tokens } from "quorlin/tokens";
import { splitPath } from "../../lib/names.js";
import { isSound } from "../../runs/plan.js";
import { fill } from "../../lib/wording.js";
import { typeOfExtension, writtenType } from "../../lib/types.js";

function nameMessages(pattern) {
    if (pattern.trim() === "") {
        return [qsTr("Enter a name for the results.")];
    }
    const isInOneFolder = tokens.parts(pattern).every((part) => part.text === undefined || part.text.indexOf("/") < 0);
    return tokens.problems(pattern).concat(isInOneFolder ? [] : [qsTr("A name cannot contain “/”.")]);
}

function folderMessages(destination) {
    if (isSound(destination)) {
        return [];
    }
    return destination.kind === "folder"
        ? [qsTr("Choose a folder to save to.")]
        : [fill(qsTr("“%1” is not a valid folder name."), destination.name)];
}

/** Messages about output settings that prevent a run. */
export function outputMessages(output) {
    return folderMessages(output.destination).concat(nameMessages(output.namePattern));
}

/** The plan of a picture that cannot be read; null for any other. */
export function unreadable(photo) {
    return photo.width && photo.height
        ? null : { status: "Failed", reason: photo.problem || qsTr("not a readable picture") };
}

/** The plan of a picture whose own type is not written. */
export function unwritable(photo) {
    const word = photo.type || splitPath(photo.path).extension.toUpperCase();
    return { status: "Not Supported", reason: fill(qsTr("%1 cannot be written, choose another file type"), word) };
}

/** True for a source of a type that may hold transparent pixels. */
export function mayBeTransparent(photo) {
    const type = writtenType(typeOfExtension(splitPath(photo.path).extension));
    return type === null || type.alpha;
}

/** A plan that can be carried out. */
export function ready(name, type, size, notes) {
    return { status: "ready", reason: "", name: name, type: type.id, width: size.width, height: size.height,
             notes: notes };
}

function failed(reason) {
    return { status: "Failed", reason: reason, outputs: [] };
}

/** The result of a plan that cannot be carried out. */
export function refused(planned) {
    return { status: planned.status, reason: planned.reason, outputs: [] };
}

/**
 * The final result: what the service answered, and whether the file exists in the planned size. stored: the size of its
 * pixels as stored, if it differs from the plan.
 */
export function outcome(status, path, planned, services, stored) {
    if (status !== "OK") {
        const reason = status === "Not Supported"
            ? qsTr("this type cannot be written") : qsTr("the file could not be written");
        return { status: status === "Not Supported" ? status : "Failed", reason: reason, outputs: [] };
    }
    // An operation also answers "OK" if no bitmap could be made and no file was written.
    const written = services.files.storedSize(path);
    if (written === null) {
        return failed(qsTr("not a readable picture"));
    }
    const expected = stored || planned;
    if (written.width !== expected.width || written.height !== expected.height) {
        const words = (size) => size.width + "×" + size.height;
        return failed(qsTr("the result is %1 instead of %2").replace("%1", words(written)).replace("%2",
                                                                                                   words(expected)));
    }
    return { status: "OK", reason: "", outputs: [path], width: planned.width, height: planned.height };
}
