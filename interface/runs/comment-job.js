// A run over the comments of pictures: has workers write or revert them one by one, logs each edit at once, and sums
// up.

import { CommentWork, files } from "quorlin/files";
import { shell } from "quorlin/shell";
import { editRow, editsOf } from "./comment-run.js";
import { guard } from "../lib/guard.js";
import { appendRows, newRunName, trimRows } from "./log-file.js";


function newWork(action) {
    return { run: newRunName(), pagesRun: newRunName(), action: action, tried: 0, done: 0, first: "", problem: "",
             cancelled: false, edits: [] };
}

// Reads and writes comments for comment-run.js: workers do it, and wake() is called when there is an answer.
class WorkerComments {
    constructor(wake) {
        this.work = new CommentWork();
        this.work.arrived.connect(guard("comments.arrived", wake));
    }

    end() {
        this.work.close();
    }

    * answer() {
        let said = this.work.take();
        while (said.problem === undefined) {
            yield null;
            said = this.work.take();
        }
        return said;
    }

    * look(path) {
        this.work.look(path);
        const said = yield* this.answer();
        return said;
    }

    * write(path, comment) {
        this.work.write(path, comment);
        const said = yield* this.answer();
        return said.problem;
    }

    isThere(path) {
        return files.info(path).exists;
    }
}

export class CommentJob {
    constructor() {
        this.job = shell.job();
        this.isLooking = false;
        this.isStopping = false;
    }

    get running() {
        return this.job.running;
    }

    /** Nothing more is written after the picture that is in progress, so that its edit is logged. */
    cancel() {
        if (this.isLooking) {
            this.job.cancel();
        } else {
            this.isStopping = true;
        }
    }

    // Stops between two pictures only.
    * stoppable(generator) {
        while (!this.isStopping) {
            let step = generator.next();
            while (!step.done && step.value === null) {
                yield null;
                step = generator.next();
            }
            if (step.done) {
                return;
            }
            yield step.value;
        }
    }

    /**
     * Runs a generator that only reads; one at a time.
     *
     * @param make    function(comments) that makes it
     * @param onStep  called with what it yields
     * @param onEnd   called with what it returned, or null if it was cancelled
     */
    look(make, onStep, onEnd) {
        const comments = new WorkerComments(() => this.job.wake());
        const generator = make(comments);
        this.isLooking = true;
        this.job.start(generator, guard("comments.looked", onStep), guard("comments.lookEnd", (how, value) => {
            this.isLooking = false;
            comments.end();
            onEnd(how === "done" ? value : null);
        }));
    }

    /**
     * Carries out a generator of comment-run; one at a time.
     *
     * @param make    function(comments) that makes it
     * @param action  its name in the log
     * @param onStep  called with {tried, done} after each picture
     * @param onEnd   called with {tried, done, first: the first problem, problem: of the run as a whole, cancelled, edits: that can be
     *                reverted}
     */
    start(make, action, onStep, onEnd) {
        const work = newWork(action);
        const comments = new WorkerComments(() => this.job.wake());
        this.isStopping = false;
        const steps = this.stoppable(make(comments));
        shell.desktop.jobGoesOn(action, -1);
        this.job.start(steps, guard("comments.step", (result) => { this.take(work, result); onStep(work); }),
                       guard("comments.end", (how, value) => {
            comments.end();
            shell.desktop.jobEnded(action, "");
            work.cancelled = how === "cancelled" || this.isStopping;
            work.edits.reverse();
            work.problem = (how === "failed" ? String(value) : "") || work.problem || trimRows(files);
            onEnd(work);
        }));
    }

    /** Runs a generator for one picture, which does not wait, at once; returns what onEnd() of start() gets. */
    carryOut(generator, action) {
        const work = newWork(action);
        for (const result of generator) {
            this.take(work, result);
        }
        work.problem = work.problem || trimRows(files);
        return work;
    }

    // An edit that is in the file is logged, whatever happens to this program afterwards.
    take(work, result) {
        work.tried += 1;
        work.done += result.status === "OK" ? 1 : 0;
        work.first = work.first || (result.status === "OK" ? "" : result.reason);
        // What cannot be reverted as a whole is logged as a separate run.
        const lostPages = result.pages > 0;
        const run = lostPages ? work.pagesRun : work.run;
        const action = lostPages ? qsTr("Write comment, keep only the first page") : work.action;
        editsOf([result], run).forEach((edit) => work.edits.push(edit));
        work.problem = work.problem || appendRows(files, [editRow(result, action, new Date().toISOString(), run)]);
    }
}

/** The outcome of a run, in one line; done says how many pictures it changed. */
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
