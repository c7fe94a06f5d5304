// Says once, at start, that the previous window crashed, and offers its report.

import { program } from "quorlin/program";
import { shell } from "quorlin/shell";

/** Asks nothing if the previous window was closed normally. */
export function tellCrash() {
    const report = program.crashReport();
    if (report === "") {
        return;
    }
    program.forgetCrash();
    const answer = shell.ask({
        title: qsTr("Quorlin ended unexpectedly"),
        text: qsTr("An error in Quorlin ended the last session. Your originals are not affected."),
        detail: qsTr("A report was saved on this computer and not sent. It names the version, the action, the picture and the place of the error."),
        buttons: [qsTr("Copy Report"), qsTr("Close")], initial: 1, escape: 1, check: "",
    });
    if (answer.button === 0) {
        shell.copyText(report);
    }
}
