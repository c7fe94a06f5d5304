// Asks at start about runs that a crash or a power cut interrupted, and goes on with them.
// Services used: runRecords (interrupted, end), files, shell (ask).

import { files } from "quorlin/files";
import { runRecords } from "quorlin/records";
import { shell } from "quorlin/shell";
import { fill } from "../../lib/wording.js";
import { doneResults, recordFrom, recordsFolder } from "./run-record.js";

function mayContinue(record, doneCount) {
    const answer = shell.ask({
        title: qsTr("A run was interrupted"),
        text: fill(qsTr("%1 was interrupted: %2 of %n pictures are done.", "", record.items.length),
                   record.head.title, doneCount),
        detail: qsTr("Nothing half written is left. The rest can be made now, as it was planned."),
        buttons: [qsTr("Continue"), qsTr("Leave")], initial: 0, escape: 1, check: "",
    });
    return answer.button === 0;
}

// What was unfinished is of no use to anybody.
function sweepFolders(record) {
    const folders = new Set(record.items.map((item) => item.folder));
    folders.forEach((folder) => {
        if (folder !== "" && files.info(folder).exists) {
            files.sweep(folder);
        }
    });
}

/** @param window  the main window's parts */
export function askAboutInterrupted(window) {
    for (const path of runRecords.interrupted(recordsFolder(files))) {
        const record = recordFrom(files.readText(path) || "");
        if (record !== null && !window.run.isBusy()) {
            sweepFolders(record);
            const done = doneResults(record, files);
            window.pictures.addPaths(record.items.map((item) => item.of), []);
            window.form.control("sideBar").currentAction = record.head.action;
            if (mayContinue(record, Object.keys(done).length) && window.run.continueRun !== undefined) {
                window.run.continueRun(record, done);
            }
        }
        runRecords.end(path);
    }
}
