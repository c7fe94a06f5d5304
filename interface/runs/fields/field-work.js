// Has workers read and write the fields of pictures, one more file at a time than there are processors. Its generators
// yield null while they wait.
// Services used: files (FieldWork), recipes (processors).

import { FieldWork } from "quorlin/files";
import { recipes } from "quorlin/recipes";
import { guard } from "../../lib/guard.js";
import { fill } from "../../lib/wording.js";

// A worker need not wait for its next file while another answer is being recorded.
function mostAtOnce() {
    return recipes.processors() + 1;
}

export class FieldAsker {
    /** @param wake  called when there is an answer */
    constructor(wake) {
        this.wake = wake;
        this.works = [];
        this.idle = [];
        this.most = mostAtOnce();
    }

    end() {
        this.works.forEach((work) => work.close());
        this.works = [];
        this.idle = [];
    }

    work() {
        if (this.idle.length > 0) {
            return this.idle.pop();
        }
        const made = new FieldWork();
        made.arrived.connect(guard("fields.arrived", () => this.wake()));
        this.works.push(made);
        return made;
    }

    /**
     * Yields {task, said} for each task, as answers arrive, and null while it waits. Tasks that write the same file
     * follow one another.
     *
     * @param tasks   their generator: {ask(work), which asks something of a FieldWork, or said if known; file: the one
     *                that is written, "" for none; keep(said), which stores the old values before an edit takes its
     *                place and returns a message if it cannot; unwritten(), called if the edit then fails}
     * @param goesOn  false if no more are to be started; those that were started are answered
     */
    * each(tasks, goesOn) {
        const open = [];
        let next = tasks.next();
        while (open.length > 0 || (!next.done && goesOn())) {
            while (!next.done && goesOn() && this.mayBegin(next.value, open)) {
                open.push(this.begun(next.value));
                next = tasks.next();
            }
            const found = this.answered(open);
            if (found === null) {
                yield null;
            } else {
                open.splice(open.indexOf(found.begun), 1);
                yield { task: found.begun.task, said: found.said };
            }
        }
    }

    /** The same in the order of the tasks. */
    * inOrder(tasks) {
        const early = [];
        let expected = 0;
        let count = 0;
        const numbered = function* () {
            for (const task of tasks) {
                task.number = count;
                count += 1;
                yield task;
            }
        };
        for (const answer of this.each(numbered(), () => true)) {
            if (answer === null) {
                yield null;
                continue;
            }
            early[answer.task.number] = answer;
            while (early[expected] !== undefined) {
                const first = early[expected];
                delete early[expected];
                expected += 1;
                yield first;
            }
        }
    }

    mayBegin(task, open) {
        return open.length < this.most && (task.file === "" || open.every((each) => each.task.file !== task.file));
    }

    begun(task) {
        if (task.said !== undefined) {
            return { task: task, work: null };
        }
        const work = this.work();
        task.ask(work);
        return { task: task, work: work };
    }

    // The first of them whose answer has arrived: a change of a file is recorded at once, however long another one
    // takes.
    answered(open) {
        for (const begun of open) {
            const said = begun.work === null ? begun.task.said : begun.work.take();
            if (said.problem !== undefined) {
                const placed = said.isReady === true ? this.placed(begun, said) : said;
                this.idle = this.idle.concat(begun.work === null ? [] : [begun.work]);
                return { begun: begun, said: placed };
            }
        }
        return null;
    }

    // What cannot be reverted is not written.
    placed(begun, said) {
        const problem = begun.task.keep(said);
        if (problem !== "") {
            return Object.assign(said, { problem: fill(qsTr("its old values cannot be kept: %1"), problem) });
        }
        Object.assign(said, begun.work.place());
        if (said.problem !== "") {
            begun.task.unwritten();
        }
        return said;
    }
}
