// What presets are kept of, as actions.js has it, but without the panes: {form, starting, standard, step} by the name of the action.

import { presets as backgroundPresets } from "../../../interface/actions/background/background-presets.js";
import * as background from "../../../interface/actions/background/background-step.js";
import { presets as contactPresets } from "../../../interface/actions/contact/contact-presets.js";
import * as contact from "../../../interface/actions/contact/contact-step.js";
import { presets as convertPresets } from "../../../interface/actions/convert/convert-presets.js";
import * as convert from "../../../interface/actions/convert/convert-step.js";
import { presets as cropPresets } from "../../../interface/actions/crop/crop-presets.js";
import * as crop from "../../../interface/actions/crop/crop-step.js";
import { presets as handPresets } from "../../../interface/actions/hand/hand-presets.js";
import * as hand from "../../../interface/actions/hand/hand-step.js";
import { presets as renamePresets } from "../../../interface/actions/rename/rename-presets.js";
import * as rename from "../../../interface/actions/rename/rename-step.js";
import { presets as resizePresets } from "../../../interface/actions/resize/resize-presets.js";
import * as resize from "../../../interface/actions/resize/resize-step.js";
import { presets as roundPresets } from "../../../interface/actions/round/round-presets.js";
import * as round from "../../../interface/actions/round/round-step.js";
import { presets as sortPresets } from "../../../interface/actions/sort/sort-presets.js";
import * as sort from "../../../interface/actions/sort/sort-step.js";
import { presets as turnPresets } from "../../../interface/actions/turn/turn-presets.js";
import * as turn from "../../../interface/actions/turn/turn-step.js";
import { presets as watermarkPresets } from "../../../interface/actions/watermark/watermark-presets.js";
import * as watermark from "../../../interface/actions/watermark/watermark-step.js";

function kind(step, presets) {
    return Object.assign({ step: step, standard: step.defaults }, presets);
}

export const KINDS = {
    background: kind(background, backgroundPresets),
    contact: kind(contact, contactPresets),
    convert: kind(convert, convertPresets),
    crop: kind(crop, cropPresets),
    hand: kind(hand, handPresets),
    rename: kind(rename, renamePresets),
    resize: kind(resize, resizePresets),
    round: kind(round, roundPresets),
    sort: kind(sort, sortPresets),
    turn: kind(turn, turnPresets),
    watermark: kind(watermark, watermarkPresets),
};
