// Results of earlier runs in folders that are added: they are left out, and a message says so, with a button that adds
// them anyway. Services used: recipes (resultsAmong).

import { recipes } from "quorlin/recipes";
import { keysOf } from "../../lib/names.js";

export class OwnResults {
    /** @param form  that of the main window */
    constructor(form) {
        this.form = form;
        this.found = { paths: [], folders: [] };
        this.show();
    }

    /** What was found without the paths written by runs; `named` are those that the user chose individually. */
    without(found, named) {
        const chosen = keysOf(named);
        const walked = found.listed.filter((path) => !chosen[path]);
        const own = walked.length === 0 ? [] : recipes.resultsAmong(walked);
        this.found = { paths: own, folders: found.folders };
        this.show();
        if (own.length === 0) {
            return found;
        }
        const left = keysOf(own);
        const rest = (paths) => paths.filter((path) => !left[path]);
        return Object.assign({}, found, { paths: rest(found.paths), listed: rest(found.listed) });
    }

    /** What was left out last: {paths, folders}; from now on it is not left out. */
    take() {
        const found = this.found;
        this.found = { paths: [], folders: [] };
        this.show();
        return found;
    }

    show() {
        const count = this.found.paths.length;
        const text = count === 0 ? "" : qsTr("%n results of earlier runs not added", "", count);
        for (const name of ["own", "emptyOwn"]) {
            this.form.control(name + "Bar").visible = count > 0;
            this.form.control(name + "Note").text = text;
        }
    }
}
