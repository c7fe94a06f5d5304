// The folder in which the folders of a recipe's outputs begin: that of each picture, or one for all, with or without
// the tree of the added folders. It is not part of the recipe.
// Services used: shell, files.

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { shortPath } from "../../lib/wording.js";

const CHOOSE = "choose";

export class RecipeBase {
    /** @param pane  the Recipe pane: form, settings, changed() */
    constructor(pane) {
        this.pane = pane;
        this.form = pane.form;
        this.form.control("base").activated.connect(guard("recipe.base", () => this.choose(this.form.value("base"))));
        const box = this.form.control("keepSubfolders");
        box.toggled.connect(guard("recipe.keepSubfolders", () => this.keepSubfolders(box.checked)));
    }

    show() {
        const path = this.pane.settings.base;
        const texts = [qsTr("Folder of each picture")].concat(path === "" ? [] : [shortPath(path, files.home)]);
        const values = [""].concat(path === "" ? [] : [path]);
        this.form.setItems("base", texts.concat(["-", qsTr("Choose Folder…")]), values.concat(["-", CHOOSE]));
        this.form.chooseValue("base", path);
        this.form.control("base").toolTip = path;
        this.form.control("keepSubfolders").checked = this.pane.settings.keepSubfolders;
        this.form.control("keepSubfolders").visible = path !== "";
    }

    keepSubfolders(isKept) {
        if (isKept !== this.pane.settings.keepSubfolders) {
            this.pane.settings.keepSubfolders = isKept;
            this.pane.changed();
        }
    }

    choose(value) {
        const settings = this.pane.settings;
        const folder = value === CHOOSE
            ? shell.chooseFolder(qsTr("Save results to"), settings.base || files.home) : value;
        if (folder !== null && folder !== settings.base) {
            settings.base = folder;
            this.pane.changed();
        }
        this.show();
    }
}
