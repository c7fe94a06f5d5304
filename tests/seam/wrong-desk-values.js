// Calls every operation of the services of jobs with values of every wrong kind. What they answer is their own affair, but it is
// never undefined, and what they raise is a TypeError or a RangeError; the program must be there afterwards, and soon.
//
// Arguments: a folder that may be lost, and "pairs" for more arguments at a time.

import { ZtImageHandling } from "quorlin";
import { TextField } from "quorlin/controls";
import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { pictures } from "quorlin/pictures";
import { recipes } from "quorlin/recipes";

const probeFolder = scriptArguments[0] + "/probe";
const most = scriptArguments[1] === "pairs" ? 4 : 2;
const holdsItself = [];
holdsItself.push(holdsItself);
const values = [
    holdsItself,
    null, undefined, "", 0, -1, 1.5, NaN, Infinity, 1e300, 4294967296, true, "x".repeat(100000), "a\u0000b", "\uD800", [], [[]],
    [null], {}, { length: -1 }, () => { throw new RangeError("called"); }, function* () { yield 1; }, new Date(NaN),
    new ArrayBuffer(8), new Map(), new Error("e"), new Proxy({}, { get() { throw new RangeError("proxy"); } }), new TextField(),
    new ZtImageHandling(), files,
];
const done = { calls: 0, faults: 0, slowest: "", slowestMs: 0 };

function ownNames(object) {
    return Object.getOwnPropertyNames(Object.getPrototypeOf(object)).filter((name) => name !== "constructor" && name !== "toString");
}

function tell(what) {
    done.faults += 1;
    print("FAULT " + what);
}

function call(object, name, list) {
    const start = Date.now();
    done.calls += 1;
    try {
        if (object[name].apply(object, list) === undefined) {
            tell(name + " answers undefined");
        }
    } catch (error) {
        // A getter or function of the script's own may say what it likes.
        if (error.name !== "TypeError" && error.name !== "RangeError") {
            tell(name + " throws " + error.name + ": " + error.message);
        }
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

[files, moves, pictures, recipes].forEach(callAll);
if (done.slowestMs > 10000) {
    tell(done.slowest + " takes " + done.slowestMs + " ms");
}
print(done.faults + " faults in " + done.calls + " calls");
