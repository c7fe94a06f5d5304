// Says once in the life of the program that its settings cannot be saved.

import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";

/** note(text) is called when a change cannot be saved, also if that was already so. */
export function watchSettings(note) {
    const tell = () => note(qsTr("Settings cannot be saved. Your changes apply until you quit."));
    shell.settingsNotKept.connect(guard("settings", tell));
    if (!shell.keepsSettings) {
        tell();
    }
}
