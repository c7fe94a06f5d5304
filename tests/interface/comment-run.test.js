import {
    commentExample, commentMaker, commentProblem, commentsOf, editRow, editsOf, editWords, reverting, writeComment, writing,
} from "../../interface/lib/comment-run.js";
import { fill } from "../../interface/lib/wording.js";
import { drain, equal, finish, isTrue, test } from "./check.js";

// Files and their comments; "locked" cannot be written, "text" is no picture, "lying" says that it was written and was not.
function service(texts) {
    const meta = { hGetExifUc: (path) => texts[path] || "" };
    const files = {
        info: (path) => ({ exists: texts[path] !== undefined }),
        writeComment: (path, comment) => {
            if (path.indexOf("text") >= 0) {
                return "Cannot write the comment into " + path + ": this is not a picture";
            }
            if (path.indexOf("locked") >= 0) {
                return "Cannot write the comment into " + path + ": the file is write-protected";
            }
            if (path.indexOf("lying") < 0) {
                texts[path] = comment.trim() === "" ? "" : comment;
            }
            return "";
        },
    };
    return Object.assign(commentsOf(meta, files), { texts: texts });
}

test("writesAndSaysWhatWasThere", () => {
    const comments = service({ "/p/a.jpg": "old" });
    equal(writeComment(comments, "/p/a.jpg", "new"), { path: "/p/a.jpg", status: "OK", before: "old", after: "new", reason: "" });
    equal(writeComment(comments, "/p/a.jpg", "  ").status, "OK");
});

const UNABLE = [["/p/locked.gif", "write-protected"], ["/p/text.jpg", "not a picture"], ["/p/lying.jpg", "does not say"]];
for (const row of UNABLE) {
    test("says why " + row[0] + " did not take it", () => {
        const texts = {};
        texts[row[0]] = "old";
        const result = writeComment(service(texts), row[0], "new");
        equal([result.status, result.before, result.after], ["Failed", "old", "old"]);
        isTrue(result.reason.indexOf(row[1]) >= 0, result.reason);
    });
}

const FACTS = { taken: "2026-08-14T10:20:30", created: "", changed: "2025-01-02T00:00:00", camera: "", lens: "", type: "", bytes: 1, width: 1, height: 1 };

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
    const results = drain(writing(comments, ["/p/a.jpg", "/p/text.jpg", "/p/b.jpg", "/p/locked.jpg"], () => "new")).values;
    equal(results.map((each) => each.status), ["OK", "Failed", "OK", "Failed"]);
    const back = drain(reverting(comments, editsOf(results, "r1"))).values;
    equal(back.map((each) => [each.path, each.status, each.undoes]), [["/p/b.jpg", "OK", "r1"], ["/p/a.jpg", "OK", "r1"]]);
    equal(comments.texts, { "/p/a.jpg": "one", "/p/b.jpg": "two", "/p/locked.jpg": "three" });
});

// What stands in the file when an edit from "one" to "new" is reverted, and what becomes of it.
const REVERTS = [
    ["as it was written", "/p/a.jpg", "new", "OK", ""], ["changed since", "/p/a.jpg", "somebody else's", "Skipped", "“somebody else's”"],
    ["reverted before", "/p/a.jpg", "one", "Skipped", "old comment already"], ["gone", "/p/a.jpg", undefined, "Failed", "not there any more"],
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
    const edits = editsOf(drain(writing(comments, ["/p/a.jpg"], () => "new")).values, "r1");
    const again = editsOf(drain(reverting(comments, edits)).values, "r2");
    drain(reverting(comments, again));
    equal(comments.texts, { "/p/a.jpg": "new" });
});

test("logsTheOldAndTheNewComment", () => {
    const row = editRow({ path: "/p/a.jpg", status: "OK", reason: "", before: "old", after: "new" }, "Comment", "2026-11-21T10:00:00Z", "r1");
    equal([row.process, row.action, row.status, row.input, row.inputPath, row.outputPath, row.run, row.before, row.after, row.undoes],
          ["Metadata", "Comment", "OK", "a.jpg", "/p/a.jpg", "/p/a.jpg", "r1", "old", "new", undefined]);
    equal(editRow({ path: "/p/a.jpg", status: "OK", reason: "", before: "new", after: "old", undoes: "r1" }, "Revert", "", "r2").undoes, "r1");
});

test("saysWhatAnEditWas", () => {
    equal([editWords("a", "b"), editWords("", "b"), editWords("a", "")], ["“a” became “b”", "“b” was written", "“a” was emptied"]);
});

test("valuesThatLookLikePlacesStayAsTheyAre", () => {
    equal(fill("“%1” became “%2”", "%2 $& $1", "%1"), "“%2 $& $1” became “%1”");
    equal(fill("%1 of %3", 1), "1 of %3");
});

finish();
