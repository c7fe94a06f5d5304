// Calls every operation of the desks with values of every wrong kind. What they answer is their own affair; the program must be
// there afterwards, and soon. Lists that hold themselves are left out: the engine does not end with their text.
//
// Arguments: a folder that may be lost, and "pairs" for more arguments at a time.

import { ZtImageHandling } from "quorlin";
import { TextField } from "quorlin/controls";
import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { pictures } from "quorlin/pictures";

const probeFolder = scriptArguments[0] + "/probe";
const most = scriptArguments[1] === "pairs" ? 4 : 2;
const values = [
    null, undefined, "", 0, -1, 1.5, NaN, Infinity, 1e300, 4294967296, true, "x".repeat(100000), "a\u0000b", "\uD800", [], [[]],
    [null], {}, { length: -1 }, () => { throw new RangeError("called"); }, function* () { yield 1; }, new Date(NaN),
    new ArrayBuffer(8), new Map(), new Error("e"), new Proxy({}, { get() { throw new RangeError("proxy"); } }), new TextField(),
    new ZtImageHandling(), files,
];
// What belongs to every object of the toolkit.
const skipped = ["toString", "destroy", "deleteLater", "objectNameChanged"];

const done = { calls: 0, slowest: "", slowestMs: 0 };

function ownNames(object) {
    const names = [];
    for (const name in object) {
        if (typeof object[name] === "function" && skipped.indexOf(name) < 0) {
            names.push(name);
        }
    }
    return names;
}

function call(object, name, list) {
    const start = Date.now();
    done.calls += 1;
    try {
        object[name].apply(object, list);
    } catch (error) {
        // it may refuse what it is given
    }
    if (Date.now() - start > done.slowestMs) {
        done.slowestMs = Date.now() - start;
        done.slowest = name + "(" + list.map((value) => typeof value + "#" + values.indexOf(value)).join(", ") + ")";
    }
}

function callAll(object) {
    ownNames(object).forEach((name) => {
        values.forEach((value) => {
            for (let count = 0; count <= most; count += 1) {
                call(object, name, Array(count).fill(value));
            }
            call(object, name, [probeFolder, value, value]);
            call(object, name, [value, probeFolder, []]);
        });
    });
}

[files, moves, pictures].forEach(callAll);
print((done.slowestMs > 10000 ? "1 faults, " + done.slowest : "0 faults") + " in " + done.calls + " calls");
