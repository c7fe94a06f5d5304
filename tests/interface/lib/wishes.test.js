// What the preferences store, with a stand-in for the user's defaults.

import { equal, finish, test } from "../check.js";
import { firstSettings, keepWish, wishes } from "../../../interface/lib/wishes.js";

function makeDefaults(text) {
    const kept = { Preferences: text };
    return { get: (key) => kept[key] === undefined ? null : kept[key], set: (key, value) => { kept[key] = value; } };
}

const USUAL = { ifTaken: "number", logRows: 100000, memory: 0, destination: "beside", sharesThumbnails: true,
                keepsList: false, processors: 0 };

for (const text of [undefined, "", "no JSON", "[]", "{\"ifTaken\":\"burn\",\"logRows\":-5}",
                    "{\"ifTaken\":7,\"logRows\":\"x\"}", "{\"memory\":7,\"destination\":\"moon\"}"]) {
    test("isAsUsualFor " + text, () => equal(wishes(makeDefaults(text)), USUAL));
}

test("keepsOneWishAndLeavesTheOther", () => {
    const defaults = makeDefaults("{\"ifTaken\":\"skip\"}");
    keepWish(defaults, "logRows", 1000);
    equal(wishes(defaults), Object.assign({}, USUAL, { ifTaken: "skip", logRows: 1000 }));
    keepWish(defaults, "processors", 3);
    equal(wishes(defaults).processors, 3);
    keepWish(defaults, "processors", -1);
    equal(wishes(defaults).processors, 0);
    keepWish(defaults, "keepsList", true);
    equal(wishes(defaults).keepsList, true);
    keepWish(defaults, "keepsList", "yes");
    equal(wishes(defaults).keepsList, false);
    keepWish(defaults, "memory", 2048);
    keepWish(defaults, "destination", "source");
    equal([wishes(defaults).memory, wishes(defaults).destination], [2048, "source"]);
});

test("startsAnActionAsWished", () => {
    const standard = { a: 1, output: { ifTaken: "number", type: "x" } };
    equal(firstSettings(makeDefaults("{\"ifTaken\":\"ask\"}"), standard),
          { a: 1, output: { ifTaken: "ask", type: "x" } });
    equal(standard.output.ifTaken, "number");
    equal(firstSettings(makeDefaults("{\"ifTaken\":\"ask\"}"), { a: 1 }), { a: 1 });
    const beside = { output: { destination: { kind: "beside", name: "n" } } };
    equal(firstSettings(makeDefaults("{\"destination\":\"source\"}"), beside),
          { output: { destination: { kind: "source", name: "n" } } });
});

finish();
