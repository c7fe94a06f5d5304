// Cuts pictures to a rectangle with round corners, a circle or an ellipse.
// Services used: image (roundCornersOfImage, with its outlets), files. Plain data in, plain data out.

import { FORMAT_CODES, MASK_TYPES, maskName } from "../shared/masks.js";
import { writtenType } from "../../lib/types.js";
import { fill } from "../../lib/wording.js";
import { usualOutput } from "../shared/by-recipe.js";
import { handsOnTurn, outputMessages, ready, refused, targetOf, uprightOutcome } from "../shared/written.js";

export const MOST_RADIUS = 100000;
export const MOST_BAND = 10000;

/** What a new pane shows. */
export const defaults = {
    shape: "rectangle", radius: 100, background: false, color: "#ffffff", band: 0,
    output: usualOutput("public.png", "10", qsTr("Rounded")),
};

/** What the output block offers; see the Resize step. */
export const offer = { types: MASK_TYPES, quality: false, metadata: ["public.jpeg", "public.tiff"] };

export const SHAPES = ["rectangle", "circle", "ellipse"];
const SHAPE_CODES = { rectangle: "0", circle: "1", ellipse: "2" };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const shapes = { rectangle: fill(qsTr("corners of %1 px"), settings.radius), circle: qsTr("circle"),
                     ellipse: qsTr("ellipse") };
    const background = settings.background ? [fill(qsTr("on %1"), settings.color)] : [];
    const band = settings.background && settings.band > 0 ? [fill(qsTr("band of %1 px"), settings.band)] : [];
    return [shapes[settings.shape]].concat(background, band).join(", ");
}

function isWhole(value, most) {
    return Number.isInteger(value) && value >= 0 && value <= most;
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = [];
    if (settings.shape === "rectangle" && !isWhole(settings.radius, MOST_RADIUS)) {
        messages.push(qsTr("Enter a radius from 0 to %1.").replace("%1", String(MOST_RADIUS)));
    }
    if (settings.background && !isWhole(settings.band, MOST_BAND)) {
        messages.push(qsTr("Enter a width of the band from 0 to %1.").replace("%1", String(MOST_BAND)));
    }
    return messages.concat(outputMessages(settings.output));
}

function notesFor(photo, settings, type) {
    const notes = [];
    if (settings.shape === "circle" && photo.width !== photo.height) {
        notes.push(photo.width > photo.height ? qsTr("The circle is cut from the square at the left.")
                                              : qsTr("The circle is cut from the square at the bottom."));
    }
    if (!settings.background && !type.alpha) {
        notes.push(qsTr("%1 has no transparency: what lies outside the shape becomes black.").replace("%1", type.word));
    }
    return notes;
}

/** What a run would write for one picture, or a final status with its reason. */
export function plan(photo, settings) {
    const target = targetOf(photo, settings.output.fileType);
    if (target.refusal !== null) {
        return target.refusal;
    }
    const shorter = Math.min(photo.width, photo.height);
    if (settings.background && 2 * settings.band >= shorter) {
        return { status: "Failed", reason: qsTr("the band would cover all of it") };
    }
    const size = settings.shape === "circle" ? { width: shorter, height: shorter } : photo;
    return ready(maskName(photo.path, settings.output.fileType), target.type, size,
                 notesFor(photo, settings, target.type));
}

/** Writes the cut picture as settings.prefix + name, where plan() tells the name; see the Resize step. */
export function run(photo, settings, services) {
    const planned = plan(photo, settings);
    if (planned.status !== "ready") {
        return refused(planned);
    }
    const outlets = services.outlets;
    outlets.backgroundCheck.state = settings.background ? 1 : 0;
    outlets.backgroundColor.color = settings.color;
    outlets.bandWidth.stringValue = String(settings.band);
    const status = services.image.roundCornersOfImage(photo.path, settings.prefix, settings.radius,
                                                      SHAPE_CODES[settings.shape],
                                                      FORMAT_CODES[settings.output.fileType]);
    return uprightOutcome(status, settings.prefix + planned.name, planned, handsOnTurn(photo, planned, offer.metadata),
                          services);
}

/** What the preview does to the upright picture to show the result. */
export function preview(photo, settings, planned) {
    /** @type {any[]} */
    const deeds = [{ do: "round", shape: SHAPE_CODES[settings.shape], radius: settings.radius,
                     color: settings.background ? settings.color : "", band: settings.background ? settings.band : 0 }];
    return { deeds: writtenType(planned.type).alpha ? deeds : deeds.concat([{ do: "flatten" }]), width: planned.width,
             height: planned.height, type: planned.type, quality: "" };
}
