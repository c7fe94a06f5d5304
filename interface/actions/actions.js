// The actions of the sidebar. A new action is one entry here, one step and one pane or page.
// A title or sentence is a function, because texts are translated when they are shown.
//
// Every entry:
//   name     that of its icon, its settings and its presets too
//   manner   WRITES: writes pictures through the output block (see resize/resize-step.js). MOVES: moves, copies or links files
//            through the move engine (see rename/rename-step.js). PAGE: owns the centre of the window (see log/log-page.js).
//   usesList false for a page that does not work on the list: adding pictures then leads back to the action before
// With a step:
//   step     plain data in, plain data out: defaults, describe(settings), validate(settings) and what its manner asks for
//   pane     the class of its settings; presets are kept for it if preset-forms.js has a form of its name
//   lists(settings)  what the rows of the list are: "pictures", "files" of any kind, or "folders" themselves
//   takes    the extensions of pictures that are taken, in any case of letters
//   takesAlong(settings)  true where files that belong to a picture go along with it (lib/sidecars.js); may be missing
//   deed(number, settings)     what the button says
//   headings()  other words for the heads of columns than those of the manner (may be missing)
// MOVES also: done(number, settings) and undone(number, settings) for the summary, with settings null where they are not known.
// PAGE also: page, a class made with (window, action) that has form and show(), and may have leave(), mayLeave(), listChanged().

import { CONVERTED_INPUT } from "./convert/targets.js";
import { PHOTO_INPUT, PICTURE_INPUT } from "../lib/types.js";
import { count } from "../lib/wording.js";
import { BackgroundPane } from "./background/background-pane.js";
import { ConvertPane } from "./convert/convert-pane.js";
import { CropPane } from "./crop/crop-pane.js";
import { HandPane } from "./hand/hand-pane.js";
import { RenamePane } from "./rename/rename-pane.js";
import { ResizePane } from "./resize/resize-pane.js";
import { RoundPane } from "./round/round-pane.js";
import { SortPane } from "./sort/sort-pane.js";
import { TurnPane } from "./turn/turn-pane.js";
import * as background from "./background/background-step.js";
import * as convert from "./convert/convert-step.js";
import * as crop from "./crop/crop-step.js";
import * as hand from "./hand/hand-step.js";
import * as rename from "./rename/rename-step.js";
import * as resize from "./resize/resize-step.js";
import * as round from "./round/round-step.js";
import * as sort from "./sort/sort-step.js";
import * as turn from "./turn/turn-step.js";
import { HandPage } from "./hand/hand-page.js";
import { LogPage } from "./log/log-page.js";
import { MetadataPage } from "./metadata/metadata-page.js";
import { MOVES } from "../runs/moves.js";
import { PAGE } from "../runs/pages.js";
import { WRITES } from "../runs/writes.js";

// An action on pictures that writes new ones.
function onPictures(name, title, step, pane, deed) {
    return { name: name, title: title, manner: WRITES, usesList: true, step: step, pane: pane, lists: () => "pictures",
             takes: PICTURE_INPUT, deed: deed };
}

// One of four texts: for a file, files, a folder, folders.
function renamed(settings, number, texts) {
    const first = settings !== null && settings.what === "folders" ? 2 : 0;
    return count(number, texts[first], texts[first + 1]);
}

function sortDeed(number, settings) {
    return {
        move: () => count(number, qsTr("Sort 1 File into Folders"), qsTr("Sort %1 Files into Folders")),
        copy: () => count(number, qsTr("Copy 1 File into Folders"), qsTr("Copy %1 Files into Folders")),
        link: () => count(number, qsTr("Link 1 File into Folders"), qsTr("Link %1 Files into Folders")),
    }[settings.kind]();
}

function sortDone(number, settings) {
    return {
        move: () => count(number, qsTr("1 file sorted"), qsTr("%1 files sorted")),
        copy: () => count(number, qsTr("1 file copied"), qsTr("%1 files copied")),
        link: () => count(number, qsTr("1 link made"), qsTr("%1 links made")),
    }[settings === null ? "move" : settings.kind]();
}

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
    {
        title: () => qsTr("Files"),
        actions: [
            Object.assign(onPictures("convert", () => qsTr("Convert"), convert, ConvertPane,
                                     (number) => count(number, qsTr("Convert 1 Picture"), qsTr("Convert %1 Pictures"))),
                          { takes: CONVERTED_INPUT }),
            {
                name: "rename", title: () => qsTr("Rename"), manner: MOVES, usesList: true, step: rename, pane: RenamePane,
                lists: (settings) => settings.what,
                deed: (number, settings) => renamed(settings, number, [qsTr("Rename 1 File"), qsTr("Rename %1 Files"), qsTr("Rename 1 Folder"), qsTr("Rename %1 Folders")]),
                done: (number, settings) => renamed(settings, number, [qsTr("1 file renamed"), qsTr("%1 files renamed"), qsTr("1 folder renamed"), qsTr("%1 folders renamed")]),
                undone: (number, settings) => renamed(settings, number, [qsTr("1 file has its old name again"), qsTr("%1 files have their old names again"),
                                                                         qsTr("1 folder has its old name again"), qsTr("%1 folders have their old names again")]),
            },
            { name: "sort", title: () => qsTr("Sort into Folders"), manner: MOVES, usesList: true, step: sort, pane: SortPane,
              lists: () => "pictures", takes: PHOTO_INPUT, takesAlong: () => true,
              headings: () => ({ newName: qsTr("Folder") }),
              deed: sortDeed, done: sortDone,
              undone: (number) => count(number, qsTr("1 file put back"), qsTr("%1 files put back")) },
            { name: "hand", title: () => qsTr("Sort by Hand"), manner: PAGE, usesList: true, page: HandPage, step: hand, pane: HandPane,
              lists: () => "pictures", takes: PICTURE_INPUT, takesAlong: (settings) => settings.mode !== "link",
              deed: () => qsTr("Sort by Hand") },
        ],
    },
    {
        title: () => qsTr("Information"),
        actions: [
            { name: "metadata", title: () => qsTr("Metadata"), manner: PAGE, usesList: true, page: MetadataPage, lists: () => "pictures",
              takes: PHOTO_INPUT },
            { name: "log", title: () => qsTr("Log"), manner: PAGE, usesList: false, page: LogPage },
        ],
    },
];

/** All actions, in the order of the sidebar. */
export function allActions() {
    return GROUPS.reduce((actions, group) => actions.concat(group.actions), []);
}

/** The settings that new panes have, by the name of the action. */
export function standardSettings() {
    const settings = {};
    allActions().filter((action) => action.step !== undefined).forEach((action) => { settings[action.name] = action.step.defaults; });
    return settings;
}

/** The action of that name; the first one where there is none. */
export function actionNamed(name) {
    const all = allActions();
    return all.find((action) => action.name === name) || all[0];
}
