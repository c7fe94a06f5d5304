// Metadata: shows what a picture says about itself and writes comments.

import { PHOTO_INPUT } from "../../lib/types.js";
import { PAGE } from "../../runs/pages.js";
import { MetadataPage } from "./metadata-page.js";

export const metadata = {
    name: "metadata",
    title: () => qsTr("Metadata"),
    manner: PAGE,
    usesList: true,
    page: MetadataPage,
    lists: () => "pictures",
    takes: PHOTO_INPUT,
};
