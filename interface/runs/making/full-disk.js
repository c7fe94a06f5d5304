// What happens where a disk is full in the middle of a run: it waits for an answer. Pure but for translation, and for whom it asks.
// Services used: shell (ask, chooseFolder).

import { shell } from "quorlin/shell";
import { joinPath, splitPath } from "../../lib/names.js";
import { fill } from "../../lib/wording.js";
import { row as rowOf } from "../move-plan.js";

/**
 * Asks what to do: {isStopped, folder: the one that the rest goes to, or null where it is tried again}.
 *
 * @param folder    the one that is full
 * @param kept      a sentence on what becomes of what is finished
 * @param isChosen  whether another folder will do
 */
export function askForRoom(folder, kept, isChosen) {
    const again = isChosen ? qsTr("Free some space and try again, or choose another folder.")
                           : qsTr("Free some space and try again.");
    const buttons = [qsTr("Retry")].concat(isChosen ? [qsTr("Choose Folder…")] : [], [qsTr("Cancel")]);
    const answer = shell.ask({
        title: qsTr("The disk is full"), text: fill(qsTr("There is no space left in %1."), folder),
        detail: [kept, again].filter((text) => text !== "").join(" "),
        buttons: buttons, initial: 0, escape: buttons.length - 1, check: "",
    });
    const isElsewhere = isChosen && answer.button === 1;
    const chosen = isElsewhere ? shell.chooseFolder(qsTr("Save the rest to"), folder) : null;
    return { isStopped: answer.button === buttons.length - 1 || (isElsewhere && chosen === null), folder: chosen };
}

function placeIn(folder, path, base) {
    const above = base === "/" ? base : base + "/";
    return joinPath(folder, path.startsWith(above) ? path.slice(above.length) : splitPath(path).name);
}

/** What of a run that moves files is left, as retryRows() has it, in the same places of another folder. */
export function restIn(folder, rows, wished) {
    return rows.map((row) => {
        const { base } = wished[row.of];
        const at = (path) => placeIn(folder, path, base);
        const along = row.wish.along.map((other) => ({ from: other.from, to: at(other.to) }));
        return Object.assign({}, row, {
            wish: rowOf(Object.assign({}, row.wish, { to: at(row.wish.to), base: folder, along: along })),
        });
    });
}
