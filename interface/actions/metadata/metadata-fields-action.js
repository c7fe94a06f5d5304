// Metadata: fields of many pictures, with tokens. The other view of the action shows properties and comments.

import { PHOTO_INPUT } from "../../lib/types.js";
import { FIELDS } from "../../runs/fields/fields.js";
import { FieldsPane } from "./metadata-fields-pane.js";
import { presets } from "./metadata-fields-presets.js";
import * as step from "./metadata-fields-step.js";

export const fields = {
    name: "fields",
    within: "metadata",
    title: () => qsTr("Metadata"),
    doing: () => qsTr("Writing metadata"),
    manner: FIELDS,
    usesList: true,
    step: step,
    pane: FieldsPane,
    presets: presets,
    lists: () => "pictures",
    takes: PHOTO_INPUT,
    startText: (number) => qsTr("Write Metadata into %n Pictures", "", number),
};
