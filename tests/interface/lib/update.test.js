// What comes of an update check.

import { equal, finish, test } from "../check.js";
import { outcome } from "../../../interface/lib/update.js";

test("putsTheNotesIntoOneText", () => {
    equal(outcome([" 3.2\n", "Notes", "More\n"], null), { kind: "newer", version: "3.2", notes: "Notes\n\nMore" });
    equal(outcome(["3.2", "", " "], null), { kind: "newer", version: "3.2", notes: "" });
});

test("tellsNoNewerVersionFromNoAnswer", () => {
    equal(outcome(null, null), { kind: "current" });
    equal(outcome(null, "Cannot download"), { kind: "failed" });
});

finish();
