// The About sheet: what the program is, and which libraries it is built with.

import { program } from "quorlin/program";
import { recipes } from "quorlin/recipes";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { fill } from "../../lib/wording.js";

function row(library) {
    const cells = [library.name, library.version, library.licence];
    return "<tr>" + cells.map((text) => "<td style=\"padding-right: 24px\">" + text + "</td>").join("") + "</tr>";
}

// Pictures come from anywhere, and their decoders may have bugs.
function guardText(active) {
    if (active.callRules === undefined) {
        return qsTr("No process that reads pictures is running.");
    }
    const missing = [[active.noNewPrivileges, qsTr("no new privileges")],
                     [active.fileRules, qsTr("file access rules (Landlock)")],
                     [active.callRules, qsTr("system call filter (seccomp)")]];
    const words = (isOn) => missing.filter((each) => each[0] === isOn).map((each) => each[1]).join(", ");
    return [fill(qsTr("Processes that read pictures are confined by: %1."), words(true) || qsTr("nothing"))]
        .concat(words(false) === "" ? [] : [fill(qsTr("Not available on this system: %1."), words(false))]).join(" ");
}

export class About {
    /** @param host  the main window, in the form that sheets need */
    constructor(host) {
        this.host = host;
        this.form = shell.loadForm("windows/about/about.ui");
        this.form.control("aboutTitle").text = fill(qsTr("Quorlin %1"), program.version);
        this.form.control("libraries").text = "<table>" + program.libraries.map(row).join("") + "</table>";
        this.form.control("aboutCopy").clicked.connect(guard("about.copy", () => this.copy()));
        this.form.control("aboutClose").clicked.connect(guard("about", () => this.form.close()));
    }

    // What a bug report needs.
    copy() {
        const versions = program.libraries.map((library) => library.name + " " + library.version);
        const lines = ["Quorlin " + program.version].concat(versions, [this.form.control("aboutGuard").text]);
        shell.copyText(lines.join("\n") + "\n");
    }

    open() {
        this.form.control("aboutGuard").text = guardText(recipes.confinement());
        this.host.sheet = this.form.control("aboutWindow");
        this.form.control("aboutClose").setFocus();
    }
}
