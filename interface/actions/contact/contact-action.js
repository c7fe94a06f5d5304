// Contact Sheet: pages of small pictures with their names, or of one large picture each, as a PDF.

import { READ_INPUT } from "../../lib/types.js";
import { SHEETS } from "../../runs/sheets/sheets.js";
import { ContactPane } from "./contact-pane.js";
import { presets } from "./contact-presets.js";
import * as step from "./contact-step.js";

export const contact = {
    name: "contact",
    title: () => qsTr("Contact Sheet"),
    doing: () => qsTr("Making pages"),
    manner: SHEETS,
    usesList: true,
    step: step,
    pane: ContactPane,
    presets: presets,
    lists: () => "pictures",
    takes: READ_INPUT,
    startText: (number) => qsTr("Make %n Pages", "", number),
};
