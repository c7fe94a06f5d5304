// Where results go and what they are: file type, quality, folder, taken names, simulation. Every action that writes
// pictures has this block. Services used: files (home).

import { shell } from "quorlin/shell";
import { files } from "quorlin/files";
import { guard } from "../lib/guard.js";
import { withNewest } from "../lib/store.js";
import { ORIGINAL, WRITTEN, writtenType } from "../lib/types.js";
import { fill, shortPath } from "../lib/wording.js";

const KEPT_FOLDERS = 5;
const FOLDER = "folder:";

// What resizing carries into each type, in plain words.
function noteFor(choice) {
    if (choice === ORIGINAL) {
        return qsTr("EXIF, IPTC and XMP go along into TIFF files only.");
    }
    const type = writtenType(choice);
    const sentences = [];
    if (type.metadata) {
        sentences.push(qsTr("Metadata and colour profile go along."));
    } else if (type.profile) {
        sentences.push(qsTr("The colour profile goes along; EXIF, IPTC and XMP do not."));
    } else {
        sentences.push(qsTr("Neither metadata nor colour profile go along; colours become sRGB."));
    }
    return sentences.concat(type.alpha ? [] : [qsTr("Transparent parts become black.")]).join(" ");
}

/**
 * The block. `output` is the object that it reads and changes, `recent` the list of folders that were saved to; changed()
 * is called after each change.
 */
export class OutputPane {
    constructor(output, recent, changed) {
        this.output = output;
        this.recent = recent;
        this.changed = changed;
        this.form = shell.loadForm("panes/output-pane.ui");
        this.fillBoxes();
        this.showDestinations();
        this.showType();
        this.connect();
    }

    fillBoxes() {
        const codes = ["1", "2", "3", "4", "5", "6", "7", "8", "9", "10"];
        this.form.setItems("fileType", [qsTr("Original file type")].concat(WRITTEN.map((type) => type.word)),
                           [ORIGINAL].concat(WRITTEN.map((type) => type.id)));
        this.form.setItems("quality", codes, codes);
        this.form.setItems("ifTaken", [qsTr("Number the new file"), qsTr("Replace"), qsTr("Skip"), qsTr("Ask")],
                           ["number", "replace", "skip", "ask"]);
        for (const name of ["fileType", "quality", "ifTaken"]) {
            this.form.chooseValue(name, this.output[name]);
        }
        this.form.control("simulation").checked = this.output.simulation;
    }

    connect() {
        for (const name of ["fileType", "quality", "ifTaken"]) {
            this.form.control(name).activated.connect(guard("output." + name, () => {
                this.output[name] = this.form.value(name);
                this.showType();
                this.changed();
            }));
        }
        this.form.control("destination").activated.connect(guard("output.destination", () => this.destinationChosen()));
        const simulation = this.form.control("simulation");
        simulation.toggled.connect(guard("output.simulation", () => {
            this.output.simulation = simulation.checked;
            this.changed();
        }));
    }

    showDestinations() {
        const chosen = this.output.destination;
        const texts = [fill(qsTr("Folder “%1” beside it"), chosen.name), qsTr("Folder of the original")];
        const values = ["beside", "source"];
        for (const folder of this.recent) {
            texts.push(shortPath(folder, files.home));
            values.push(FOLDER + folder);
        }
        this.form.setItems("destination", texts.concat(["-", qsTr("Choose Folder…")]), values.concat(["-", "choose"]));
        this.form.chooseValue("destination", chosen.kind === "folder" ? FOLDER + chosen.path : chosen.kind);
        this.form.control("destination").toolTip = chosen.kind === "folder" ? chosen.path : "";
    }

    destinationChosen() {
        const value = this.form.value("destination");
        if (value === "choose") {
            const folder = shell.chooseFolder(qsTr("Save results to"), this.output.destination.path || files.home);
            if (folder === null) {
                this.showDestinations();
            } else {
                this.useFolder(folder);
            }
        } else if (value.startsWith(FOLDER)) {
            this.useFolder(value.slice(FOLDER.length));
        } else {
            this.output.destination.kind = value;
            this.showDestinations();
            this.changed();
        }
    }

    useFolder(folder) {
        this.output.destination.kind = "folder";
        this.output.destination.path = folder;
        const newest = withNewest(this.recent, folder, KEPT_FOLDERS);
        this.recent.splice(0, this.recent.length);
        newest.forEach((entry) => this.recent.push(entry));
        this.showDestinations();
        this.changed();
    }

    showType() {
        const type = writtenType(this.output.fileType);
        const hasQuality = type === null || type.quality;
        this.form.control("quality").enabled = hasQuality;
        this.form.control("qualityLabel").enabled = hasQuality;
        this.form.control("typeNote").text = noteFor(this.output.fileType);
    }
}
