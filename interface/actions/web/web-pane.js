// The settings of the Web Page action.
// Services used: files, shell, webPages, program (language).

import { files } from "quorlin/files";
import { program } from "quorlin/program";
import { shell } from "quorlin/shell";
import { webPages } from "quorlin/web";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { fill, pixels, shortPath } from "../../lib/wording.js";
import { Pane } from "../shared/pane.js";
import { insertAtCursor, joinTokens } from "../shared/token-menu.js";
import { captionOf } from "./web-making.js";
import { LANGUAGES } from "./web-languages.js";
import { WebPreview } from "./web-preview.js";
import * as web from "./web-step.js";

const CHOOSE = "choose";
const SAVE = "save";
const NUMBERS = { webSmall: "small", webMedium: "medium", webLarge: "large", webQuality: "quality" };
const CHECKS = { webThree: "threeSizes", webSharpen: "sharpen", webLocation: "location", webDownload: "download" };
const CHOICES = { webType: "type", webMetadata: "metadata", webTaken: "ifTaken", webLanguage: "language",
                  webDirection: "direction" };
const COLORS = { webLight: "lightPaper", webDark: "darkPaper", webAccent: "accent" };
// The sketch has so many pictures.
const SKETCHED = 14;

export class WebPane extends Pane {
    constructor(settings, changed, window) {
        super("actions/web/web-pane.ui", web, settings, changed);
        this.window = window;
        this.preview = this.newPreview();
        this.join();
        this.fill();
    }

    // Not in the constructor: there the engine gave the function no `this`.
    newPreview() {
        return new WebPreview(this.window.services, (text) => this.told(text));
    }

    join() {
        const control = (name) => this.form.control(name);
        const line = (name, field) =>
            control(name).textChanged.connect(guard(name, () => this.set(field, control(name).text)));
        line("webTitle", "title");
        line("webName", "name");
        line("webCaption", "captionPattern");
        control("webText").textChanged.connect(guard("webText", () => this.set("text", control("webText").plainText)));
        control("webOwn").textChanged.connect(guard("webOwn", () => this.typed(control("webOwn").plainText)));
        control("webOwnClear").clicked.connect(guard("webOwnClear", () => this.forgetTyped()));
        control("webStyle").segments = [qsTr("Grid"), qsTr("Rows"), qsTr("Story")];
        this.segments("webStyle", "style", web.STYLES);
        Object.keys(NUMBERS).forEach((name) => this.number(name, NUMBERS[name]));
        Object.keys(CHECKS).forEach((name) => this.check(name, CHECKS[name]));
        Object.keys(CHOICES).forEach((name) => this.choice(name, CHOICES[name]));
        Object.keys(COLORS).forEach((name) => this.color(name, COLORS[name]));
        control("webParent").activated.connect(guard("webParent", () => this.parentChosen()));
        control("webTemplate").activated.connect(guard("webTemplate", () => this.templateChosen()));
        control("webPreview").clicked.connect(guard("webPreview", () => this.openPreview()));
        joinTokens(this.form, { menu: "webTokenMenu", button: "webTokens" }, () => true,
                   (value) => insertAtCursor(control("webCaption"), value), this.ownTokens());
        this.setItems();
    }

    // The title in the metadata.
    ownTokens() {
        return webPages.captionTokens().map((token) => ({ name: token.name, words: token.words, forms: [""],
                                                          example: "" }));
    }

    setItems() {
        const set = (name, pairs) =>
            this.form.setItems(name, pairs.map((pair) => pair[1]), pairs.map((pair) => pair[0]));
        set("webLanguage", [["", qsTr("Same as Quorlin")], ["-", "-"]].concat(LANGUAGES));
        set("webDirection", [["auto", qsTr("By language")], ["ltr", qsTr("Left to right")],
                             ["rtl", qsTr("Right to left")]]);
        set("webType", [["jpeg", "JPEG"], ["webp", "WebP"]]);
        set("webMetadata", [["copyright", qsTr("Keep copyright only")], ["keep", qsTr("Keep all")],
                            ["none", qsTr("Remove all")]]);
        set("webTaken", [["number", qsTr("Number the new folder")], ["update", qsTr("Update the page in it")]]);
    }

    showPlaces() {
        const own = this.settings.parent;
        const texts = [qsTr("Folder of the first picture")].concat(own === "" ? [] : [shortPath(own, files.home)]);
        const values = [""].concat(own === "" ? [] : [own]);
        this.form.setItems("webParent", texts.concat(["-", qsTr("Choose Folder…")]), values.concat(["-", CHOOSE]));
        this.form.chooseValue("webParent", own);
        const file = this.settings.template;
        this.form.setItems("webTemplate",
                           [qsTr("Standard")].concat(file === "" ? [] : [splitPath(file).name],
                                                     ["-", qsTr("Choose File…"), qsTr("Save a Copy…")]),
                           [""].concat(file === "" ? [] : [file], ["-", CHOOSE, SAVE]));
        this.form.chooseValue("webTemplate", file);
    }

    parentChosen() {
        const value = this.form.value("webParent");
        const folder = value === CHOOSE
            ? shell.chooseFolder(qsTr("Save the page in"), this.settings.parent || files.home) : value;
        if (folder !== null) {
            this.set("parent", folder);
        }
        this.showPlaces();
    }

    templateChosen() {
        const value = this.form.value("webTemplate");
        if (value === SAVE) {
            this.saveTemplate();
        } else {
            const from = splitPath(this.settings.template).folder;
            const path = value === CHOOSE
                ? shell.chooseFile(qsTr("Choose a template"), this.settings.template === "" ? files.home : from,
                                   ["html", "htm"]) : value;
            if (path !== null) {
                this.set("template", path);
            }
        }
        this.showPlaces();
    }

    saveTemplate() {
        const path = shell.chooseNewFile(qsTr("Save a copy of the template"), files.home, "page-template.html", "html");
        if (path === null) {
            return;
        }
        const problem = files.writeText(path, webPages.standardTemplate());
        this.window.sayBeside(problem || fill(qsTr("Template saved as %1"), path));
        if (problem === "") {
            this.set("template", path);
        }
    }

    openPreview() {
        const paths = this.window.list.tickedPaths();
        if (this.step.validate(this.settings).length > 0 || paths.length === 0) {
            this.window.sayBeside(paths.length === 0
                                  ? qsTr("Add pictures first.") : qsTr("Correct the settings first."));
            return;
        }
        this.preview.open(paths, JSON.parse(JSON.stringify(this.settings)));
    }

    told(text) {
        this.form.control("webPreview").enabled = !this.preview.isBusy;
        this.window.sayBeside(text);
    }

    /** Another action is shown. */
    left() {
        this.preview.stop();
    }

    // A caption for the current picture alone.
    typed(text) {
        if (this.filling || this.photo === null) {
            return;
        }
        const path = this.photo.path;
        const others = this.settings.captions.filter((each) => each[0] !== path);
        this.settings.captions = others.concat([[path, text]]);
        this.showState();
        this.changed();
    }

    forgetTyped() {
        if (this.photo !== null) {
            this.settings.captions = this.settings.captions.filter((each) => each[0] !== this.photo.path);
            this.changed();
        }
    }

    isTyped() {
        return this.photo !== null && this.settings.captions.some((each) => each[0] === this.photo.path);
    }

    showValues() {
        const control = (name) => this.form.control(name);
        control("webTitle").text = this.settings.title;
        control("webText").plainText = this.settings.text;
        control("webCaption").text = this.settings.captionPattern;
        control("webName").text = this.settings.name;
        control("webStyle").selectedSegment = web.STYLES.indexOf(this.settings.style);
        Object.keys(NUMBERS).forEach((name) => { control(name).value = this.settings[NUMBERS[name]]; });
        Object.keys(CHECKS).forEach((name) => { control(name).checked = this.settings[CHECKS[name]]; });
        Object.keys(CHOICES).forEach((name) => this.form.chooseValue(name, this.settings[CHOICES[name]]));
        Object.keys(COLORS).forEach((name) => { control(name).color = this.settings[COLORS[name]]; });
        this.showPlaces();
    }

    showState() {
        const control = (name) => this.form.control(name);
        control("webMedium").visible = this.settings.threeSizes;
        control("webLocation").enabled = this.settings.metadata !== "none";
        control("webName").placeholderText = web.folderNameOf(Object.assign({}, this.settings, { name: "" }));
        control("webOwn").enabled = this.photo !== null;
        control("webOwnClear").enabled = this.isTyped();
        const sketch = control("webSketch");
        sketch.style = this.settings.style;
        sketch.lightPaper = this.settings.lightPaper;
        sketch.darkPaper = this.settings.darkPaper;
        sketch.accent = this.settings.accent;
        sketch.title = web.titleOf(this.settings);
        sketch.fromRight = web.isFromRight(this.settings, program.language);
        sketch.captions = this.settings.captionPattern !== "" || this.settings.captions.length > 0;
    }

    show(photo, services) {
        const planned = super.show(photo, services);
        this.showCaption(photo, services);
        this.showRatios();
        this.showState();
        return planned;
    }

    // Not while the user is typing it.
    showCaption(photo, services) {
        const field = this.form.control("webOwn");
        const isSound = this.step.validate(this.settings).length === 0;
        const text = photo === null || !isSound ? "" : captionOf(photo.path, 0, this.settings, services);
        if (field.plainText !== text && !(field.focus && this.isTyped())) {
            this.filling = true;
            field.plainText = text;
            this.filling = false;
        }
    }

    // For the pictures whose sizes are known anyway.
    showRatios() {
        const list = this.window.list;
        const ratios = list.tickedIds().slice(0, SKETCHED).map((id) => list.photo(id))
            .filter((photo) => photo !== null && photo.width > 0).map((photo) => photo.width / photo.height);
        this.form.control("webSketch").setRatios(ratios);
    }

    resultText(photo, planned) {
        return web.sizesOf(this.settings).map((size) => pixels(this.fitted(photo, size[1], planned))).join(", ");
    }

    // As the recipe fits a picture to a longest side.
    fitted(photo, longest, planned) {
        const scale = Math.min(1, longest / Math.max(photo.width, photo.height));
        return longest === this.settings.large
            ? planned : { width: Math.max(1, Math.round(photo.width * scale)),
                          height: Math.max(1, Math.round(photo.height * scale)) };
    }
}
