// Calls every operation, and sets every field, of every service, stand-in and desk with values of every wrong kind.
// It prints violations of the contract: an answer that is undefined, or an error of a kind that no operation raises.
//
// Arguments: a separate folder, and "pairs" for two wrong values at a time as well.

import { Messenger, MyModel, MyObjectControler, Picture, ZtFFullScreen, ZtImageHandling, Ztbookmarks, cEditMetaData, cMConversion,
         cNSFileHandling, cNSStringHandling, cPrint, cSheetControl, cToolBox, dbViewController, mMeta, mainViewController,
         mainWindowClass, my2ndPhotoView, myMainPhotoView } from "quorlin";
import { ArrayController, CheckBox, ColorWell, PopUpButton, ProgressIndicator, SegmentedControl, TabView, TableView, TextField,
         TextView, TreeController, Window } from "quorlin/controls";
import { defaults } from "quorlin/defaults";
import { panels } from "quorlin/panels";

const CLASSES = [
    Messenger, MyModel, MyObjectControler, ZtFFullScreen, ZtImageHandling, Ztbookmarks, cEditMetaData, cMConversion,
    cNSFileHandling, cNSStringHandling, cPrint, cSheetControl, cToolBox, dbViewController, mMeta, mainViewController,
    mainWindowClass, my2ndPhotoView, myMainPhotoView, ArrayController, CheckBox, ColorWell, PopUpButton, ProgressIndicator,
    SegmentedControl, TabView, TableView, TextField, TextView, TreeController, Window,
];
const KNOWN = ["TypeError", "RangeError", "InternalInconsistency"];

const folder = scriptArguments[0];
const inPairs = scriptArguments[1] === "pairs";

const holdsItself = [];
holdsItself.push(holdsItself);
let branching = [];
for (let i = 0; i < 8; i += 1) {
    branching = [branching, branching];
}
const released = (() => {
    const picture = Picture.open(folder + "/p.png");
    picture.release();
    return picture;
})();

const VALUES = [
    null, undefined, "", 0, -0, -1, 1.5, NaN, Infinity, -Infinity, 1e300, 4294967296, 2147483648, true, false,
    "x".repeat(300000), "a\u0000b", "\uD800", "\uFEFF", "'; --", "%1%s%n", folder + "/none/\u0000/x.png",
    [], [[]], [null], [undefined], holdsItself, branching, {}, { __proto__: null }, JSON.parse("{\"__proto__\": 1}"), { length: -1 },
    { get width() { throw new RangeError("getter"); } }, () => { throw new RangeError("called"); }, function* () { yield 1; }, class {},
    Symbol("s"), new Date(NaN), new Date(8.64e15), new ArrayBuffer(0), new ArrayBuffer(16), new Uint8Array(3), new Map(), /x/,
    new Error("e"), new Promise(() => {}), new Proxy({}, { get() { throw new RangeError("proxy"); } }), new Proxy(() => {}, {}),
    new Proxy([], {}), { then: 3 }, new TextField(), new cNSStringHandling(), Object.create(new cNSStringHandling()), released, Picture,
    cToolBox,
];
const PLAIN = [folder + "/p.png", 1, [], {}, null];

let calls = 0;
let faults = 0;

// Never converted to text: with a list that contains itself the engine does not end.
function said(value) {
    if (typeof value === "string") {
        return JSON.stringify(value.slice(0, 30));
    }
    const isPlain = value === null || ["object", "function", "symbol"].indexOf(typeof value) < 0;
    return (isPlain ? String(value) : typeof value) + "#" + VALUES.indexOf(value);
}

function tell(what) {
    faults += 1;
    print("FAULT " + what);
}

// One call; what it may not do is answer undefined, throw what no operation raises, or take for ever.
function probe(what, body) {
    calls += 1;
    const start = Date.now();
    try {
        if (body() === undefined) {
            tell(what + " answers undefined");
        }
    } catch (error) {
        const name = error instanceof Error ? error.name : "no error: " + said(error);
        // A getter or function of the script's own may say what it likes.
        if (KNOWN.indexOf(name) < 0) {
            tell(what + " throws " + name + ": " + error.message);
        }
    }
    if (Date.now() - start > 10000) {
        tell(what + " takes " + (Date.now() - start) + " ms");
    }
}

function arityOf(owner, name) {
    try {
        owner[name].apply(owner, Array(99).fill(null));
    } catch (error) {
        const match = /takes (\d+) argument/.exec(error.message);
        return match ? Number(match[1]) : 0;
    }
    return 0;
}

const keeper = new cNSFileHandling();
const pixels = keeper.readNSDataFromFile(folder + "/p.png");

function callAll(owner, name, label) {
    keeper.writeNSDataToFile(pixels, folder + "/p.png"); // operations may have done away with it
    const count = arityOf(owner, name);
    const call = (list) => {
        panels.cancel();
        probe(label + "." + name + "(" + list.map(said).join(", ") + ")", () => owner[name].apply(owner, list));
    };
    call([]);
    VALUES.forEach((value) => {
        call(Array(count).fill(value));
        for (const plain of PLAIN) {
            for (let i = 0; i < count && count < 10; i += 1) {
                const list = Array(count).fill(plain);
                list[i] = value;
                call(list);
            }
        }
        for (let i = 0; inPairs && i + 1 < count && count < 10; i += 1) {
            VALUES.forEach((other) => {
                const list = Array(count).fill(folder + "/p.png");
                list[i] = value;
                list[i + 1] = other;
                call(list);
            });
        }
    });
}

function setAll(object, name, label) {
    VALUES.concat(PLAIN).forEach((value) => {
        probe(label + "." + name + " = " + said(value), () => { object[name] = value; return null; });
        probe(label + "." + name, () => object[name]);
    });
    try {
        object[name] = null;
    } catch (error) {
        // it stays as it is
    }
}

const SKIPPED = ["constructor", "toString", "name", "prototype", "length"];

CLASSES.forEach((make) => {
    const label = make.name;
    const object = new make();
    Object.keys(object).forEach((name) => setAll(object, name, label));
    Object.getOwnPropertyNames(Object.getPrototypeOf(object)).filter((name) => SKIPPED.indexOf(name) < 0)
        .forEach((name) => callAll(object, name, label));
    Object.getOwnPropertyNames(make).filter((name) => SKIPPED.indexOf(name) < 0).forEach((name) => callAll(make, name, label));
    VALUES.forEach((value) => probe("new " + label + "(" + said(value) + ")", () => new make(value)));
    gc();
});

const picture = Picture.open(folder + "/p.png");
Object.getOwnPropertyNames(Object.getPrototypeOf(picture)).filter((name) => SKIPPED.indexOf(name) < 0)
    .forEach((name) => callAll(picture, name, "Picture"));

for (const module of [["defaults", defaults, ["get", "set", "remove"]], ["panels", panels, ["accept"]]]) {
    for (const name of module[2]) {
        VALUES.forEach((value) => {
            const own = () => { const answer = module[1][name](value); return answer === undefined ? null : answer; };
            probe(module[0] + "." + name + "(" + said(value) + ")", own);
            const two = () => { const answer = module[1][name](value, value); return answer === undefined ? null : answer; };
            probe(module[0] + "." + name + "(twice " + said(value) + ")", two);
        });
    }
}

print(faults + " faults in " + calls + " calls");
