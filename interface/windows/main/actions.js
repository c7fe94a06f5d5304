// The actions of the sidebar. A new action is one entry here, one pane and one step.
// A title or sentence is a function, because texts are translated when they are shown.

import { PICTURE_INPUT } from "../../lib/types.js";
import { count } from "../../lib/wording.js";
import { BackgroundPane } from "../../panes/background-pane.js";
import { CropPane } from "../../panes/crop-pane.js";
import { ResizePane } from "../../panes/resize-pane.js";
import { RoundPane } from "../../panes/round-pane.js";
import { TurnPane } from "../../panes/turn-pane.js";
import * as background from "../../steps/background.js";
import * as crop from "../../steps/crop.js";
import * as resize from "../../steps/resize.js";
import * as round from "../../steps/round.js";
import * as turn from "../../steps/turn.js";

// An action on pictures: its name is also that of its icon.
function onPictures(name, title, step, pane, deed) {
    return { name: name, title: title, step: step, pane: pane, keyword: "resize", takes: PICTURE_INPUT, deed: deed };
}

// keyword: what the input collection asks for. takes: extensions of dropped files. deed: what the button says.
export const GROUPS = [
    {
        title: () => qsTr("Pictures"),
        actions: [
            onPictures("resize", () => qsTr("Resize"), resize, ResizePane,
                       (number) => count(number, qsTr("Resize 1 Picture"), qsTr("Resize %1 Pictures"))),
            onPictures("crop", () => qsTr("Crop"), crop, CropPane,
                       (number) => count(number, qsTr("Crop 1 Picture"), qsTr("Crop %1 Pictures"))),
            onPictures("turn", () => qsTr("Rotate & Flip"), turn, TurnPane,
                       (number) => count(number, qsTr("Turn 1 Picture"), qsTr("Turn %1 Pictures"))),
            onPictures("round", () => qsTr("Round Corners"), round, RoundPane,
                       (number) => count(number, qsTr("Round 1 Picture"), qsTr("Round %1 Pictures"))),
            onPictures("background", () => qsTr("Background & Border"), background, BackgroundPane,
                       (number) => count(number, qsTr("Frame 1 Picture"), qsTr("Frame %1 Pictures"))),
        ],
    },
];

/** The settings that new panes have, by the name of the action. */
export function standardSettings() {
    const settings = {};
    GROUPS.forEach((group) => group.actions.forEach((action) => { settings[action.name] = action.step.defaults; }));
    return settings;
}

/** The action of that name; the first one where there is none. */
export function actionNamed(name) {
    const all = GROUPS.reduce((actions, group) => actions.concat(group.actions), []);
    return all.find((action) => action.name === name) || all[0];
}
