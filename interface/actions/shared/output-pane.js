// Where results go and what they are: file type, quality, folder, taken names, simulation. Every action that writes pictures
// has this block.

import { shell } from "quorlin/shell";
import { files } from "quorlin/files";
import { guard } from "../../lib/guard.js";
import { withNewest } from "../../lib/store.js";
import { METADATA, ORIGINAL, QUALITIES, writtenType } from "../../lib/types.js";
import { fill, shortPath } from "../../lib/wording.js";

const KEPT_FOLDERS = 5;
const FOLDER = "folder:";
// Controls that are named as their setting is.
const CHOICES = ["fileType", "quality", "metadata", "ifTaken"];
const CHECKS = ["removeLocation", "simulation"];

/** The block. `recent` is the list of folders that were saved to; changed() is called after each change. */
export class OutputPane {
    constructor(recent, changed) {
        this.recent = recent;
        this.changed = changed;
        this.output = null;
        this.offer = null;
        this.form = shell.loadForm("actions/shared/output-pane.ui");
        this.form.setItems("quality", QUALITIES, QUALITIES);
        this.form.setItems("metadata", [qsTr("Keep all"), qsTr("Keep copyright only"), qsTr("Remove all")], METADATA);
        this.form.setItems("ifTaken", [qsTr("Number the new file"), qsTr("Replace"), qsTr("Skip"), qsTr("Ask")],
                           ["number", "replace", "skip", "ask"]);
        this.connect();
    }

    /** Shows the output settings of an action, which are changed in place, and what its step offers. */
    use(output, offer) {
        this.output = null;
        this.offer = offer;
        const types = offer.types.map((id) => writtenType(id));
        this.form.setItems("fileType", [qsTr("Original file type")].concat(types.map((type) => type.word)),
                           [ORIGINAL].concat(offer.types));
        CHOICES.forEach((name) => this.form.chooseValue(name, output[name]));
        CHECKS.forEach((name) => { this.form.control(name).checked = output[name]; });
        this.output = output;
        this.showDestinations();
        this.showType();
    }

    connect() {
        for (const name of CHOICES) {
            this.form.control(name).activated.connect(guard("output." + name, () => {
                this.output[name] = this.form.value(name);
                this.showType();
                this.changed();
            }));
        }
        this.form.control("destination").activated.connect(guard("output.destination", () => this.destinationChosen()));
        for (const name of CHECKS) {
            const box = this.form.control(name);
            box.toggled.connect(guard("output." + name, () => {
                if (this.output !== null) {
                    this.output[name] = box.checked;
                    this.changed();
                }
            }));
        }
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
        } else if (String(value).startsWith(FOLDER)) {
            this.useFolder(String(value).slice(FOLDER.length));
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
        for (const name of ["fileTypeLabel", "fileType"]) {
            this.form.control(name).visible = this.offer.types.length > 0;
        }
        for (const name of ["qualityLabel", "qualityHost"]) {
            this.form.control(name).visible = this.offer.quality;
        }
        for (const name of ["metadataLabel", "metadata"]) {
            this.form.control(name).visible = this.offer.byRecipe === true;
        }
        this.form.control("removeLocation").visible = this.offer.byRecipe === true && this.output.metadata !== "none";
        this.form.control("quality").enabled = hasQuality;
        this.form.control("qualityLabel").enabled = hasQuality;
    }
}
