// The About sheet: what the program is, and what it stands on.

import { program } from "quorlin/program";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { fill } from "../../lib/wording.js";

function row(library) {
    const cells = [library.name, library.version, library.licence];
    return "<tr>" + cells.map((text) => "<td style=\"padding-right: 24px\">" + text + "</td>").join("") + "</tr>";
}

export class About {
    /** @param host  the main window, as sheets know it */
    constructor(host) {
        this.host = host;
        this.form = shell.loadForm("windows/about/about.ui");
        this.form.control("aboutTitle").text = fill(qsTr("Quorlin %1"), program.version);
        this.form.control("libraries").text = "<table>" + program.libraries.map(row).join("") + "</table>";
        this.form.control("aboutClose").clicked.connect(guard("about", () => this.form.close()));
    }

    open() {
        this.host.sheet = this.form.control("aboutWindow");
        this.form.control("aboutClose").setFocus();
    }
}
