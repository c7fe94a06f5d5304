// Log: what all runs did, and what can be undone.

import { PAGE } from "../../runs/pages.js";
import { LogPage } from "./log-page.js";

export const log = { name: "log", title: () => qsTr("Log"), manner: PAGE, usesList: false, page: LogPage };
