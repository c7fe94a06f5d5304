// Gives every field, operation and signal of what a script of windows can reach values of every wrong kind, first alone and then in
// each place of an operation whose other places hold what it takes. What is answered is never undefined, what is raised is one of the
// errors of the contract, what is kept is of the kind that was there before; the program must be there afterwards.
//
// From the program: deadControls, deadForms (their windows are gone), formFiles, isLong.

import { ZtImageHandling } from "quorlin";
import { TextField } from "quorlin/controls";
import { files } from "quorlin/files";
import { moves } from "quorlin/moves";
import { pictures } from "quorlin/pictures";
import { recipes } from "quorlin/recipes";
import { program } from "quorlin/program";
import { shell } from "quorlin/shell";

const done = { calls: 0, kinds: 0, taken: 0, slowest: "", slowestMs: 0, faults: [] };
const form = shell.loadForm("windows/preferences/preferences.ui");
const holdsItself = [];
holdsItself.push([holdsItself], holdsItself);
const isItself = { a: 1 };
isItself.itself = isItself;
const thrower = () => { throw new RangeError("mine"); };
const evil = new Proxy({}, { get: thrower, set: thrower, has: thrower, ownKeys: thrower, getPrototypeOf: thrower });

function* steps() {
    yield 1;
}

const VALUES = [
    undefined, null, NaN, Infinity, -1, 1.5, 1e300, "", "abc", "\uD800", [], [[]], {}, holdsItself, isItself, thrower, Symbol("s"),
    new Date(), evil, Object.freeze({ path: "a" }), form.control("preferencesDone"), deadControls[0], deadForms[0], true, -2147483648,
    2147483647, "a\u0000b", "x".repeat(20000), new ArrayBuffer(4), new TextField(), new ZtImageHandling(), [NaN, -1, 1e300], [null],
    { length: -1 }, steps,
];

// What an operation takes in a place, by the words of the sentence that refuses undefined there.
const TAKEN = [
    [/^text, a number or null/, ["", 0]],
    [/^text/, ["abc", "", "/", "\uD800", "main"]],
    [/^a whole number/, [0, -1, 2147483647, -2147483648]],
    [/^a number/, [0, -1, 1e300, 5e-324]],
    [/^true or false/, [false, true]],
    [/^a list of texts/, [[], ["abc", "", "-"]]],
    [/^a list of objects/, [[], [form, form], [new TextField()]]],
    [/^a list/, [[], [{}], [1, "a", null], [true]]],
    [/^a dictionary/, [{}, { title: "t", text: "u", buttons: ["v"] }, { x: 1e300, width: -1 }, { edits: [{ do: "cut" }] }]],
    [/^a Form/, [form, null]],
    [/^a LogTable/, [null]],
    [/^a function/, [null, () => {}, thrower]],
    [/^a generator/, [steps()]],
    [/^a Picture/, [null]],
    [/^an? (control|Widget)/, [form.control("preferencesDone"), null]],
];

function tell(what) {
    if (done.faults.length < 30) {
        done.faults.push(what);
    }
}

const ERRORS = ["TypeError", "RangeError", "ReferenceError", "Error"];

function described(value) {
    return typeof value === "symbol" || VALUES.indexOf(value) >= 0 ? "value " + VALUES.indexOf(value) : typeof value;
}

/** What a call answers, or the error that it raises. */
function attempt(what, body) {
    const start = Date.now();
    done.calls += 1;
    let outcome = null;
    try {
        outcome = { value: body(), error: null };
    } catch (error) {
        outcome = { value: null, error: error };
        if (!(error instanceof Error) || ERRORS.indexOf(error.name) < 0 || error.message === "") {
            tell(what + " throws " + String(error));
        }
    }
    const spent = Date.now() - start;
    if (spent > done.slowestMs) {
        done.slowestMs = spent;
        done.slowest = what;
    }
    return outcome;
}

function call(object, name, list) {
    const what = object + "." + name + "(" + list.map(described).join(", ") + ")";
    const outcome = attempt(what, () => object[name](...list));
    if (outcome.error === null) {
        done.taken += 1;
        if (outcome.value === undefined) {
            tell(what + " answers undefined");
        }
    }
    return outcome;
}

function placesOf(object, name) {
    const told = attempt(name, () => object[name](...Array(40).fill(null)));
    const found = told.error === null ? null : / takes (no|\d+) arguments? but received 40/.exec(told.error.message);
    if (found === null) {
        tell(object + "." + name + " takes 40 arguments");
    }
    return found === null || found[1] === "no" ? 0 : Number(found[1]);
}

/** For each place some values that an operation takes there. */
function choicesOf(object, name, places) {
    const choices = [];
    while (choices.length < places) {
        const list = choices.map((each) => each[0]).concat(Array(places - choices.length).fill(Symbol("none")));
        const told = call(object, name, list).error;
        const words = told === null ? null : /^Expected (.*) for .* but received a symbol$/.exec(told.message);
        const row = words === null ? undefined : TAKEN.find((each) => each[0].test(words[1]));
        if (row === undefined && words !== null) {
            tell(object + "." + name + ": what is " + words[1] + "?");
        }
        choices.push(row === undefined ? [null] : row[1]);
    }
    return choices;
}

function callOperation(object, name) {
    const places = placesOf(object, name);
    const usual = choicesOf(object, name, places);
    for (let count = 0; count < places; count += 1) {
        call(object, name, Array(count).fill(""));
    }
    if (places === 0) {
        call(object, name, []);
    }
    for (let at = 0; at < places; at += 1) {
        VALUES.concat(usual[at]).forEach((value) => {
            const list = usual.map((each) => each[0]);
            list[at] = value;
            call(object, name, list);
        });
    }
    if (isLong) {
        VALUES.forEach((value) => call(object, name, Array(places).fill(value)));
        callPairs(object, name, usual);
    }
}

/** Everything that is taken in one place with everything that is taken in another. */
function callPairs(object, name, usual) {
    for (let one = 0; one < usual.length; one += 1) {
        for (let other = one + 1; other < usual.length; other += 1) {
            usual[one].forEach((first) => usual[other].forEach((second) => {
                const list = usual.map((each) => each[0]);
                list[one] = first;
                list[other] = second;
                call(object, name, list);
            }));
        }
    }
}

function setField(object, name) {
    const before = attempt(name, () => object[name]).value;
    VALUES.concat([0, false, ["a", "b"]]).forEach((value) => {
        const what = object + "." + name + " = " + described(value);
        const outcome = attempt(what, () => { object[name] = value; });
        const after = attempt(what, () => object[name]).value;
        const isSame = typeof after === typeof before && Array.isArray(after) === Array.isArray(before);
        if (!isSame && !(before === null || after === null)) {
            tell(what + " left " + typeof after + " where there was " + typeof before);
        }
        done.taken += outcome.error === null ? 1 : 0;
    });
    if (attempt(name, () => object[name] !== before).value === true && typeof before !== "object") {
        attempt(name, () => { object[name] = before; });
    }
}

function connectTo(object, name) {
    VALUES.forEach((value) => {
        const outcome = attempt(name, () => object[name].connect(value));
        if (outcome.error === null && typeof value !== "function") {
            tell(object + "." + name + " connects " + described(value));
        }
    });
    [[], [thrower, thrower]].forEach((list) => {
        if (attempt(name, () => object[name].connect(...list)).error === null) {
            tell(object + "." + name + " connects " + list.length + " functions");
        }
    });
}

function isSignal(object, name) {
    const value = attempt(name, () => object[name]).value;
    return typeof value === "object" && value !== null && !Array.isArray(value) && Object.keys(value).join() === "connect";
}

function refusesWhatItHasNot(object) {
    if (attempt("noSuchThing", () => { object.noSuchThing = 1; }).error === null || "noSuchThing" in object) {
        tell(object + " keeps an unknown field");
    }
    ["noSuchThing", "deleteLater", "setParent", "parent", "destroyed", "objectName"].forEach((name) => {
        if (attempt(name, () => object[name]).error === null) {
            tell(object + " has " + name);
        }
    });
    if (!Object.isFrozen(object) || attempt("new", () => new object.constructor()).error === null) {
        tell(object + " can be changed or made");
    }
}

function attack(object, passedOver) {
    done.kinds += 1;
    refusesWhatItHasNot(object);
    Object.getOwnPropertyNames(object).forEach((name) => {
        if (isSignal(object, name)) {
            connectTo(object, name);
        } else {
            setField(object, name);
        }
    });
    Object.getOwnPropertyNames(Object.getPrototypeOf(object))
        .filter((name) => name !== "constructor" && name !== "toString" && passedOver.indexOf(name) < 0)
        .forEach((name) => callOperation(object, name));
}

/** One control of each kind, from whatever form has one. */
function controlsOfAllKinds() {
    const found = {};
    formFiles.forEach((file) => {
        const each = shell.loadForm(file);
        each.names().forEach((name) => {
            const control = each.control(name);
            found[String(control)] = found[String(control)] || control;
        });
    });
    found.drops = shell.dropTarget(form);
    found.large = shell.largePreview(form);
    return found;
}

function refusesTheDead(object) {
    Object.getOwnPropertyNames(object).forEach((name) => {
        const read = attempt(name, () => (isSignal(object, name) ? object[name].connect(steps) : object[name]));
        if (read.error === null || !/ that is gone$/.test(read.error.message)) {
            tell("a dead " + object + " answers " + name);
        }
    });
}

// It ends the program, as it says.
attack(shell, ["quit"]);
[program, files, moves, pictures, recipes].forEach((each) => attack(each, []));
[form, shell.theme, shell.sheetHost(form), shell.timer(thrower), shell.job()].forEach((each) => attack(each, []));
const controls = controlsOfAllKinds();
Object.keys(controls).forEach((name) => attack(controls[name], []));
deadControls.forEach(refusesTheDead);
deadForms.forEach((each) => attack(each, []));

export const result = {
    faults: done.faults, calls: done.calls, kinds: done.kinds, taken: done.taken, slowest: done.slowest, slowestMs: done.slowestMs,
    controls: Object.keys(controls).sort().join(" "),
};
