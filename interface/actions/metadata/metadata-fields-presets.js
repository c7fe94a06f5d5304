// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Pure but for translation.

import { movingForm } from "../../presets/preset-forms.js";
import { ADD, REPLACE } from "./metadata-fields-step.js";

export const presets = {
    form: movingForm("Metadata", "keywordsMode", [ADD, REPLACE], {
        StrField4: ["title", "text"], StrField5: ["headline", "text"], StrField6: ["caption", "text"],
        StrField7: ["keywords", "text"], StrField8: ["removedKeywords", "text"], StrField9: ["creator", "text"],
        StrField10: ["jobTitle", "text"], StrField11: ["contactAddress", "text"], StrField12: ["contactPhone", "text"],
        StrField13: ["contactEmail", "text"], StrField14: ["contactWeb", "text"], StrField15: ["copyright", "text"],
        StrField16: ["usageTerms", "text"], StrField17: ["credit", "text"], StrField18: ["source", "text"],
        StrField19: ["instructions", "text"], StrField20: ["jobIdentifier", "text"],
        StrField42: ["sublocation", "text"],
        StrField43: ["city", "text"], StrField44: ["state", "text"], StrField45: ["country", "text"],
        StrField46: ["countryCode", "text"], StrField47: ["dateTaken", "text"], StrField48: ["shift", "text"],
        StrField49: ["zone", "text"], StrField50: ["rating", "text"], StrField51: ["label", "text"],
        StrField52: ["cleared", "text"], StrField53: ["removed", "text"],
    }),
    starting: () => [
        [qsTr("Copyright with the year"), { copyright: "© {taken:yyyy}" }],
        [qsTr("Headline from the folder name"), { headline: "{folder}" }],
        [qsTr("Remove private data"), { removed: "places serialNumbers names faces" }],
    ],
};
