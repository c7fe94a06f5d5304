// What the steps that write pictures have in common: what cannot be written, and a look at the file that came out.
// Services used: files (storedSize, markUpright).

import { splitPath } from "../../lib/names.js";
import { isSound } from "../../runs/plan.js";
import { fill } from "../../lib/wording.js";
import { keepsProfile, madeType, ORIGINAL, resultType, typeOfExtension, writtenType } from "../../lib/types.js";

/** Messages on output settings that no run can start with. */
export function outputMessages(output) {
    const destination = output.destination;
    if (isSound(destination)) {
        return [];
    }
    return destination.kind === "folder"
        ? [qsTr("Choose a folder to save to.")]
        : [fill(qsTr("“%1” is no name for a folder beside the originals."), destination.name)];
}

/**
 * The written type of the result of a picture (see lib/types), or why there will be none: {type, refusal}, one of which
 * is null; refusal is a plan.
 */
export function targetOf(photo, fileType) {
    const extension = splitPath(photo.path).extension;
    const type = resultType(extension, fileType);
    if (type === null) {
        const word = photo.type || extension.toUpperCase();
        const reason = fileType === ORIGINAL
            ? qsTr("%1 cannot be written, choose another file type") : qsTr("%1 cannot be written");
        return { type: null, refusal: { status: "Not Supported", reason: reason.replace("%1", word) } };
    }
    return photo.width && photo.height
        ? { type: type, refusal: null }
        : { type: null, refusal: { status: "Failed", reason: qsTr("not a readable picture") } };
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
 * The final result: what the service answered, and whether the file is there in the planned size.
 * stored: the size of its pixels as stored, where it is not that of the plan.
 */
export function outcome(status, path, planned, services, stored) {
    if (status !== "OK") {
        const reason = status === "Not Supported"
            ? qsTr("this type cannot be written") : qsTr("the file could not be written");
        return { status: status === "Not Supported" ? status : "Failed", reason: reason, outputs: [] };
    }
    // An operation also answers "OK" where no bitmap could be made and no file was written.
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

/** True if the orientation tag of the source is handed on by an operation that carries metadata into the given types. */
export function handsOnTurn(photo, planned, carrying) {
    return (photo.orientation || 1) !== 1 && carrying.indexOf(planned.type) >= 0;
}

/**
 * As outcome(), for an operation that writes upright pixels: where the orientation tag was handed on (see handsOnTurn()) it is set
 * right, or the picture would be shown turned.
 */
export function uprightOutcome(status, path, planned, isTagged, services) {
    const result = outcome(status, path, planned, services);
    if (result.status !== "OK" || !isTagged) {
        return result;
    }
    const problem = services.files.markUpright(path);
    return problem ? failed(problem) : result;
}

/** The types that metadata goes along into with these settings of a step. */
export function carriedBy(step, settings) {
    return step.carried === undefined ? step.offer.metadata : step.carried(settings);
}

/** What the result of a picture will not hold, in words; empty where nothing is lost. */
export function lossText(photo, typeId, carried) {
    const type = madeType(typeId);
    const lost = [];
    if (!keepsProfile(photo.path, type)) {
        lost.push(qsTr("Metadata and colour profile are not kept"));
    } else if (carried.indexOf(typeId) < 0) {
        lost.push(qsTr("EXIF, IPTC and XMP are not kept"));
    }
    if (!type.alpha && mayBeTransparent(photo)) {
        lost.push(qsTr("transparent parts become black"));
    }
    return lost.join(" · ");
}
