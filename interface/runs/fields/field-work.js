// Asks workers for the fields of pictures and has them write, one file at a time. Generators that yield null while they wait.
// Services used: files (FieldWork).

import { FieldWork } from "quorlin/files";
import { guard } from "../../lib/guard.js";

export class FieldAsker {
    /** @param wake  called when there is an answer */
    constructor(wake) {
        this.work = new FieldWork();
        this.work.arrived.connect(guard("fields.arrived", wake));
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

    /** {fields, inPlace, sidecar, problem} */
    * look(path) {
        this.work.look(path);
        const said = yield* this.answer();
        return said;
    }

    /** {problem, changed, file, undo, before, after} */
    * write(path, work) {
        this.work.write(path, work);
        const said = yield* this.answer();
        return said;
    }

    /** {problem} */
    * revert(path, undo) {
        this.work.revert(path, undo);
        const said = yield* this.answer();
        return said;
    }
}
