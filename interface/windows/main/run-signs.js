// What is reported about a run outside its window, and what the user wants at its end: the machine stays awake while it
// runs, the task bar shows its progress, and a notification gives the outcome if the window is in the background.

import { defaults } from "quorlin/defaults";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { keep, recall } from "../../lib/store.js";
import { fill, problemsText } from "../../lib/wording.js";

const KEY = "WhenDone";
const NOTHING = "nothing";
const OPEN = "open";
const CLOSE = "close";

/** The progress of a run, 0 to 100; -1 if unknown. */
export function percentDone(run) {
    return run.phase === "running" && run.progress.count > 0
        ? Math.floor((100 * run.progress.done) / run.progress.count) : -1;
}

export class RunSigns {
    /** @param window  the main window's parts: form, action, run, watching, openFolders() */
    constructor(window) {
        this.window = window;
        this.isOn = false;
        const form = window.form;
        form.setItems("whenDone",
                      [qsTr("When done: nothing"), qsTr("When done: open folder"), qsTr("When done: close")],
                      [NOTHING, OPEN, CLOSE]);
        // A window that closes by itself would be a surprise the next time.
        form.chooseValue("whenDone", recall(defaults, KEY, { what: NOTHING }).what === OPEN ? OPEN : NOTHING);
        form.control("whenDone").activated.connect(guard("whenDone", () => {
            keep(defaults, KEY, { what: form.value("whenDone") });
        }));
        this.closing = shell.timer(guard("whenDone.close", () => form.close()));
    }

    /** Called after each change of the run. */
    runChanged() {
        const run = this.window.run;
        if (run.isBusy()) {
            const title = this.window.action.title();
            this.announce(run.problems > 0 ? fill(qsTr("%1: %2"), title, problemsText(run.problems))
                : fill(qsTr("%1: started"), title));
            this.isOn = true;
            shell.desktop.jobGoesOn(title, percentDone(run));
        } else if (this.isOn) {
            this.isOn = false;
            this.ended(run);
        }
    }

    // Reading out every number would be no news to those who hear it.
    announce(text) {
        const label = this.window.form.control("statusText");
        if (label.accessibleName !== text) {
            label.accessibleName = text;
        }
    }

    // In a watched folder one run follows another.
    ended(run) {
        this.announce(run.text);
        const watched = this.window.watching.isOn();
        shell.desktop.jobEnded(this.window.action.title(), watched ? "" : run.text);
        const wanted = run.isComplete && !watched ? this.window.form.value("whenDone") : NOTHING;
        if (wanted === OPEN && run.folders().length > 0) {
            this.window.openFolders();
        } else if (wanted === CLOSE) {
            this.closing.start(0); // what follows the end of a run must happen first
        }
    }
}
