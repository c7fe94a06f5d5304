// Where results go and what they are: file type, quality, metadata, folder, name, date, existing files, dry run. Every
// action that writes pictures has this block. Rarely changed settings are shown on demand, and always if they differ
// from the default.

import { shell } from "quorlin/shell";
import { files } from "quorlin/files";
import { guard } from "../../lib/guard.js";
import { withNewest } from "../../lib/store.js";
import { TAKEN } from "../../lib/wishes.js";
import { METADATA, ORIGINAL, QUALITIES, writtenType } from "../../lib/types.js";
import { shortPath } from "../../lib/wording.js";
import { insertAtCursor, joinTokens } from "./token-menu.js";

const KEPT_FOLDERS = 5;
// The type on offer for pictures that cannot be written in their own type.
const OFFERED_TYPE = "public.jpeg";
const FOLDER = "folder:";
// Shown instead of a number: results get the quality of their originals.
const OWN = "own";
// Controls that have the name of their setting.
const CHOICES = ["fileType", "metadata", "ifTaken"];
const CHECKS = ["removeLocation", "keepSubfolders", "simulation"];
// What is shown on demand, by setting: {setting: [default value, controls]}.
const RARE = {
    matte: ["#ffffff", ["matteLabel", "matteHost"]], namePattern: ["{name}", ["namePatternLabel", "namePatternHost"]],
    dates: ["now", ["keepDates"]],
};

/** The block. `recent` is the list of folders that were saved to; changed() is called after each change. */
export class OutputPane {
    constructor(recent, changed) {
        this.recent = recent;
        this.changed = changed;
        this.output = null;
        this.offer = null;
        this.showsMore = false;
        this.unwritable = 0;
        this.form = shell.loadForm("actions/shared/output-pane.ui");
        this.form.setItems("metadata", [qsTr("Keep all"), qsTr("Keep copyright only"), qsTr("Remove all")], METADATA);
        this.connect();
    }

    /** Shows the output settings of an action, which are changed in place, and what its step offers. */
    use(output, offer) {
        this.output = null;
        this.offer = offer;
        this.unwritable = 0;
        const types = offer.types.map((id) => writtenType(id));
        this.form.setItems("fileType", [qsTr("Original file type")].concat(types.map((type) => type.word)),
                           [ORIGINAL].concat(offer.types));
        this.showTaken(offer);
        CHOICES.forEach((name) => this.form.chooseValue(name, output[name]));
        CHECKS.forEach((name) => { this.form.control(name).checked = output[name]; });
        this.form.control("keepDates").checked = output.dates === "keep";
        this.form.control("matte").color = output.matte;
        this.form.control("namePattern").text = output.namePattern;
        this.form.control("folderName").text = output.destination.name;
        this.output = output;
        this.showDestinations();
        this.showType();
    }

    // Nobody can tell whether one file made of many pictures is up to date.
    showTaken(offer) {
        const texts = [qsTr("Keep both (add a number)"), qsTr("Replace"), qsTr("Skip"), qsTr("Skip if up to date"),
                       qsTr("Ask")];
        const isOffered = (word) => offer.oneFile !== true || word !== "current";
        this.form.setItems("ifTaken", texts.filter((_text, i) => isOffered(TAKEN[i])), TAKEN.filter(isOffered));
    }

    connect() {
        for (const name of CHOICES) {
            this.form.control(name).activated.connect(guard("output." + name, () => {
                this.output[name] = this.form.value(name);
                this.showType();
                this.changed();
            }));
        }
        this.form.control("quality").activated.connect(guard("output.quality", () => this.qualityChosen()));
        this.form.control("destination").activated.connect(guard("output.destination", () => this.destinationChosen()));
        for (const name of CHECKS) {
            const box = this.form.control(name);
            box.toggled.connect(guard("output." + name, () => this.set(name, box.checked)));
        }
        this.connectRare();
        this.form.control("typeOffer").clicked.connect(guard("output.typeOffer", () => {
            this.form.chooseValue("fileType", OFFERED_TYPE);
            this.set("fileType", OFFERED_TYPE);
            this.showType();
        }));
        const folder = this.form.control("folderName");
        folder.textChanged.connect(guard("output.folderName", () => this.nameFolder(folder.text)));
    }

    connectRare() {
        const control = (name) => this.form.control(name);
        const dates = control("keepDates");
        dates.toggled.connect(guard("output.dates", () => this.set("dates", dates.checked ? "keep" : "now")));
        control("matte").chosen.connect(guard("output.matte", (color) => this.set("matte", color)));
        const name = control("namePattern");
        name.textChanged.connect(guard("output.namePattern", () => this.set("namePattern", name.text)));
        joinTokens(this.form, { menu: "nameTokenMenu", button: "nameTokens" }, () => true,
                   (value) => insertAtCursor(name, value));
        control("outputMore").clicked.connect(guard("output.more", () => {
            this.showsMore = !this.showsMore;
            this.showType();
        }));
    }

    // While the controls are filled they must not change any output.
    set(name, value) {
        if (this.output !== null && this.output[name] !== value) {
            this.output[name] = value;
            this.changed();
        }
    }

    qualityChosen() {
        const chosen = this.form.value("quality");
        this.output.ownQuality = chosen === OWN;
        if (chosen !== OWN) {
            this.output.quality = chosen;
        }
        this.changed();
    }

    // A chosen type starts with its default quality: pictures of other types have no quality that it could adopt.
    showQuality(type) {
        const own = type === null ? qsTr("Same as the picture") : qsTr("Standard");
        this.form.setItems("quality", [own].concat(QUALITIES), [OWN].concat(QUALITIES));
        this.form.chooseValue("quality", this.output.ownQuality ? OWN : this.output.quality);
        const hasQuality = type === null || type.hasQuality;
        this.form.control("quality").enabled = hasQuality;
        this.form.control("qualityLabel").enabled = hasQuality;
        for (const name of ["qualityLabel", "qualityHost"]) {
            this.form.control(name).visible = this.offer.quality;
        }
    }

    nameFolder(name) {
        if (this.output !== null && this.output.destination.name !== name) {
            this.output.destination.name = name;
            this.showDestinations();
            this.changed();
        }
    }

    showDestinations() {
        const chosen = this.output.destination;
        // The field below has the name, which may be long.
        const texts = [qsTr("Next to each picture"), qsTr("Folder of the original")];
        const values = ["beside", "source"];
        for (const folder of this.recent) {
            texts.push(shortPath(folder, files.home));
            values.push(FOLDER + folder);
        }
        this.form.setItems("destination", texts.concat(["-", qsTr("Choose Folder…")]), values.concat(["-", "choose"]));
        this.form.chooseValue("destination", chosen.kind === "folder" ? FOLDER + chosen.path : chosen.kind);
        this.form.control("destination").toolTip = chosen.kind === "folder" ? chosen.path : "";
        ["folderNameLabel", "folderName"].forEach((name) => {
            this.form.control(name).visible = chosen.kind === "beside";
        });
        this.form.control("keepSubfolders").visible = chosen.kind === "folder" && this.offer.oneFile !== true;
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
        for (const name of ["fileTypeLabel", "fileType"]) {
            this.form.control(name).visible = this.offer.types.length > 0;
        }
        this.showQuality(type);
        for (const name of ["metadataLabel", "metadata"]) {
            this.form.control(name).visible = this.offer.byRecipe === true;
        }
        this.showOffer();
        this.showRare(type);
        this.form.control("removeLocation").visible = this.offer.byRecipe === true && this.output.metadata !== "none";
    }

    /** Offers another type if so many pictures of the list cannot be written in their own type. */
    offerType(unwritable) {
        this.unwritable = unwritable;
        this.showOffer();
    }

    showOffer() {
        const isOffered = this.unwritable > 0 && this.output !== null && this.output.fileType === ORIGINAL;
        this.form.control("typeNote").text = isOffered
            ? qsTr("%n pictures have a type that cannot be written.", "", this.unwritable) : "";
        this.form.control("typeOfferHost").visible = isOffered;
    }

    // A type that holds transparency needs no colour for it.
    showRare(type) {
        const isUsed = (setting) => setting !== "matte" || type === null || !type.alpha;
        for (const setting of Object.keys(RARE)) {
            const [usual, names] = RARE[setting];
            const isShown = this.showsMore || this.output[setting] !== usual;
            names.forEach((name) => {
                this.form.control(name).visible = this.offer.byRecipe === true && isShown && isUsed(setting);
            });
        }
        this.form.control("outputMoreHost").visible = this.offer.byRecipe === true;
        this.form.control("outputMore").text = this.showsMore ? qsTr("Less") : qsTr("More…");
    }
}
