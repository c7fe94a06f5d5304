// The entry point of the user-interface scripts: opens the main window.

import { openMainWindow } from "./windows/main/main.js";

openMainWindow();
