// What the Esc key does: of everything that is open, it closes what was opened last.

import { shell } from "quorlin/shell";

export class Escape {
    /** @param window  the main window's parts: form, preview, run, pictures, showAllRows() */
    constructor(window) {
        this.parts = {
            large: { isOpen: () => window.preview.large.visible, close: () => window.preview.closeLarge() },
            run: { isOpen: () => window.run !== null && window.run.isBusy(), close: () => window.run.cancel() },
            filter: { isOpen: () => window.pictures.problemsOnly || window.pictures.leastRating > 0
                          || window.pictures.filtered,
                      close: () => window.showAllRows() },
            // Files that nobody waits for any longer are not read.
            sorting: { isOpen: () => window.pictures.sortPending, close: () => { window.pictures.sorting = ""; } },
            fullScreen: { isOpen: () => shell.fullScreen, close: () => shell.toggleFullScreen() },
        };
        this.open = []; // the latest last
    }

    /** Called when something may have been opened or closed; returns whether there is something to close. */
    look() {
        const now = Object.keys(this.parts).filter((name) => this.parts[name].isOpen());
        this.open = this.open.filter((name) => now.indexOf(name) >= 0);
        this.open = this.open.concat(now.filter((name) => this.open.indexOf(name) < 0));
        return this.open.length > 0;
    }

    close() {
        if (this.look()) {
            this.parts[this.open[this.open.length - 1]].close();
        }
    }
}
