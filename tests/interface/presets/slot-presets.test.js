import { presets } from "../../../interface/actions/hand/hand-presets.js";
import { defaults } from "../../../interface/actions/hand/hand-step.js";
import { presetOf, rowOf } from "../../../interface/presets/presets.js";
import { dbViewController } from "quorlin";
import { equal, finish, isTrue, test } from "../check.js";

const KINDS = { hand: { form: presets.form, standard: defaults } };
const ODD = ["it's", "a|b", "100 %", "%27", "Größe – “x”", "日本語", "🙂🏔️", "e\u0301", "a\tb", "'; DROP TABLE Presets; --",
             "0050", "1e3"];

function settingsWith(slots, mode) {
    return { mode: mode || "move", slots: slots };
}

function all59(label) {
    return Array(59).fill("").map((none, i) => ({ path: "/s/" + (i + 1), label: label }));
}

function readBack(settings) {
    return presetOf(rowOf(presets.form, "n", settings).join("|"), KINDS);
}

const CASES = [settingsWith([]), settingsWith([{ path: "/", label: "" }]), settingsWith(all59(""), "copy"),
               settingsWith(all59("Lake"), "link"),
               settingsWith(ODD.map((text) => ({ path: "/s/" + text, label: text })))];
CASES.forEach((settings, i) => {
    test("comesBackAsItWas " + i, () => {
        const preset = readBack(settings);
        equal([preset.state, preset.action, preset.process, preset.note], ["ready", "hand", "Sorting", ""]);
        equal(preset.settings, settings);
    });
});

test("aFolderLiesInEachColumnAndTheMarkInAction", () => {
    const row = rowOf(presets.form, "n", settingsWith(all59("Lake"), "copy"));
    equal([row.length, row[1], row[2], row[3], row[61]],
          [62, "Sorting", "ByHand Quorlin 1 copy", "/s/1%0ALake", "/s/59%0ALake"]);
    isTrue(row.every((value) => !/['|\u0000-\u001f]/.test(value)));
    equal(rowOf(presets.form, "n", settingsWith([{ path: "/s/1", label: "" }]))[4], "");
});

test("refusesMoreFoldersThanThereAreColumns", () => {
    let message = "none";
    try {
        rowOf(presets.form, "n", settingsWith(all59("").concat([{ path: "/x", label: "" }])));
    } catch (error) {
        message = error.message;
    }
    equal(message, "A preset has up to 59 folders");
});

const HEADS = [["ByHand", "unknown"], ["ByHand Quorlin 0 move", "unknown"], ["byhand Quorlin 1 move", "unknown"],
               ["ByHand Quorlin 1", "unknown"],
               ["ByHand Quorlin 2 move", "newer"], ["ByHand Quorlin 1 burn", "damaged"],
               ["ByHand Quorlin 1 ", "damaged"], ["Quorlin 1 move", "unknown"]];
for (const [head, state] of HEADS) {
    test("a row with " + JSON.stringify(head) + " is " + state, () => {
        const row = rowOf(presets.form, "n", settingsWith([{ path: "/s/1", label: "" }]));
        row[2] = head;
        const preset = presetOf(row.join("|"), KINDS);
        equal([preset.state, preset.settings], [state, null]);
    });
}

for (const text of ["Loc1", "%", "%2", "s/1", "/a%0Ab%0Ac", "17"]) {
    test("a folder " + JSON.stringify(text) + " is damaged", () => {
        const row = rowOf(presets.form, "n", settingsWith([{ path: "/s/1", label: "" }]));
        row[20] = text;
        equal(presetOf(row.join("|"), KINDS).state, "damaged");
    });
}

test("comesBackFromTheDatabase", () => {
    const db = new dbViewController();
    db.linkToPresetsDB();
    const settings = settingsWith(all59("")
                                      .map((slot, i) =>
                                          ({ path: "/s/" + ODD[i % ODD.length] + i,
                                             label: i % 2 ? ODD[i % ODD.length] : "" })), "copy");
    const name = "slots " + Date.now();
    db.insertSortingPresetToDB01(rowOf(presets.form, name, settings));
    const rows = db.checkForActionType("Presets", "NameOfPreset", name).slice();
    equal(rows.length, 1);
    equal(presetOf(rows[0], KINDS).settings, settings);
    db.removePresetFromDatabase("Presets", "NameOfPreset", name);
});

finish();
