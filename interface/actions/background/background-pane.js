// The settings of the Background & Border action.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { joinPath, splitPath } from "../../lib/names.js";
import { PICTURE_INPUT } from "../../lib/types.js";
import * as background from "./background-step.js";
import { Pane } from "../shared/pane.js";

const OWN = ["checks", "lines", "dots", "linen", "paper"];
const CHOOSE = "choose";

function ownWord(name) {
    return { checks: qsTr("Checks"), lines: qsTr("Lines"), dots: qsTr("Dots"), linen: qsTr("Linen"),
             paper: qsTr("Paper") }[name];
}

function suppliedPatterns() {
    return OWN.map((name) => joinPath(shell.interfaceFolder, "patterns/" + name + ".png"));
}

// The patterns in the user's own folder.
function foundPatterns() {
    const folder = defaults.get("PatternsDestination");
    return typeof folder === "string" && folder !== "" ? files.collect([folder], PICTURE_INPUT, [], []).paths : [];
}

// The path whose file has the same name; undefined if there is none.
function named(paths, path) {
    return paths.find((other) => splitPath(other).name === splitPath(path).name);
}

export class BackgroundPane extends Pane {
    constructor(settings, changed) {
        super("actions/background/background-pane.ui", background, settings, changed);
        this.join();
        this.fill();
    }

    join() {
        this.form.control("under").segments = [qsTr("Colour"), qsTr("Pattern")];
        const frames = [qsTr("None"), qsTr("White, 10 pixels on all sides"), qsTr("Border inside the picture")];
        this.form.setItems("frame", frames, background.FRAMES);
        this.chosen = [];
        this.segments("under", "under", background.GROUNDS);
        this.color("underColor", "color");
        this.choice("frame", "frame");
        this.color("bandColor", "bandColor");
        this.number("bandWidth", "bandWidth");
        this.form.control("pattern").activated.connect(guard("pattern", () => this.patternChosen()));
    }

    showPatterns() {
        const found = foundPatterns();
        // A copy in the user's folder replaces the supplied one.
        this.supplied = suppliedPatterns().map((path) => named(found, path) || path);
        this.settings.pattern = this.patternFor(this.settings.pattern);
        const supplied = this.supplied;
        const all = supplied.concat(found, this.chosen, [this.settings.pattern]);
        const others = all.filter((path, i) => i >= supplied.length && all.indexOf(path) === i);
        const names = OWN.map((name) => ownWord(name))
            .concat(others.length > 0 ? ["-"] : [], others.map((path) => splitPath(path).name));
        const values = supplied.concat(others.length > 0 ? ["-"] : [], others);
        this.form.setItems("pattern", names.concat(["-", qsTr("Choose…")]), values.concat(["-", CHOOSE]));
        this.form.chooseValue("pattern", this.settings.pattern);
    }

    // The pattern itself; if it is gone, or has a copy in the user's folder, the one of that name.
    patternFor(path) {
        if (path !== "" && suppliedPatterns().indexOf(path) < 0 && files.info(path).exists) {
            return path;
        }
        return named(this.supplied, path) || this.supplied[0];
    }

    resolved(settings) {
        return Object.assign({}, settings, { pattern: this.patternFor(settings.pattern) });
    }

    patternChosen() {
        const value = this.form.value("pattern");
        if (value !== CHOOSE) {
            this.set("pattern", value);
            return;
        }
        const path = shell.chooseFile(qsTr("Choose a pattern"), splitPath(this.settings.pattern).folder, PICTURE_INPUT);
        if (path !== null) {
            this.chosen.push(path);
            this.set("pattern", path);
        }
        this.showPatterns();
    }

    showValues() {
        this.showPatterns();
        this.form.control("under").selectedSegment = background.GROUNDS.indexOf(this.settings.under);
        this.form.control("underColor").color = this.settings.color;
        this.form.chooseValue("frame", this.settings.frame);
        this.form.control("bandColor").color = this.settings.bandColor;
        this.form.control("bandWidth").value = this.settings.bandWidth;
    }

    showState() {
        this.visible(["underColorLabel", "underColorHost"], this.settings.under === "color");
        this.visible(["patternLabel", "patternHost"], this.settings.under === "pattern");
        this.visible(["bandLabel", "bandHost"], this.settings.frame === "band");
    }
}
