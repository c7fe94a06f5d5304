// The actions of the sidebar. A new action is a folder beside this file and two lines in it: its import and its place in a group.
// CONTRIBUTING.md shows how. A title or sentence is a function, because texts are translated when they are shown.
//
// Every entry:
//   name     also that of its folder, its icon and its settings
//   manner   WRITES: writes pictures through the output block (see resize/resize-step.js). MOVES: moves, copies or links files
//            through the move engine (see rename/rename-step.js). PAGE: owns the centre of the window (see log/log-page.js).
//   within   the action whose entry in the sidebar shows this one too: another view of it (optional)
//   usesList false for a page that does not work on the list: adding pictures then leads back to the action before
// With a step:
//   step     plain data in, plain data out: defaults, describe(settings), validate(settings) and what its manner
//            requires
//   pane     the class of its settings
//   presets  {form, starting}: which setting is stored in which column (see presets/preset-forms.js), and what it
//            starts with; optional
//   lists(settings)  what the rows of the list are: "pictures", "files" of any kind, or "folders" themselves
//   takes    the extensions of pictures that it accepts, in any case of letters
//   takesAlong(settings)  true if the files that belong to a picture move with it (lib/sidecars.js); optional
//   startText(number, settings)  the text of the button
//   doing()  the name of a run of it, at the beginning of a sentence: "Resizing"; if missing, the title
//   headings()  column titles that differ from those of the manner (optional)
//   MOVES also: done(number, settings, folders) and undone(number, settings) for the summary, with settings null if
//   unknown; folders is {used: paths that got files, made: how many of them are new} if fillsFolders is true.
//   givesNames is true if the files stay in their folders.
//   PAGE also: page, a class made with (window, action) that has form and show(), and may have leave(), mayLeave(),
//   listChanged(), runChanged(). hasUndo is true if the page handles Ctrl+Z itself.

import { background } from "./background/background-action.js";
import { contact } from "./contact/contact-action.js";
import { convert } from "./convert/convert-action.js";
import { crop } from "./crop/crop-action.js";
import { hand } from "./hand/hand-action.js";
import { fields } from "./metadata/metadata-fields-action.js";
import { log } from "./log/log-action.js";
import { metadata } from "./metadata/metadata-action.js";
import { recipe } from "./recipe/recipe-action.js";
import { rename } from "./rename/rename-action.js";
import { resize } from "./resize/resize-action.js";
import { round } from "./round/round-action.js";
import { sort } from "./sort/sort-action.js";
import { turn } from "./turn/turn-action.js";
import { watermark } from "./watermark/watermark-action.js";
import { web } from "./web/web-action.js";

export const GROUPS = [
    {
        title: () => qsTr("Pictures"),
        actions: [
            resize,
            crop,
            turn,
            round,
            background,
            watermark,
            recipe,
        ],
    },
    {
        title: () => qsTr("Files"),
        actions: [
            convert,
            rename,
            sort,
            hand,
            web,
            contact,
        ],
    },
    {
        title: () => qsTr("Information"),
        actions: [
            metadata,
            fields,
            log,
        ],
    },
];

/** All actions, in the order of the sidebar. */
export function allActions() {
    return GROUPS.reduce((actions, group) => actions.concat(group.actions), []);
}

/**
 * The presets of each action: {form, starting, standard} by the name of the action; standard is the settings of a new
 * pane.
 */
export function presetKinds() {
    const kinds = {};
    allActions().filter((action) => action.presets !== undefined)
        .forEach((action) => { kinds[action.name] = Object.assign({ standard: action.step.defaults },
                                                                  action.presets); });
    return kinds;
}

/** The action of that name; the first one if there is none. */
export function actionNamed(name) {
    const all = allActions();
    return all.find((action) => action.name === name) || all[0];
}
