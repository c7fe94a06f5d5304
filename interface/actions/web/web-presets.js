// The columns of its presets, and those that it starts with; docs/presets.md has the layout. Typed captions, and the
// folder in which a page is made, belong to the pictures and not to a preset. Pure but for translation.

import { DIRECTIONS, METADATA, STYLES, TAKEN, TYPES } from "./web-step.js";

export const presets = {
    form: {
        process: "Web Page", mode: "style", modes: STYLES, isPage: true,
        columns: {
            StrField4: ["type", "word", TYPES], StrField5: ["quality", "number"], StrField7: ["name", "text"],
            StrField9: ["ifTaken", "word", TAKEN], StrField10: ["metadata", "word", METADATA],
            StrField11: ["title", "text"], StrField12: ["text", "text"], StrField13: ["captionPattern", "text"],
            StrField14: ["lightPaper", "color"], StrField15: ["darkPaper", "color"], StrField16: ["accent", "color"],
            StrField17: ["language", "text"], StrField18: ["direction", "word", DIRECTIONS],
            StrField19: ["template", "text"], StrField21: ["simulation", "flag"], StrField22: ["threeSizes", "flag"],
            StrField23: ["download", "flag"], StrField24: ["sharpen", "flag"], StrField25: ["small", "whole"],
            StrField26: ["medium", "whole"], StrField27: ["large", "whole"], StrField41: ["location", "flag"],
        },
    },
    starting: () => [
        [qsTr("Rows with captions"), {}],
        [qsTr("Grid of squares"), { style: "grid", captionPattern: "" }],
        [qsTr("Story on warm paper"), { style: "story", captionPattern: "{headline}\n{caption}", lightPaper: "#faf6ee",
                                        darkPaper: "#211d18", accent: "#9a4a1c" }],
        [qsTr("For clients, with download"), { captionPattern: "{name}", download: true, large: 3840, quality: 90 }],
    ],
};
