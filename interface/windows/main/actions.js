// The actions of the sidebar. A new action is one entry here, one pane and one step.
// A title or sentence is a function, because texts are translated when they are shown.

import { ResizePane } from "../../panes/resize-pane.js";
import * as resize from "../../steps/resize.js";
import { PICTURE_INPUT } from "../../lib/types.js";
import { count } from "../../lib/wording.js";

// keyword: what the input collection asks for. takes: extensions of dropped files. icon: a file of the icon folder.
export const GROUPS = [
    {
        title: () => qsTr("Pictures"),
        actions: [{
            name: "resize",
            title: () => qsTr("Resize"),
            step: resize,
            pane: ResizePane,
            keyword: "resize",
            takes: PICTURE_INPUT,
            deed: (number) => count(number, qsTr("Resize 1 Picture"), qsTr("Resize %1 Pictures")),
        }],
    },
];

/** The action of that name; the first one where there is none. */
export function actionNamed(name) {
    const all = GROUPS.reduce((actions, group) => actions.concat(group.actions), []);
    return all.find((action) => action.name === name) || all[0];
}
