// Sort by Hand: one picture large, and a key for each folder. The pictures are those of the list, in its order.

import { files } from "quorlin/files";
import { guard } from "../../lib/guard.js";
import { actWords, HandSorting, MODES, TRASH } from "./hand-sorting.js";
import { slotProblem } from "./hand-slots.js";
import { appendRows, trimRows } from "../../runs/log-file.js";
import { roomProblem } from "../../runs/room.js";
import { Sidecars } from "../../lib/sidecars.js";
import { fill, fillNumbers } from "../../lib/wording.js";
import { shell } from "quorlin/shell";

// So many pictures are decoded in advance.
const AHEAD = 3;

export class HandPage {
    /** @param window  the main window's parts: pictures, pane, services, preview, input, note(text) */
    constructor(window) {
        this.window = window;
        this.list = window.pictures;
        this.form = shell.loadForm("actions/hand/hand-page.ui");
        this.view = this.form.control("handView");
        this.view.showsResult = false;
        this.shown = false;
        this.sorting = null;
        this.connect();
    }

    connect() {
        const join = (signal, name, handler) => signal.connect(guard("hand." + name, handler));
        const control = (name) => this.form.control(name);
        const handlers = { handBack: () => this.step(-1), handSkip: () => this.step(1), handTrash: () => this.trash(),
                        handUndo: () => this.undo() };
        Object.keys(handlers).forEach((name) => {
            join(control(name).triggered, name, handlers[name]);
            join(control(name + "Button").clicked, name, () => { handlers[name](); this.view.setFocus(); });
        });
        join(control("handBackspace").triggered, "back", handlers.handBack);
        const choices = { handMove: MODES[0], handCopy: MODES[1], handLink: MODES[2] };
        Object.keys(choices)
            .forEach((name) => join(control(name).triggered, name, () => this.chooseMode(choices[name])));
        join(control("handAddPictures").clicked, "add", () => this.window.input.addPictures());
        join(control("handAddPictureFolder").clicked, "add", () => this.window.input.addFolder());
        join(this.view.largePreviewRequested, "large", () => this.window.form.control("largeAction").trigger());
        join(this.view.pictureShown, "ahead", () => this.prepare());
        // The same part of the following pictures.
        join(this.view.partShown, "ahead", () => this.prepare());
        join(this.view.zoomChanged, "zoom", () => this.showZoom());
        join(control("handActualButton").clicked, "actual", () => {
            this.window.preview.toggleActual();
            this.view.setFocus();
        });
        join(this.list.currentPictureChanged, "current", () => this.showCurrent());
    }

    show() {
        this.shown = true;
        this.sorting = new HandSorting(this.window.services.moves, (path) => new Sidecars(files).of(path),
                                       (rows) => appendRows(files, rows));
        this.window.pane.use((folder) => this.sorting.countIn(folder), (slot, row) => this.put(slot, row));
        this.showCurrent();
    }

    mayLeave() {
        this.finish();
        return true;
    }

    leave() {
        this.finish();
        this.shown = false;
        this.view.prepare([]);
    }

    // A picture in the trash is no longer in the list.
    finish() {
        if (this.sorting === null || !this.sorting.isOpen()) {
            return;
        }
        const trashed = this.sorting.decided().filter((id) => this.sorting.isTrashed({ id: id }));
        const problem = this.sorting.end() || this.sorting.logProblem || trimRows(files);
        this.list.removeIds(trashed);
        this.window.pane.showSlots();
        if (problem) {
            this.window.sayBeside(problem);
        }
        this.showCurrent();
    }

    listChanged() {
        this.showCurrent();
    }

    current() {
        const id = this.list.currentId;
        return id > 0 ? this.list.photo(id) : null;
    }

    showCurrent() {
        if (!this.shown) {
            return;
        }
        const photo = this.current();
        this.form.control("handPage").currentIndex = photo === null ? 0 : 1;
        if (photo !== null) {
            this.showPicture(photo);
            this.showTexts(photo);
        }
        if (this.window.preview.large.visible) {
            this.window.preview.showLarge();
        }
        this.showButtons(photo);
    }

    showZoom() {
        this.form.control("handActualButton").checked = this.view.zoom > 0;
        this.window.showZoom();
    }

    showPicture(photo) {
        const path = this.sorting.placeOf(photo);
        this.view.problem = path === "" ? qsTr("In the trash") : "";
        this.view.showPicture(path);
        this.view.setTitles(this.sorting.wordsFor(photo), "");
        this.view.setCaptions("", "");
    }

    showTexts(photo) {
        const control = (name) => this.form.control(name);
        const done = this.sorting.wordsFor(photo);
        const parts = photo.width > 0 ? [fill(qsTr("%1 × %2 px"), photo.width, photo.height)] : [];
        const date = this.dateOf(photo);
        control("handName").text = photo.name;
        control("handName").toolTip = photo.path;
        control("handPlace").text = fillNumbers(qsTr("%1 of %2"), this.list.currentPlace, this.list.count);
        control("handDone").text = done;
        control("handDone").visible = done !== "";
        control("handFacts").text = (date === "" ? [] : [date]).concat(parts, photo.bytes >= 0 ? [files.byteText(photo.bytes)] : []).join(" · ");
        this.view.accessibleName = fill(qsTr("%1, %2"), photo.name, control("handPlace").text);
    }

    // When it was taken; otherwise when the file was created.
    dateOf(photo) {
        const path = this.sorting.placeOf(photo);
        const facts = path === "" ? null : files.facts(path);
        if (facts === null) {
            return "";
        }
        return facts.taken ? files.dateText(facts.taken) : fill(qsTr("file dated %1"), files.dateText(facts.changed));
    }

    showButtons(photo) {
        const control = (name) => this.form.control(name);
        const last = this.sorting.last();
        const states = { handBack: this.list.currentPlace > 1,
                         handSkip: photo !== null && this.list.currentPlace < this.list.count,
                         handTrash: photo !== null && !this.sorting.isTrashed(photo), handUndo: last !== null };
        Object.keys(states).forEach((name) => {
            control(name).enabled = states[name];
            control(name + "Button").enabled = states[name];
        });
        control("handUndoButton").toolTip = last === null ? qsTr("Undo (Ctrl+Z)")
            : fill(qsTr("Undo: %1 (Ctrl+Z)"), actWords(last.kind, last.label));
        this.form.control("handBackspace").enabled = states.handBack;
    }

    // The pictures that come next, and the one before.
    prepare() {
        if (this.shown) {
            const paths = [];
            for (let rows = 1; rows <= AHEAD; rows += 1) {
                paths.push(this.list.pathBeside(rows));
            }
            this.view.prepare(paths.concat([this.list.pathBeside(-1)]).filter((path) => path !== ""));
        }
    }

    // What the keys of the folders do from now on; announced, since nobody looks at the pane while working with keys.
    chooseMode(mode) {
        this.window.pane.chooseMode(mode);
        const words = { move: qsTr("Keys now move pictures."), copy: qsTr("Keys now copy pictures."),
                        link: qsTr("Keys now link pictures.") };
        this.window.sayBeside(words[mode]);
    }

    step(rows) {
        this.list.step(rows);
    }

    put(slot, row) {
        const photo = this.current();
        // A key does not recreate a folder that is gone.
        const problem = slotProblem(slot.path, files) || this.roomProblem(photo, slot);
        if (problem !== "") {
            this.window.pane.look();
            this.window.sayBeside(fill(qsTr("%1: %2. The picture stays where it is."), slot.label, problem));
        } else if (photo !== null) {
            this.tell(photo, this.sorting.put(photo, this.window.settings.mode, slot), row);
        }
    }

    roomProblem(photo, slot) {
        const path = photo === null ? "" : this.sorting.placeOf(photo);
        return path === "" ? "" : roomProblem(path, slot.path, this.window.settings.mode, files);
    }

    trash() {
        const photo = this.current();
        if (photo !== null) {
            this.tell(photo, this.sorting.trash(photo), -1);
        }
    }

    // Shows the outcome of an act, and the next picture.
    tell(photo, result, row) {
        if (result.status !== "OK") {
            this.window.pane.look();
            this.window.sayBeside(fill(qsTr("%1: %2"), photo.name, result.message));
            return;
        }
        this.showState(photo);
        this.window.pane.showSlots();
        if (row >= 0) {
            this.window.pane.list.light(row);
            this.window.pane.list.reveal(row);
        }
        if (this.list.currentPlace < this.list.count) {
            this.step(1);
        } else {
            this.showCurrent();
            this.window.sayBeside(this.lastWords());
        }
    }

    lastWords() {
        const open = this.list.count - this.sorting.decided().length;
        return open === 0 ? qsTr("That was the last picture. All of them are sorted.")
            : fill(qsTr("That was the last picture. %1"),
                   qsTr("%n were skipped.", "", open));
    }

    // The row of the list follows the file, and says what was done to it.
    showState(photo) {
        const words = this.sorting.wordsFor(photo);
        const place = this.sorting.placeOf(photo);
        if (place !== "" && place !== photo.path) {
            this.list.setPath(photo.id, place);
        }
        const kind = place === "" ? "caution" : "good";
        this.list.setStatus(photo.id, words === "" ? "none" : kind, words, "");
    }

    undo() {
        const result = this.sorting.takeBack();
        if (result === null) {
            return;
        }
        const photo = this.list.photo(result.act.id);
        if (result.status !== "OK") {
            this.window.sayBeside(result.message);
        } else if (photo !== null) {
            if (result.act.kind === "move" || result.act.kind === TRASH) {
                this.list.setPath(photo.id, result.act.from);
            }
            this.showState(this.list.photo(photo.id));
            this.list.selectId(photo.id);
        }
        this.window.pane.look();
        this.showCurrent();
    }
}
