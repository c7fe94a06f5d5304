// Printing the chosen pictures of the list.

import { program } from "quorlin/program";
import { guard } from "../../lib/guard.js";

export class Printing {
    /** @param window  the main window's parts: form, pictures */
    constructor(window) {
        this.window = window;
        window.form.control("printAction").triggered.connect(guard("print", () => this.print()));
        window.form.control("pageSetupAction").triggered.connect(guard("page", () => program.setUpPage()));
        window.pictures.countChanged.connect(guard("print", () => this.show()));
        this.show();
    }

    show() {
        this.window.form.control("printAction").enabled = this.window.pictures.count > 0;
    }

    /** Prints the chosen pictures, each on a page of its own; without any the one that is shown. */
    print() {
        const paths = this.paths();
        if (paths.length > 0) {
            program.print(paths);
        }
    }

    paths() {
        const list = this.window.pictures;
        const chosen = list.selectedIds();
        const ids = chosen.length > 0 ? chosen : [list.currentId];
        return ids.filter((id) => id > 0).map((id) => list.photo(id).path);
    }
}
