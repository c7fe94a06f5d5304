// Calls the operations on files of the services of jobs with names that are no paths: each says so, and soon.

import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { pictures } from "quorlin/pictures";
import { recipes } from "quorlin/recipes";
import { runRecords } from "quorlin/records";
import { webPages } from "quorlin/web";

const NAMES = ["", ".", "a", "./a", "a/b/c", "zero\u0000b", "/none/../zero\u0000b", "\u0000", "~"];
const LONGEST_MS = 5000;
const done = { calls: 0, faults: 0 };

function call(object, name, list) {
    const start = Date.now();
    done.calls += 1;
    try {
        object[name].apply(object, list);
    } catch (error) {
        if (error.name !== "TypeError" && error.name !== "RangeError") {
            done.faults += 1;
            print("FAULT " + name + " throws " + error.name + ": " + error.message);
        }
    }
    if (Date.now() - start > LONGEST_MS) {
        done.faults += 1;
        print("FAULT " + name + " takes " + (Date.now() - start) + " ms");
    }
}

function callAll(object) {
    const names = Object.getOwnPropertyNames(Object.getPrototypeOf(object))
        .filter((name) => name !== "constructor" && name !== "toString");
    names.forEach((name) => {
        print(name); // of the one that does not end
        NAMES.forEach((path) => {
            for (let count = 0; count <= 5; count += 1) {
                call(object, name, Array(count).fill(path));
            }
            [[[path]], [[path], [path]], [path, [path]], [path, "", ""], [path, 1, 2], [path, true], [path, "x", false],
             [[path], [], [], []], [[{ kind: "move", from: path, to: path }]], [[{ kind: "copy", from: path, to: "/none/" + path }]],
             ["Title", [{ kind: "link", from: path, to: path, leader: -1 }]], [path, path, [path]], [path, {}], [path, path, {}]]
                .forEach((list) => call(object, name, list));
        });
    });
}

// The room of a disk and of its trash: -1 where nothing is known.
function checkSpaces() {
    const isSpace = (found) => Object.keys(found).sort().join() === "disk,free" && Number.isFinite(found.free) && Number.isFinite(found.disk)
        && found.free >= -1 && found.disk >= -1;
    ["space", "trashSpace"].forEach((name) => {
        NAMES.concat(["/", "/none/of/these", "x".repeat(10000)]).forEach((path) => {
            if (!isSpace(files[name](path))) {
                done.faults += 1;
                print("FAULT " + name + " of " + JSON.stringify(path.slice(0, 20)) + " answers " + JSON.stringify(files[name](path)));
            }
        });
        [[], [undefined], [1], [["/"]], [{}], ["/", "/"]].forEach((list) => {
            try {
                files[name].apply(files, list);
                done.faults += 1;
                print("FAULT " + name + " takes " + JSON.stringify(list));
            } catch (error) {
                done.faults += error.name === "TypeError" ? 0 : 1;
            }
        });
        done.calls += 1;
    });
}

checkSpaces();
[files, moves, pictures, recipes, runRecords, webPages].forEach(callAll);
print("\n" + done.faults + " faults in " + done.calls + " calls");
