// Opens the main window.

import { cToolBox } from "quorlin";
import { defaults } from "quorlin/defaults";
import { recipes } from "quorlin/recipes";
import { shell } from "quorlin/shell";
import { onProblem } from "../../lib/guard.js";
import { tellCrash } from "./crash-note.js";
import { connect } from "./main-controls.js";
import { MainWindow } from "./main-window.js";
import { watchSettings } from "./settings-watch.js";

function tellProblem(where, error) {
    console.error(where + ": " + error + "\n" + (error && error.stack ? error.stack : ""));
    shell.ask({ title: qsTr("Something went wrong"), text: String(error), detail: where, buttons: [qsTr("Continue")],
                initial: 0, escape: 0, check: "" });
}

/** Makes and shows the main window. */
export function openMainWindow() {
    onProblem(tellProblem);
    defaults.set("MOS", cToolBox.hGetMacOSVersion());
    const window = new MainWindow();
    connect(window);
    window.open();
    window.controllers.view.viewWillAppear();
    window.form.show();
    window.form.control("central").setFocus();
    recipes.prepare();
    const say = (text) => window.sayBeside(text);
    watchSettings(say);
    window.interrupted.look();
    window.keptList.look();
    tellCrash();
    if (shell.arguments.length > 0) {
        window.input.addPaths(shell.arguments);
    }
    window.openWith(shell.opening);
}
