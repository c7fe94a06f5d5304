// Sort by Hand: looks at one picture after the other; a key puts it into a folder.

import { PICTURE_INPUT } from "../../lib/types.js";
import { PAGE } from "../../runs/pages.js";
import { HandPage } from "./hand-page.js";
import { HandPane } from "./hand-pane.js";
import { presets } from "./hand-presets.js";
import * as step from "./hand-step.js";

export const hand = {
    name: "hand",
    title: () => qsTr("Sort by Hand"),
    manner: PAGE,
    usesList: true,
    hasUndo: true,
    page: HandPage,
    step: step,
    pane: HandPane,
    presets: presets,
    lists: () => "pictures",
    takes: PICTURE_INPUT,
    takesAlong: (settings) => settings.mode !== "link",
    startText: () => qsTr("Sort by Hand"),
};
