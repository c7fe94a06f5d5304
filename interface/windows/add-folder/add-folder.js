// The panel for folders, with the choice of which files are added.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";

const MEGABYTE = 1000000;
// A filter that leaves nothing out.
const ALL = { types: [], name: "", least: 0, most: 0, from: "", to: "" };
const FIELDS = ["addTypes", "addName"];

function isoDay(date) {
    const digits = (number) => String(number).padStart(2, "0");
    return [date.getFullYear(), digits(date.getMonth() + 1), digits(date.getDate())].join("-");
}

export class AddFolder {
    constructor() {
        this.form = shell.loadForm("windows/add-folder/add-folder.ui");
        const control = (name) => this.form.control(name);
        control("addFilter").toggled.connect(guard("filter", () => this.showRows()));
        control("addDated").toggled.connect(guard("filter.date", () => this.showRows()));
    }

    showRows() {
        const control = (name) => this.form.control(name);
        control("addFilterRows").visible = control("addFilter").checked;
        control("addFrom").enabled = control("addDated").checked;
        control("addTo").enabled = control("addDated").checked;
    }

    // A filter of an earlier day would leave out files when the user has long forgotten it.
    reset(today) {
        const control = (name) => this.form.control(name);
        control("addSubfolders").checked = true;
        control("addFilter").checked = false;
        control("addDated").checked = false;
        FIELDS.forEach((name) => { control(name).text = ""; });
        ["addLeast", "addMost"].forEach((name) => { control(name).value = 0; });
        ["addFrom", "addTo"].forEach((name) => { control(name).day = today; });
        this.showRows();
    }

    /**
     * Asks for a folder: {folder, rule}, or null. The rule is that of filtered(); null if the whole folder is added.
     */
    choose(title, start) {
        this.reset(isoDay(new Date()));
        const folder = shell.chooseFolderWith(title, start, this.form);
        return folder === null ? null : { folder: folder, rule: this.rule() };
    }

    rule() {
        const control = (name) => this.form.control(name);
        const subfolders = control("addSubfolders").checked;
        const rule = control("addFilter").checked ? this.filter() : Object.assign({}, ALL);
        const isPlain = Object.keys(ALL).every((field) => String(rule[field]) === String(ALL[field]));
        return subfolders && isPlain ? null : Object.assign(rule, { subfolders: subfolders });
    }

    filter() {
        const control = (name) => this.form.control(name);
        const dated = control("addDated").checked;
        const types = control("addTypes").text.toLowerCase().split(/[\s,;]+/);
        return {
            types: types.map((type) => type.replace(/^\*?\./, "")).filter((type) => type !== ""),
            name: control("addName").text,
            least: control("addLeast").value * MEGABYTE, most: control("addMost").value * MEGABYTE,
            from: dated ? control("addFrom").day : "", to: dated ? control("addTo").day : "",
        };
    }
}
