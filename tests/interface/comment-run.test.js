import { commentMaker, commentProblem, editRow, editsOf, takingBack, writeComment, writing } from "../../interface/lib/comment-run.js";
import { drain, equal, finish, isTrue, test } from "./check.js";

// Files and their comments; "locked" keeps its own, "text" is no picture.
function service(comments) {
    return {
        comments: comments,
        hGetExifUc: (path) => comments[path] || "",
        hSetExifData: (path, comment) => {
            if (path.indexOf("text") >= 0) {
                return "Failed";
            }
            if (path.indexOf("locked") < 0) {
                comments[path] = comment.trim() === "" ? "" : comment;
            }
            return "OK";
        },
    };
}

test("writesAndSaysWhatWasThere", () => {
    const meta = service({ "/p/a.jpg": "old" });
    equal(writeComment(meta, "/p/a.jpg", "new"), { path: "/p/a.jpg", status: "OK", reason: "", before: "old", after: "new" });
    equal(writeComment(meta, "/p/a.jpg", "  ").status, "OK");
});

test("saysThatAFileDidNotTakeIt", () => {
    const meta = service({ "/p/locked.gif": "old" });
    const locked = writeComment(meta, "/p/locked.gif", "new");
    equal([locked.status, locked.before, locked.after], ["Failed", "old", "old"]);
    isTrue(locked.reason.indexOf("stayed as it was") >= 0);
    equal(writeComment(meta, "/p/text.jpg", "new").status, "Failed");
});

test("putsTokensIntoComments", () => {
    const facts = { taken: "2026-08-14T10:20:30", created: "", changed: "", camera: "", lens: "", type: "", bytes: 1, width: 1, height: 1 };
    const comment = commentMaker("{name}, {taken:yyyy}, {counter:01}", { facts: () => facts });
    equal([comment("/p/a b.jpg", 0), comment("/p/c.jpg", 1)], ["a b, 2026, 01", "c, 2026, 02"]);
    equal(commentMaker("plain", { facts: () => { throw new Error("not asked for"); } })("/p/a.jpg", 0), "plain");
    equal(commentProblem("{name} and {{"), "");
    isTrue(commentProblem("{nonsense}") !== "");
});

test("writesAllAndTakesThemBackFromTheLastOn", () => {
    const meta = service({ "/p/a.jpg": "one", "/p/b.jpg": "two", "/p/locked.jpg": "three" });
    const results = drain(writing(meta, ["/p/a.jpg", "/p/text.jpg", "/p/b.jpg", "/p/locked.jpg"], () => "new")).values;
    equal(results.map((each) => each.status), ["OK", "Failed", "OK", "Failed"]);
    const back = drain(takingBack(meta, editsOf(results))).values;
    equal(back.map((each) => each.path), ["/p/b.jpg", "/p/a.jpg"]);
    equal(meta.comments, { "/p/a.jpg": "one", "/p/b.jpg": "two", "/p/locked.jpg": "three" });
});

test("leavesACommentThatWasChangedMeanwhile", () => {
    const meta = service({ "/p/a.jpg": "one" });
    const edits = editsOf([writeComment(meta, "/p/a.jpg", "new")]);
    meta.comments["/p/a.jpg"] = "somebody else's";
    const back = drain(takingBack(meta, edits)).values;
    equal([back[0].status, meta.comments["/p/a.jpg"]], ["Skipped", "somebody else's"]);
});

test("logsTheOldAndTheNewComment", () => {
    const row = editRow({ path: "/p/a.jpg", status: "OK", reason: "", before: "old", after: "new" }, "Comment", "2026-11-21T10:00:00Z", "r1");
    equal([row.process, row.action, row.status, row.input, row.inputPath, row.outputPath, row.run],
          ["Metadata", "Comment", "OK", "a.jpg", "/p/a.jpg", "/p/a.jpg", "r1"]);
    isTrue(row.reason.indexOf("old") >= 0 && row.reason.indexOf("new") >= 0);
});

finish();
