import { copyOf } from "../../../interface/lib/copies.js";
import { splitPath } from "../../../interface/lib/names.js";
import { planRun, targetFolder } from "../../../interface/runs/plan.js";
import { outputMessages } from "../../../interface/actions/shared/written.js";
import * as resize from "../../../interface/actions/resize/resize-step.js";
import { drain, equal, finish, test } from "../check.js";
import { FakeFiles, photo } from "../fakes.js";

function settings(ifTaken, destination, fileType) {
    const made = copyOf(resize.defaults);
    made.output.ifTaken = ifTaken;
    made.output.destination = destination || { kind: "folder", name: "", path: "/out" };
    made.output.fileType = fileType || made.output.fileType;
    return made;
}

const TYPES = { jpeg: ".jpg", png: ".png", gif: ".gif", tiff: ".tiff" };

// As the service answers: a JPEG is what is called one.
function answerFor(path, recipe) {
    const own = splitPath(path).extension.toLowerCase().replace("jpg", "jpeg").replace(/tif$/, "tiff");
    const type = recipe.outputs[0].type === "original" ? own : recipe.outputs[0].type;
    const isRefused = type === "psd";
    return { problem: isRefused ? "no" : "", isNotSupported: isRefused, type: type, width: 1600, height: 1200,
             extension: TYPES[type], lossless: false, leftOut: 0, losses: [], cut: {} };
}

function plan(photos, chosen, files, ask) {
    const services = { files: files, ask: ask || null, recipes: { planOutput: answerFor } };
    const work = planRun({ count: photos.length, at: (i) => photos[i], paths: photos.map((each) => each.path) }, resize,
                         chosen, services);
    return drain(work).result;
}

function names(planned) {
    return planned.items.map((item) => item.status === "ready" ? item.name : item.status);
}

// As the service makes recipes, which is not here.
const CURRENT_STEP = Object.assign({}, resize,
                                   { recipeFor: () => ({ operations: [{ do: "resize" }], outputs: [{}] }) });
const big = (path) => photo(path, 4000, 3000);
const messagesOn = (changes) => outputMessages(Object.assign(copyOf(resize.defaults.output), changes));
const SOURCE = { kind: "source", name: "", path: "" };

test("writesBesideTheOriginalIntoAFolderOfThatName", () => {
    const output = { destination: { kind: "beside", name: "Resized", path: "" }, keepSubfolders: true };
    equal(targetFolder(big("/p/a.jpg"), output), "/p/Resized");
});

const TREES = [
    ["/p", "/p/a.jpg", "/out"], ["/p", "/p/x/a.jpg", "/out/x"], ["/p", "/p/x/y/a.jpg", "/out/x/y"],
    ["/", "/p/x/a.jpg", "/out/p/x"], ["/", "/a.jpg", "/out"], ["", "/p/x/a.jpg", "/out"],
    [undefined, "/p/x/a.jpg", "/out"], ["/p", "/pool/a.jpg", "/out"],
];

for (const [root, path, folder] of TREES) {
    test("keepsTheFoldersBelow " + root + " of " + path, () => {
        const output = (keeps) => ({ destination: { kind: "folder", name: "", path: "/out" }, keepSubfolders: keeps });
        const found = Object.assign(big(path), { root: root });
        equal([targetFolder(found, output(true)), targetFolder(found, output(false))], [folder, "/out"]);
    });
}

test("tellsSizeNameAndPathOfEveryResult", () => {
    const item = plan([big("/p/a.JPG")], settings("number"), new FakeFiles({})).items[0];
    equal([item.status, item.name, item.path, item.width, item.height], ["ready", "a.jpg", "/out/a.jpg", 1600, 1200]);
});

test("numbersAResultWhoseNameIsTaken", () => {
    equal(names(plan([big("/p/a.jpg")], settings("number"), new FakeFiles({ "/out/a.jpg": 1 }))), ["a (2).jpg"]);
});

test("neverTakesTheNameOfTheOriginalByItself", () => {
    equal(names(plan([big("/p/a.jpg")], settings("number", SOURCE), new FakeFiles({ "/p/a.jpg": 1 }))), ["a (2).jpg"]);
});

for (const rule of ["number", "replace"]) {
    test("numbersTwoResultsOfOneRunWithOneName: " + rule, () => {
        equal(names(plan([big("/p/a.jpg"), big("/q/a.jpg")], settings(rule), new FakeFiles({}))),
              ["a.jpg", "a (2).jpg"]);
    });
}

test("skipsWhatIsThere", () => {
    const planned = plan([big("/p/a.jpg"), big("/p/b.jpg")], settings("skip"), new FakeFiles({ "/out/a.jpg": 1 }));
    equal(names(planned), ["Skipped", "b.jpg"]);
});

test("replacesUnderTheNameThatIsThere", () => {
    const item = plan([big("/p/a.JPG")], settings("replace", SOURCE), new FakeFiles({ "/p/a.JPG": 1 })).items[0];
    equal([item.name, item.replaces, item.replacesOriginal], ["a.JPG", true, true]);
});

test("neverReplacesAPictureThatIsStillToBeRead", () => {
    const files = new FakeFiles({ "/p/a.png": 1, "/p/a.jpg": 1 });
    const planned = plan([big("/p/a.png"), big("/p/a.jpg")], settings("replace", SOURCE, "public.jpeg"), files);
    equal(names(planned), ["a (2).jpg", "a.jpg"]);
    equal(planned.items.map((item) => item.replacesOriginal), [false, true]);
});

// "/other" and "/p/../p" lead to the folder of the originals.
for (const spelling of ["/other", "/p/../p"]) {
    const destination = { kind: "folder", name: "", path: spelling };
    const files = () =>
        Object.assign(new FakeFiles({ "/p/a.png": 1, "/p/a.jpg": 1 }), { same: { "/other": "/p", "/p/../p": "/p" } });

    test("knowsTheFolderOfTheOriginalsBySpelling: " + spelling, () => {
        const item = plan([big("/p/a.jpg")], settings("replace", destination), files()).items[0];
        equal([item.replaces, item.replacesOriginal, item.replaced], [true, true, "id /p/a.jpg"]);
    });

    test("neverReplacesAPictureThatIsStillToBeReadBySpelling: " + spelling, () => {
        const planned = plan([big("/p/a.png"), big("/p/a.jpg")], settings("replace", destination, "public.jpeg"),
                             files());
        equal(names(planned), ["a (2).jpg", "a.jpg"]);
    });
}

test("readsOnePictureTwiceBeforeItIsReplaced", () => {
    const files = Object.assign(new FakeFiles({ "/p/a.jpg": 1 }), { same: { "/other": "/p" } });
    equal(names(plan([big("/p/a.jpg"), big("/other/a.jpg")], settings("replace", SOURCE), files)),
          ["a (2).jpg", "a (3).jpg"]);
});

test("givesNamesOfOneFolderOnceHoweverItIsSpelled", () => {
    const files = Object.assign(new FakeFiles({}), { same: { "/q": "/p" } });
    equal(names(plan([big("/p/a.jpg"), big("/q/a.jpg")], settings("number", SOURCE), files)), ["a.jpg", "a (2).jpg"]);
});

for (const name of ["", ".", "..", "../in", "a/b", "/", "a\0b"]) {
    const destination = { kind: "beside", name: name, path: "" };

    test("refusesToSaveBesideUnderTheName " + JSON.stringify(name), () => {
        const item = plan([big("/p/a.jpg")], settings("replace", destination),
                          new FakeFiles({ "/p/a.jpg": 1 })).items[0];
        equal([item.status, item.replaces], ["Failed", false]);
        equal(messagesOn({ destination: destination }).length, 1);
    });
}

for (const path of ["", "in", "../in"]) {
    test("refusesToSaveIntoAFolderThatIsNoAbsolutePath: " + path, () => {
        const destination = { kind: "folder", name: "", path: path };
        equal(names(plan([big("/p/a.jpg")], settings("number", destination), new FakeFiles({}))), ["Failed"]);
        equal(messagesOn({ destination: destination }).length, 1);
    });
}

test("letsAFolderBesideHaveAnyPlainName", () => {
    equal(messagesOn({ destination: { kind: "beside", name: "..a b", path: "" } }), []);
});

for (const [pattern, count] of [["{name}-web", 0], ["{taken:yyyy} {counter:001}", 0], ["", 1], ["  ", 1],
                                ["{nowhere}", 1], ["a/{name}", 1], ["{name", 1]]) {
    test("takesNamesWithValues " + JSON.stringify(pattern), () => {
        equal(messagesOn({ namePattern: pattern }).length, count);
    });
}

test("neverReplacesAFolder", () => {
    equal(names(plan([big("/p/a.jpg")], settings("replace"), new FakeFiles({ "/out/a.jpg": "folder" }))),
          ["a (2).jpg"]);
});

test("asksOnceForAll", () => {
    let asked = 0;
    const ask = () => { asked += 1; return { rule: "skip", forAll: true }; };
    const files = new FakeFiles({ "/out/a.jpg": 1, "/out/b.jpg": 1 });
    equal(names(plan([big("/p/a.jpg"), big("/p/b.jpg")], settings("ask"), files, ask)), ["Skipped", "Skipped"]);
    equal(asked, 1);
});

test("stopsPlanningWhenTheAnswerIsCancel", () => {
    const files = new FakeFiles({ "/out/a.jpg": 1 });
    const planned = plan([big("/p/a.jpg"), big("/p/b.jpg")], settings("ask"), files,
                         () => ({ rule: "cancel", forAll: false }));
    equal([planned.cancelled, planned.items.length], [true, 1]);
});

test("saysThatItWillAskWhereNobodyCanBeAsked", () => {
    equal(plan([big("/p/a.jpg")], settings("ask"), new FakeFiles({ "/out/a.jpg": 1 })).items[0].asks, true);
});

const REFUSED = [
    ["a type that cannot be written", big("/p/a.psd"), undefined, "Not Supported"],
    ["a file that is no picture", photo("/p/a.jpg", 0, 0), undefined, "Failed"],
];

for (const row of REFUSED) {
    test("tells beforehand: " + row[0], () => {
        equal(names(plan([row[1]], settings("number", undefined, row[2]), new FakeFiles({}))), [row[3]]);
    });
}

test("givesAnUnwritableTypeAnotherOne", () => {
    equal(names(plan([big("/p/a.psd")], settings("number", undefined, "public.png"), new FakeFiles({}))), ["a.png"]);
});

// {path of the picture: path of the result that is up to date}
function planCurrent(photos, results, files, ifTaken) {
    const asked = [];
    const upToDate = (path, recipe, index, wanted) => {
        asked.push([path, recipe.operations.length > 0, index, wanted]);
        return results[path] || "";
    };
    const services = { files: files, ask: null, recipes: { planOutput: answerFor, upToDate: upToDate } };
    const work = planRun({ count: photos.length, at: (i) => photos[i], paths: photos.map((each) => each.path) },
                         CURRENT_STEP, settings(ifTaken || "current"), services);
    return { items: drain(work).result.items, asked: asked };
}

test("leavesOutWhatIsUpToDate", () => {
    const photos = [big("/p/a.jpg"), Object.assign(big("/p/b.jpg"), { index: 7 }), big("/p/c.jpg")];
    const made = planCurrent(photos, { "/p/a.jpg": "/out/a.jpg", "/p/b.jpg": "/out/b (2).jpg" },
                             new FakeFiles({ "/out/a.jpg": 1, "/out/b.jpg": 1, "/out/c.jpg": 1 }));
    equal(made.items.map((item) => [item.status, item.reason]),
          [["Skipped", "up to date"], ["Skipped", "up to date"], ["ready", ""]]);
    equal(made.items[2].name, "c (2).jpg"); // as where both are kept
    equal(made.asked[1], ["/p/b.jpg", true, 7, "/out/b.jpg"]);
});

test("asksForNoResultsUnderOtherRules", () => {
    for (const rule of ["number", "skip", "replace"]) {
        equal(planCurrent([big("/p/a.jpg")], { "/p/a.jpg": "/out/a.jpg" }, new FakeFiles({}), rule).asked, []);
    }
});

finish();
