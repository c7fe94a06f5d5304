// A menu of recently used items: it can be cleared, and drops entries that are gone.

import { defaults } from "quorlin/defaults";
import { files } from "quorlin/files";
import { fill, shortPath } from "../../lib/wording.js";
import { keep, recall, withNewest } from "../../lib/store.js";

const MOST = 8;
const SEPARATOR = "-";

export class Recent {
    /**
     * @param window  the main window's parts: form, say(text)
     * @param menu    the name of the menu
     * @param key     under which paths are stored
     * @param choose  called with the path of a chosen entry, which exists
     * @param paths   the list itself, if it exists elsewhere
     */
    constructor(window, menu, key, choose, paths) {
        this.window = window;
        this.menu = menu;
        this.key = key;
        this.choose = choose;
        this.paths = paths || recall(defaults, key, { folders: [] }).folders;
        /** Called after the menu was cleared. */
        this.cleared = () => undefined;
        this.isOpen = true;
        this.show();
    }

    /** Those that are still there, the newest first. */
    present() {
        return this.paths.filter((path) => files.info(path).exists);
    }

    add(path) {
        if (this.paths[0] !== path) {
            this.set(withNewest(this.paths, path, MOST));
        }
    }

    set(paths) {
        // Others use the same list.
        this.paths.splice(0, this.paths.length, ...paths);
        keep(defaults, this.key, { folders: this.paths });
        this.show();
    }

    /** Its entries are disabled while nothing can be done with them. */
    open(on) {
        if (on !== this.isOpen) {
            this.isOpen = on;
            this.show();
        }
    }

    show() {
        const paths = this.isOpen ? this.present() : [];
        const texts = paths.map((path) => shortPath(path, files.home));
        const end = paths.length === 0 ? [] : [SEPARATOR, qsTr("Clear Menu")];
        this.window.form.setMenu(this.menu, texts.concat(end), paths.concat(end.map(() => "")),
                                 (path) => this.chosen(path));
    }

    chosen(path) {
        if (path === "") {
            this.set([]);
            this.cleared();
        } else if (files.info(path).exists) {
            this.choose(path);
        } else {
            this.window.say(fill(qsTr("%1 no longer exists"), shortPath(path, files.home)));
            this.set(this.present());
        }
    }
}
