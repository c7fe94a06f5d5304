// Printing the chosen pictures of the list.

import { program } from "quorlin/program";
import { guard } from "../../lib/guard.js";
import { Print } from "../print/print.js";

export class Printing {
    /** @param window  the main window's parts: form, pictures, forPanes() */
    constructor(window) {
        this.window = window;
        this.print = null; // made when it is first opened
        window.form.control("printAction").triggered.connect(guard("print", () => this.open()));
        window.form.control("pageSetupAction").triggered.connect(guard("page", () => this.setUpPage()));
        window.pictures.countChanged.connect(guard("print", () => this.show()));
        this.show();
    }

    show() {
        this.window.form.control("printAction").enabled = this.window.pictures.count > 0;
    }

    setUpPage() {
        program.setUpPage();
        if (this.print !== null) {
            this.print.paperChosen();
        }
    }

    /** Shows the selected pictures on pages; if there are none, the current one. */
    open() {
        const paths = this.paths();
        if (paths.length === 0) {
            return;
        }
        if (this.print === null) {
            this.print = new Print(this.window);
        }
        this.print.open(paths);
    }

    paths() {
        const list = this.window.pictures;
        const chosen = list.selectedIds();
        const ids = chosen.length > 0 ? chosen : [list.currentId];
        return ids.filter((id) => id > 0).map((id) => list.photo(id).path);
    }
}
