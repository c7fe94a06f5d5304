// Ends at start what a crash interrupted, and says so.

import { moves } from "quorlin/moves";
import { shell } from "quorlin/shell";
import { recoveredWords } from "./recovered.js";

/** @param say  called with a text for the status bar */
export function recoverRuns(say) {
    const words = recoveredWords(moves.recover());
    if (words !== null && words.detail === "") {
        say(words.text);
    } else if (words !== null) {
        shell.ask({ title: qsTr("A run was interrupted"), text: words.text, detail: words.detail,
                    buttons: [qsTr("Continue")], initial: 0, escape: 0,
                    check: "" });
    }
}
