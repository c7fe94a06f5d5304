import {
    commentExample, commentMaker, commentProblem, commentsOf, editRow, editsOf, editWords, pagesAtStake, reverting,
        writing,
} from "../../../interface/runs/comment-run.js";
import { fill } from "../../../interface/lib/wording.js";
import { drain, equal, finish, isTrue, test } from "../check.js";

// Files and their comments; "locked" cannot be written, "text" is no picture, "lying" says that it was written and was not, "secret" cannot
// be read, "fickle" only until it was written, and "pages" has two further pages, which a comment takes out.
function service(texts) {
    const files = {
        info: (path) => ({ exists: texts[path] !== undefined }),
        pagesLostToComment: (path) => (path.indexOf("pages") >= 0 && !texts.taken ? 2 : 0),
        readComment: (path) => (path.indexOf("secret") >= 0 || (path.indexOf("fickle") >= 0 && texts.taken)
            ? { comment: "", problem: "Cannot read " + path } : { comment: texts[path] || "", problem: "" }),
        writeComment: (path, comment) => {
            if (path.indexOf("text") >= 0) {
                return "Cannot write the comment into " + path + ": this is not a picture";
            }
            if (path.indexOf("locked") >= 0) {
                return "Cannot write the comment into " + path + ": the file is write-protected";
            }
            if (path.indexOf("lying") < 0) {
                texts[path] = comment;
            }
            if (path.indexOf("fickle") >= 0 || path.indexOf("pages") >= 0) {
                texts.taken = true;
            }
            return "";
        },
    };
    return Object.assign(commentsOf(files), { texts: texts });
}

function writeComment(comments, path, comment) {
    return drain(writing(comments, [path], () => comment, false)).values[0];
}

function atStake(comments, paths) {
    return drain(pagesAtStake(comments, paths)).result;
}

test("writesAndSaysWhatWasThere", () => {
    const comments = service({ "/p/a.jpg": "old" });
    equal(writeComment(comments, "/p/a.jpg", "new"),
          { path: "/p/a.jpg", status: "OK", before: "old", after: "new", reason: "" });
    equal(writeComment(comments, "/p/a.jpg", "  "),
          { path: "/p/a.jpg", status: "OK", before: "new", after: "  ", reason: "" });
});

test("aCommentThatCannotBeReadIsNotOverwritten", () => {
    const comments = service({ "/p/secret.jpg": "old" });
    equal(writeComment(comments, "/p/secret.jpg", "new"),
          { path: "/p/secret.jpg", status: "Failed", reason: "Cannot read /p/secret.jpg", before: "", after: "" });
    const back = drain(reverting(comments, [{ path: "/p/secret.jpg", before: "", after: "new", run: "r1" }])).values[0];
    equal([back.status, back.reason, comments.texts["/p/secret.jpg"]], ["Failed", "Cannot read /p/secret.jpg", "old"]);
});

test("aCommentThatCannotBeReadBackIsWrittenAllTheSame", () => {
    equal(writeComment(service({ "/p/fickle.jpg": "old" }), "/p/fickle.jpg", "new"),
          { path: "/p/fickle.jpg", status: "OK", before: "old", after: "new", reason: "" });
});

test("leavesFilesWithSeveralPagesOutUnlessAskedFor", () => {
    const comments = service({ "/p/pages.tif": "old", "/p/a.jpg": "old" });
    const left = drain(writing(comments, ["/p/pages.tif", "/p/a.jpg"], () => "new", false)).values;
    equal(left.map((each) => [each.status, each.pages]), [["Skipped", undefined], ["OK", undefined]]);
    isTrue(left[0].reason.indexOf("2 more pages") >= 0, left[0].reason);
    equal(comments.texts["/p/pages.tif"], "old");
    const back = drain(reverting(comments,
                                 [{ path: "/p/pages.tif", before: "older", after: "old", run: "r1" }])).values[0];
    equal([back.status, comments.texts["/p/pages.tif"]], ["Skipped", "old"]);
    const done = drain(writing(comments, ["/p/pages.tif"], () => "new", true)).values[0];
    equal([done.status, done.pages, comments.texts["/p/pages.tif"]], ["OK", 2, "new"]);
    isTrue(done.reason.indexOf("2 more pages were removed") >= 0, done.reason);
});

test("countsThePagesAtStake", () => {
    const comments = commentsOf({ readComment: () => ({ comment: "", problem: "" }),
                                  pagesLostToComment: (path) => (path.indexOf("t") >= 0 ? path.length : 0) });
    equal(atStake(comments, ["/a/x.jpg", "/a/t.tif", "/a/tt.tif"]),
          { files: 2, pages: 17, words: "t.tif (8), tt.tif (9)" });
    equal(atStake(comments, Array.from({ length: 7 }, (each, index) => "/a/" + index + "t")).words,
          "0t (5), 1t (5), 2t (5), 3t (5), 4t (5), 2 more files");
    equal(atStake(comments, ["/a/x.jpg"]), { files: 0, pages: 0, words: "" });
});

const UNABLE = [["/p/locked.gif", "write-protected"], ["/p/text.jpg", "not a picture"],
                ["/p/lying.jpg", "does not contain what was written"]];
for (const row of UNABLE) {
    test("says why " + row[0] + " did not take it", () => {
        const texts = {};
        texts[row[0]] = "old";
        const result = writeComment(service(texts), row[0], "new");
        equal([result.status, result.before, result.after], ["Failed", "old", "old"]);
        isTrue(result.reason.indexOf(row[1]) >= 0, result.reason);
    });
}

const FACTS = { taken: "2026-08-14T10:20:30", created: "", changed: "2025-01-02T00:00:00", camera: "", lens: "",
                type: "", bytes: 1, size: "1 byte", width: 1, height: 1 };

test("putsTokensIntoComments", () => {
    const comment = commentMaker("{name}, {date:yyyy}, {counter:01}", { facts: () => FACTS });
    equal([comment("/p/a b.jpg", 0), comment("/p/c.jpg", 1)], ["a b, 2026, 01", "c, 2026, 02"]);
    const untaken = commentMaker("{date}", { facts: () => Object.assign({}, FACTS, { taken: "" }) });
    equal(untaken("/p/a.jpg", 0), "2025-01-02");
    equal(commentMaker("plain", { facts: () => { throw new Error("not asked for"); } })("/p/a.jpg", 0), "plain");
    equal(commentProblem("{name} and {{"), "");
    isTrue(commentProblem("{nonsense}") !== "");
});

test("givesAnExampleOfAPictureOrOfAMadeUpOne", () => {
    const files = { facts: () => FACTS };
    equal(commentExample("{name} {date} {counter}", "/p/a.jpg", files), { name: "a.jpg", comment: "a 2026-08-14 1" });
    equal(commentExample("{name} {date} {counter} {camera} {size}", "", files),
          { name: "IMG_4711.JPG", comment: "IMG_4711 2026-08-14 1 Canon EOS 40D 2.4 MB" });
});

test("writesAllAndRevertsThemFromTheLastOn", () => {
    const comments = service({ "/p/a.jpg": "one", "/p/b.jpg": "two", "/p/locked.jpg": "three" });
    const results = drain(writing(comments, ["/p/a.jpg", "/p/text.jpg", "/p/b.jpg", "/p/locked.jpg"], () => "new",
                                  false)).values;
    equal(results.map((each) => each.status), ["OK", "Failed", "OK", "Failed"]);
    const back = drain(reverting(comments, editsOf(results, "r1"))).values;
    equal(back.map((each) => [each.path, each.status, each.undoes]),
          [["/p/b.jpg", "OK", "r1"], ["/p/a.jpg", "OK", "r1"]]);
    equal(comments.texts, { "/p/a.jpg": "one", "/p/b.jpg": "two", "/p/locked.jpg": "three" });
});

// The content of the file when an edit from "one" to "new" is reverted, and the outcome.
const REVERTS = [
    ["as it was written", "/p/a.jpg", "new", "OK", ""],
    ["changed since", "/p/a.jpg", "somebody else's", "Skipped", "“somebody else's”"],
    ["reverted before", "/p/a.jpg", "one", "Skipped", "already has its old comment"],
    ["gone", "/p/a.jpg", undefined, "Failed", "no longer exists"],
    ["locked", "/p/locked.jpg", "new", "Failed", "write-protected"],
];
for (const row of REVERTS) {
    test("reverts a comment that is " + row[0], () => {
        const texts = {};
        if (row[2] !== undefined) {
            texts[row[1]] = row[2];
        }
        const comments = service(texts);
        const result = drain(reverting(comments, [{ path: row[1], before: "one", after: "new", run: "r1" }])).values[0];
        equal([result.status, texts[row[1]]], [row[3], row[3] === "OK" ? "one" : row[2]]);
        isTrue(row[4] === "" ? result.reason === "" : result.reason.indexOf(row[4]) >= 0, result.reason);
    });
}

test("aRevertCanBeReverted", () => {
    const comments = service({ "/p/a.jpg": "one" });
    const edits = editsOf(drain(writing(comments, ["/p/a.jpg"], () => "new", false)).values, "r1");
    const again = editsOf(drain(reverting(comments, edits)).values, "r2");
    drain(reverting(comments, again));
    equal(comments.texts, { "/p/a.jpg": "new" });
});

test("logsTheOldAndTheNewComment", () => {
    const row = editRow({ path: "/p/a.jpg", status: "OK", reason: "", before: "old", after: "new" }, "Comment",
                        "2026-11-21T10:00:00Z", "r1");
    equal([row.process, row.action, row.status, row.input, row.inputPath, row.outputPath, row.run, row.before,
           row.after, row.undoes],
          ["Metadata", "Comment", "OK", "a.jpg", "/p/a.jpg", "/p/a.jpg", "r1", "old", "new", undefined]);
    equal(editRow({ path: "/p/a.jpg", status: "OK", reason: "", before: "new", after: "old", undoes: "r1" }, "Revert",
                  "", "r2").undoes, "r1");
});

test("saysWhatAnEditWas", () => {
    equal([editWords("a", "b"), editWords("", "b"), editWords("a", "")],
          ["“a” became “b”", "“b” was written", "“a” was cleared"]);
});

test("valuesThatLookLikePlacesStayAsTheyAre", () => {
    equal(fill("“%1” became “%2”", "%2 $& $1", "%1"), "“%2 $& $1” became “%1”");
    equal(fill("%1 of %3", 1), "1 of %3");
});

finish();
