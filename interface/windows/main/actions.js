// The actions of the sidebar. A new action is one entry here, one pane and one step.
// A title or sentence is a function, because texts are translated when they are shown.

import { ResizePane } from "../../panes/resize-pane.js";
import * as resize from "../../steps/resize.js";

export const GROUPS = [
    {
        title: () => qsTr("Pictures"),
        actions: [{
            name: "resize",
            icon: "resize",
            title: () => qsTr("Resize"),
            step: resize,
            pane: ResizePane,
            takes: "resize",
            deed: (number) => (number === 1 ? qsTr("Resize 1 Picture") : qsTr("Resize %1 Pictures").replace("%1", String(number))),
        }],
    },
];

export function actionNamed(name) {
    for (const group of GROUPS) {
        for (const action of group.actions) {
            if (action.name === name) {
                return action;
            }
        }
    }
    return null;
}
