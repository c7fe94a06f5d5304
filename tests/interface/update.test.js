// What comes of an update check, with stand-ins for the server.

import { equal, finish, test } from "./check.js";
import { look } from "../../interface/lib/update.js";

function updater(answer, err) {
    return { err: err, getAppVersion: (build) => answer(build) };
}

test("putsTheNotesIntoOneText", () => {
    equal(look(updater(() => [" 3.2\n", "Notes", "More\n"], null), 1), { kind: "newer", version: "3.2", notes: "Notes\n\nMore" });
    equal(look(updater(() => ["3.2", "", " "], null), 1), { kind: "newer", version: "3.2", notes: "" });
});

test("handsTheBuildOn", () => {
    equal(look(updater((build) => [String(build), "a", "b"], null), 120).version, "120");
});

test("tellsNoNewerVersionFromNoAnswer", () => {
    equal(look(updater(() => null, null), 1), { kind: "current" });
    equal(look(updater(() => null, "Cannot download"), 1), { kind: "failed" });
});

test("takesAnAnswerWithoutSenseForNone", () => {
    equal(look(updater(() => { throw new RangeError("no field 2"); }, null), 1), { kind: "failed" });
});

test("hidesNoOtherErrors", () => {
    let told = null;
    try {
        look(updater(() => { throw new TypeError("wrong call"); }, null), 1);
    } catch (error) {
        told = error.message;
    }
    equal(told, "wrong call");
});

finish();
