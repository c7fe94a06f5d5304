// The settings of the Watermark action.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { recipes } from "quorlin/recipes";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { splitPath } from "../../lib/names.js";
import { PICTURE_INPUT } from "../../lib/types.js";
import * as watermark from "./watermark-step.js";
import { Pane } from "../shared/pane.js";
import { joinTokens } from "../shared/token-menu.js";

const CHOOSE = "choose";
const NUMBERS = { markSize: "size", markPictureSize: "pictureSize", markMargin: "margin", markAngle: "angle",
                  markOpacity: "opacity" };

// The pictures in the user's own folder of watermarks.
function foundPictures() {
    const folder = defaults.get("WatermarksDestination");
    return typeof folder === "string" && folder !== "" ? files.collect([folder], PICTURE_INPUT, [], []).paths : [];
}

export class WatermarkPane extends Pane {
    constructor(settings, changed) {
        super("actions/watermark/watermark-pane.ui", watermark, settings, changed);
        this.chosen = [];
        this.join();
        this.fill();
    }

    join() {
        const control = (name) => this.form.control(name);
        control("mark").segments = [qsTr("Text"), qsTr("Picture")];
        control("markPosition").names = [qsTr("Top left"), qsTr("Top"), qsTr("Top right"), qsTr("Left"), qsTr("Centre"),
                                         qsTr("Right"), qsTr("Bottom left"), qsTr("Bottom"), qsTr("Bottom right")];
        this.segments("mark", "mark", watermark.MARKS);
        this.segments("markPosition", "position", watermark.PLACES);
        Object.keys(NUMBERS).forEach((name) => this.number(name, NUMBERS[name]));
        this.color("markColor", "color");
        this.choice("markFont", "font");
        this.check("markTile", "tile");
        const text = control("markText");
        text.textChanged.connect(guard("markText", () => this.set("text", text.plainText)));
        control("markPicture").activated.connect(guard("markPicture", () => this.pictureChosen()));
        // Everything except a number that affects the result.
        joinTokens(this.form, { menu: "markTokenMenu", button: "markTokens" }, (token) => token.name !== "counter",
                   (value) => { text.insertPlainText(value); text.setFocus(); });
    }

    // A font that is not installed stays chosen, so that the message about it can be understood.
    showFonts() {
        const own = this.settings.font;
        const there = recipes.fonts();
        const fonts = own === "" || there.indexOf(own) >= 0 ? there : [own].concat(there);
        this.form.setItems("markFont", [qsTr("Standard"), "-"].concat(fonts), ["", "-"].concat(fonts));
        this.form.chooseValue("markFont", own);
    }

    showPictures() {
        this.found = foundPictures();
        this.settings.picture = this.pictureFor(this.settings.picture);
        const all = this.found.concat(this.chosen, this.settings.picture === "" ? [] : [this.settings.picture]);
        const paths = all.filter((path, i) => all.indexOf(path) === i);
        const head = paths.length > 0 ? [] : [""];
        this.form.setItems("markPicture", head.map(() => qsTr("None")).concat(
            paths.map((path) => splitPath(path).name), ["-", qsTr("Choose…")]), head.concat(paths, ["-", CHOOSE]));
        this.form.chooseValue("markPicture", this.settings.picture);
    }

    // The picture itself; if it is gone, the one of that name in the user's folder; the first there for none.
    pictureFor(path) {
        if (path !== "" && files.info(path).exists) {
            return path;
        }
        const name = splitPath(path).name;
        const other = path === "" ? this.found[0] : this.found.find((each) => splitPath(each).name === name);
        return other === undefined ? path : other;
    }

    resolved(settings) {
        return Object.assign({}, settings, { picture: this.pictureFor(settings.picture) });
    }

    pictureChosen() {
        const value = this.form.value("markPicture");
        if (value !== CHOOSE) {
            this.set("picture", value);
            return;
        }
        const from = splitPath(this.settings.picture).folder || defaults.get("WatermarksDestination") || files.home;
        const path = shell.chooseFile(qsTr("Choose a picture"), from, PICTURE_INPUT);
        if (path !== null) {
            this.chosen.push(path);
            this.set("picture", path);
        }
        this.showPictures();
    }

    showValues() {
        const control = (name) => this.form.control(name);
        this.showFonts();
        this.showPictures();
        control("mark").selectedSegment = watermark.MARKS.indexOf(this.settings.mark);
        control("markText").plainText = this.settings.text;
        control("markColor").color = this.settings.color;
        Object.keys(NUMBERS).forEach((name) => { control(name).value = this.settings[NUMBERS[name]]; });
        control("markPosition").selectedSegment = this.settings.position;
        control("markTile").checked = this.settings.tile;
    }

    showState() {
        const isText = this.settings.mark === "text";
        ["markText", "markFont", "markSize"].forEach((name) => this.visible([name + "Label", name + "Host"], isText));
        ["markPicture", "markPictureSize"].forEach((name) => this.visible([name + "Label", name + "Host"], !isText));
    }
}
