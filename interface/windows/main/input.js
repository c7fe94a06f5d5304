// Adding pictures to the list: panels, drops, paste, recent folders; and a message about what was left out.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { program } from "quorlin/program";
import { shell } from "quorlin/shell";
import { convert } from "../../actions/convert/convert-action.js";
import { recipesAmong } from "../../actions/recipe/recipe-files.js";
import { presetFilesAmong } from "../../presets/preset-pane.js";
import { guard } from "../../lib/guard.js";
import { filtered } from "../../lib/input-filter.js";
import { wordsFor } from "../../lib/input-words.js";
import { splitPath } from "../../lib/names.js";
import { goingAlong, SIDECARS } from "../../lib/sidecars.js";
import { recall, keep } from "../../lib/store.js";
import { PHOTO_INPUT } from "../../lib/types.js";
import { WRITES } from "../../runs/writes.js";
import { fill } from "../../lib/wording.js";
import { AddFolder } from "../add-folder/add-folder.js";
import { OwnResults } from "./own-results.js";
import { Recent } from "./recent.js";

const MOST_NAMED = 15;
const KEY = "RecentFolders";
const HAS_ADDED = "HasAddedPictures";

function addedText(found, added, words) {
    const parts = [];
    if (added > 0) {
        parts.push(fill(qsTr("%1 added"), words.count(added)));
    }
    if (found.paths.length > added) {
        parts.push(qsTr("%n already in the list", "", found.paths.length - added));
    }
    if (found.along > 0) {
        parts.push(qsTr("%n sidecar files", "", found.along));
    }
    if (found.leftOut > 0) {
        parts.push(words.leftOut(found));
    }
    if (found.filtered > 0) {
        parts.push(qsTr("%n do not match the filter", "", found.filtered));
    }
    return parts.length > 0 ? parts.join(" · ") : words.nothing();
}

function convertTakes(path) {
    return convert.takes.indexOf(splitPath(path).extension.toLowerCase()) >= 0;
}

// The items are folders: files among what was dropped are left out.
function foldersAmong(paths) {
    const isFolder = (path) => files.info(path).isFolder;
    const others = paths.filter((path) => !isFolder(path));
    const folders = paths.filter(isFolder).map((path) => files.absolute(path));
    return { paths: folders, listed: folders, folders: [], leftOut: others.length, companions: [],
             example: others.length > 0 ? splitPath(others[0]).name : "" };
}

export class Input {
    /** @param window  the main window's parts: form, pictures, action, say(text) */
    constructor(window) {
        this.window = window;
        this.recentFolders = new Recent(window, "recentMenu", KEY, (folder) => this.addPaths([folder]));
        this.recent = this.recentFolders.paths;
        // A user who has added something no longer needs the samples.
        this.hasAdded = this.recent.length > 0 || recall(defaults, HAS_ADDED, { on: false }).on;
        this.hidden = null;
        this.convertible = false;
        this.roots = [];
        this.own = new OwnResults(window.form);
        this.joinList();
    }

    joinList() {
        this.window.pictures.countChanged.connect(guard("input.count", () => { this.hidden = null; }));
    }

    // Whether files that belong to a picture move with it.
    takesAlong() {
        const action = this.window.action;
        return action.takesAlong !== undefined && action.takesAlong(this.window.settings);
    }

    // Rows of the list that the action leaves out. Computed when the list changes, not at every step of a run.
    hiddenCount() {
        const along = this.takesAlong();
        if (this.hidden === null || this.hidden.along !== along) {
            const list = this.window.pictures;
            const all = list.hiddenCount();
            const going = along && all > 0 ? goingAlong(list.hiddenPaths(), list.paths()).length : 0;
            this.hidden = { along: along, count: all - going };
            this.convertible = all > 0 && this.window.action.manner === WRITES && list.hiddenPaths().some(convertTakes);
        }
        return this.hidden.count;
    }

    /** Names the files that the action leaves out. */
    showHidden() {
        const paths = this.window.pictures.hiddenPaths();
        const going = this.takesAlong() ? goingAlong(paths, this.window.pictures.paths()) : [];
        const names = paths.filter((path) => going.indexOf(path) < 0).map((path) => splitPath(path).name);
        const more = names.length - MOST_NAMED;
        const rest = more > 0 ? [qsTr("and %n more", "", more)] : [];
        shell.ask({ title: qsTr("Not shown"), text: this.words().hidden(names.length, this.window.action.title()),
                    detail: names.slice(0, MOST_NAMED).concat(rest).join("\n"),
                    buttons: [qsTr("Close")], initial: 0, escape: 0, check: "" });
    }

    words() {
        return wordsFor(this.window.action.lists(this.window.settings));
    }

    /** Shows what can be added now. */
    showWords() {
        const words = this.words();
        const control = (name) => this.window.form.control(name);
        const areFolders = this.window.action.lists(this.window.settings) === "folders";
        control("addPicturesButton").text = qsTr("+ %1").replace("%1", words.add());
        control("addPicturesAction").text = words.add();
        control("emptyAddPictures").text = words.add();
        for (const name of ["addPicturesButton", "emptyAddPictures", "addPicturesAction"]) {
            control(name).visible = !areFolders;
        }
        control("emptyAddSamples").visible = program.hasSamples && !this.hasAdded
            && this.window.action.lists(this.window.settings) === "pictures";
        control("emptyTitle").text = words.title();
        control("emptyText").text = words.text();
        const hidden = this.hiddenCount();
        control("hiddenNote").text = hidden > 0 ? words.hidden(hidden, this.window.action.title()) : "";
        control("hiddenBar").visible = hidden > 0;
        control("hiddenConvert").visible = this.convertible;
    }

    rememberFolder(folder) {
        this.recentFolders.add(folder);
    }

    // Pictures that only another action accepts are added too, hidden until that action is chosen.
    addFound(found, paths) {
        const list = this.window.pictures;
        const before = list.count;
        const note = this.window.addingNote();
        this.window.history.edited("add", list.addPaths(paths, found.folders));
        const added = list.count - before;
        if (added > 0) {
            list.setFocus();
            this.noteAdding();
        }
        const text = addedText(this.withoutCompanions(found), added, this.words());
        this.window.say(note === "" || added === 0 ? text : text + ". " + note);
    }

    noteAdding() {
        if (!this.hasAdded) {
            this.hasAdded = true;
            keep(defaults, HAS_ADDED, { on: true });
        }
    }

    // Files that belong to a picture of the list do not count as left out.
    withoutCompanions(found) {
        const going = this.takesAlong() ? goingAlong(found.companions, this.window.pictures.paths()) : [];
        const left = found.companions.find((path, i) => path !== going[i]);
        return Object.assign({}, found, { along: going.length, leftOut: found.leftOut - going.length,
                                          example: found.example || (left === undefined ? "" : splitPath(left).name) });
    }

    /** The outermost added folder that contains a file; "" for none. */
    rootOf(path) {
        const around = this.roots.filter((root) => path.startsWith(root.endsWith("/") ? root : root + "/"));
        return around.reduce((outer, root) => (outer === "" || root.length < outer.length ? root : outer), "");
    }

    noteRoots(folders) {
        const list = this.window.pictures;
        if (list.count + list.hiddenCount() === 0) {
            this.roots = [];
        }
        this.roots = this.roots.concat(folders.filter((folder) => this.roots.indexOf(folder) < 0));
    }

    /** Files and folders that were dropped, pasted or named at start-up. The first recipe is opened, and nothing is
     * run; presets are imported. */
    addPaths(paths) {
        // The settings of a running run stay as they are.
        const named = this.window.isBusy() ? [] : recipesAmong(paths);
        const problem = named.length === 0 ? "" : this.window.actionPage.openRecipe(files.absolute(named[0]));
        const takes = this.takes() || ["*"]; // folders are of no kind
        const presets = takes[0] === "*" ? [] : presetFilesAmong(paths);
        presets.forEach((path) => this.window.actionPage.presets.importFile(path));
        const others = paths.filter((path) => named.indexOf(path) < 0 && presets.indexOf(path) < 0);
        if (others.length > 0 || named.length + presets.length === 0) {
            this.addPictureFiles(others);
        } else if (problem === "" && named.length > 0) {
            this.window.say(qsTr("Recipe opened. Nothing has been run."));
        }
    }

    collected(paths) {
        const kind = this.window.action.lists(this.window.settings);
        return kind === "folders"
            ? foldersAmong(paths)
            : files.collect(paths, this.takes(), SIDECARS, kind === "pictures" ? PHOTO_INPUT : []);
    }

    addPictureFiles(paths) {
        this.addCollected(this.collected(paths), paths);
    }

    addCollected(found, paths) {
        const kind = this.window.action.lists(this.window.settings);
        this.noteRoots(found.folders);
        for (const folder of found.folders) {
            this.rememberFolder(folder);
        }
        const rest = kind === "pictures" ? this.own.without(found, paths.map((path) => files.absolute(path))) : found;
        this.addFound(rest, rest.listed);
    }

    /** Adds the results of earlier runs that were left out. */
    addOwn() {
        const own = this.own.take();
        this.addFound({ paths: own.paths, folders: own.folders, leftOut: 0, companions: [], example: "" }, own.paths);
    }

    // The extensions of the files that the action takes.
    takes() {
        return this.window.action.lists(this.window.settings) === "pictures" ? this.window.action.takes : ["*"];
    }

    addPictures() {
        const takes = this.takes();
        const paths = shell.chooseFiles(this.words().add(), "", takes[0] === "*" ? [] : takes);
        if (paths.length > 0) {
            this.addPaths(paths);
        }
    }

    addFolder() {
        const kind = this.window.action.lists(this.window.settings);
        const titles = { pictures: qsTr("Add all pictures of a folder"), files: qsTr("Add all files of a folder"),
                         folders: qsTr("Add a folder") };
        const start = this.recent[0] || "";
        if (kind === "folders") {
            const folder = shell.chooseFolder(titles[kind], start);
            this.addPaths(folder === null ? [] : [folder]);
            return;
        }
        // Made when it is first used.
        this.folderPanel = this.folderPanel || new AddFolder();
        const chosen = this.folderPanel.choose(titles[kind], start);
        if (chosen !== null && chosen.rule === null) {
            this.addPaths([chosen.folder]);
        } else if (chosen !== null) {
            this.addSome(files.absolute(chosen.folder), chosen.rule);
        }
    }

    // Dates are read from the pictures, which takes a while if there are many.
    addSome(folder, rule) {
        const found = this.collected([folder]);
        const work = filtered(found, folder, rule, { files: files, facts: this.window.services.facts });
        this.window.say(qsTr("Reading %n files…", "", found.listed.length));
        this.filtering = shell.job();
        this.filtering.start(work, () => undefined, guard("filter", (how, some) => {
            if (how === "done" && this.window.mayAdd()) {
                this.addCollected(some, [folder]);
            }
        }));
    }

    /** Sample pictures, copied to files of the user's. */
    addSamples() {
        const folder = program.copySamples();
        if (folder === "") {
            this.window.say(qsTr("The sample pictures could not be copied to your pictures folder"));
        } else {
            this.addPaths([folder]);
        }
    }

    paste() {
        const paths = shell.clipboardPaths();
        if (paths.length === 0) {
            this.window.say(qsTr("There are no files on the clipboard"));
        } else {
            this.addPaths(paths);
        }
    }
}
