// A run over the comments of pictures: writes or reverts them one by one, keeps each edit in the log at once, and sums up.

import { files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { editRow, editsOf } from "./comment-run.js";
import { guard } from "../lib/guard.js";
import { appendRows, newRunName, trimRows } from "./log-file.js";


function newWork(action) {
    return { run: newRunName(), pagesRun: newRunName(), action: action, tried: 0, done: 0, first: "", problem: "",
             cancelled: false, edits: [] };
}

export class CommentJob {
    constructor() {
        this.job = shell.job();
    }

    get running() {
        return this.job.running;
    }

    cancel() {
        this.job.cancel();
    }

    /**
     * Carries out a generator of comment-run; one at a time.
     *
     * @param action  how the log calls it
     * @param onStep  called with {tried, done} after each picture
     * @param onEnd   called with {tried, done, first: the first problem, problem: of the run as a whole, cancelled, edits: that can be
     *                reverted}
     */
    start(generator, action, onStep, onEnd) {
        const work = newWork(action);
        shell.desktop.jobGoesOn(action, -1);
        this.job.start(generator, guard("comments.step", (result) => { this.take(work, result); onStep(work); }),
                       guard("comments.end", (how, value) => {
            shell.desktop.jobEnded(action, "");
            work.cancelled = how === "cancelled";
            work.edits.reverse();
            work.problem = (how === "failed" ? String(value) : "") || work.problem || trimRows(files);
            onEnd(work);
        }));
    }

    /** Carries out a generator of one picture at once; returns what onEnd() of start() gets. */
    carryOut(generator, action) {
        const work = newWork(action);
        for (const result of generator) {
            this.take(work, result);
        }
        work.problem = work.problem || trimRows(files);
        return work;
    }

    // An edit that is in the file is in the log, whatever happens to this program after it.
    take(work, result) {
        work.tried += 1;
        work.done += result.status === "OK" ? 1 : 0;
        work.first = work.first || (result.status === "OK" ? "" : result.reason);
        // What cannot be reverted as a whole stands apart, as a run beside the other.
        const lostPages = result.pages > 0;
        const run = lostPages ? work.pagesRun : work.run;
        const action = lostPages ? qsTr("Write comment, keep the first page only") : work.action;
        editsOf([result], run).forEach((edit) => work.edits.push(edit));
        work.problem = work.problem || appendRows(files, [editRow(result, action, new Date().toISOString(), run)]);
    }
}

/** What became of a run, as one line; done says how many pictures it changed. */
export function commentSummary(work, done) {
    const left = work.tried - work.done;
    const parts = [done]
        .concat(left > 0 ? [qsTr("%n problems", "", left), work.first] : [],
                work.problem ? [work.problem] : []);
    return (work.cancelled ? qsTr("Stopped:") + " " : "") + parts.join(" · ");
}

export function commentsWritten(number) {
    return qsTr("%n comments written", "", number);
}

export function commentsReverted(number) {
    return qsTr("%n comments reverted", "", number);
}
