// Calls every operation of every desk of the window, and of its own controls, with values of every wrong kind. What they answer
// is their own affair; the program must be there afterwards.

import { ZtImageHandling } from "quorlin";
import { TextField } from "quorlin/controls";
import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { panels } from "quorlin/panels";
import { pictures } from "quorlin/pictures";
import { program } from "quorlin/program";
import { shell } from "quorlin/shell";

/* global probeFolder: a folder that may be lost */
const holdsItself = [];
holdsItself.push(holdsItself);
const values = [
    null, undefined, "", 0, -1, 1.5, NaN, Infinity, 1e300, 4294967296, true, "x".repeat(100000), "a\u0000b", "\uD800", [], [[]],
    [null], holdsItself, {}, { length: -1 }, () => { throw new RangeError("called"); }, function* () { yield 1; }, new Date(NaN),
    new ArrayBuffer(8), new Map(), new Error("e"), new Proxy({}, { get() { throw new RangeError("proxy"); } }), new TextField(),
    new ZtImageHandling(), shell, files,
];
// What ends the program or waits for a person, and what belongs to every object or widget of the toolkit.
const skipped = ["quit", "ask", "toString", "destroy", "deleteLater", "toggleFullScreen"];

export const done = { calls: 0, slowest: "", slowestMs: 0 };

function ownNames(object, common) {
    const names = [];
    for (const name in object) {
        if (typeof object[name] === "function" && typeof object[name].connect !== "function" && skipped.indexOf(name) < 0 &&
            common.indexOf(name) < 0) {
            names.push(name);
        }
    }
    return names;
}

function call(object, name, list) {
    const start = Date.now();
    done.calls += 1;
    panels.cancel();
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

function callAll(object, common) {
    ownNames(object, common).forEach((name) => {
        values.forEach((value) => {
            for (let count = 0; count <= 4; count += 1) {
                call(object, name, Array(count).fill(value));
            }
            call(object, name, [probeFolder, value, value]);
            call(object, name, [value, probeFolder, []]);
        });
    });
}

export function callDesks() {
    [files, moves, pictures, program, shell, shell.theme, shell.job(), shell.timer(() => 1)].forEach((desk) => callAll(desk, []));
}

export function callControls() {
    const form = shell.loadForm("windows/main/main.ui");
    const common = ownNames(form.control("statusText"), []).concat(ownNames(form.control("centre"), []));
    for (const part of ["windows/main/main.ui", "windows/log/log.ui", "windows/hand/hand.ui", "windows/metadata/metadata.ui"]) {
        const each = shell.loadForm(part);
        each.names().forEach((name) => callAll(each.control(name), common));
        callAll(each, []);
        callAll(shell.sheetHost(each), []);
        callAll(shell.dropTarget(each), common);
        callAll(shell.largePreview(each), common);
        values.forEach((value) => {
            try {
                shell.sheetHost(each).sheet = value;
            } catch (error) {
                // it may refuse what it is given
            }
        });
    }
}
