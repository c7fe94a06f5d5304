// Writes the stars of the list into the files of its pictures, on request, and removes them again. Until then they are
// marks of the list only. Services used: files, shell (ask, job).

import { files } from "quorlin/files";
import { runRecords } from "quorlin/records";
import { shell } from "quorlin/shell";
import { guard } from "../../lib/guard.js";
import { emptyTable, splitPath } from "../../lib/names.js";
import { fill, problemsText } from "../../lib/wording.js";
import { revertingFields, revertSummary } from "./field-reverting.js";
import { FieldAsker } from "./field-work.js";
import { KeptRun } from "./kept-run.js";
import { appendRows, newRunName, trimRows } from "../log-file.js";
import { logRow } from "../report.js";

const NOTHING = { done: 0, failed: 0, tried: 0, problem: "" };

function ratingOf(fields) {
    return { rating: fields === undefined || fields.rating === undefined ? [] : fields.rating.value };
}

// Two pictures may have one sidecar.
function* writesOf(photos, keptRun) {
    for (const photo of photos) {
        const change = photo.rating > 0 ? { set: [String(photo.rating)] } : { clear: true };
        yield { photo: photo, file: splitPath(photo.path).folder + "/" + splitPath(photo.path).base,
                ask: (work) => work.write(photo.path, { fields: { rating: change } }),
                keep: (said) => keptRun.keep({ path: photo.path, file: said.file, before: ratingOf(said.before),
                                               after: ratingOf(said.after), undo: said.undo }),
                unwritten: () => keptRun.unwritten(photo.path) };
    }
}

function logAction() {
    return qsTr("Write ratings");
}

export class Ratings {
    /** @param window  the main window's parts: form, pictures, history, livePlan, services, isBusy(), sayBeside() */
    constructor(window) {
        this.window = window;
        this.job = shell.job();
        this.asker = null;
        this.run = "";
        this.sum = NOTHING;
        // The ratings that files were given, so that stars removed later are removed from the files too.
        this.written = emptyTable();
        window.form.control("writeRatingsAction").triggered.connect(guard("ratings.write", () => this.write()));
    }

    show() {
        const open = !this.window.isBusy() && !this.job.running;
        const any = this.window.pictures.hasRatings || Object.keys(this.written).length > 0;
        this.window.form.control("writeRatingsAction").enabled = open && any;
    }

    // Those that are shown and ticked: a user who shows three stars or more means these.
    toWrite() {
        return this.window.pictures.ratings().filter((photo) => this.differs(photo));
    }

    differs(photo) {
        const before = this.written[photo.path];
        return before === undefined ? photo.rating > 0 : before !== photo.rating;
    }

    write() {
        const photos = this.toWrite();
        if (photos.length === 0) {
            this.window.sayBeside(qsTr("All ratings are in their files already."));
            return;
        }
        const answer = shell.ask({
            title: qsTr("Write ratings"),
            text: qsTr("Write the ratings of %n pictures into their files?", "", photos.length),
            detail: qsTr("This changes the XMP rating inside your originals, and nothing else. Files that cannot hold it get a sidecar file. You can revert it in the log."),
            check: "", initial: 0, escape: 1, buttons: [qsTr("Write"), qsTr("Cancel")],
        });
        if (answer.button === 0) {
            this.begin(newRunName(), this.writing(photos), (work) => this.wrote(work));
        }
    }

    begin(run, work, ended) {
        this.run = run;
        this.sum = Object.assign({}, NOTHING);
        this.job.start(work, guard("ratings.step", () => this.tell()), guard("ratings.end", (how, value) => {
            this.asker.end();
            this.asker = null;
            this.sum.problem = this.sum.problem || trimRows(files) || (how === "failed" ? String(value) : value || "");
            ended(this.sum);
            this.window.services.facts.forget();
            this.window.livePlan.refresh();
            this.show();
        }));
        this.show();
    }

    tell() {
        this.window.sayBeside(fill(qsTr("Ratings: %1 done"), this.sum.tried));
    }

    newAsker() {
        this.asker = new FieldAsker(() => this.job.wake());
        return this.asker;
    }

    * writing(photos) {
        const head = { run: this.run, process: qsTr("Metadata"), action: logAction() };
        const keptRun = new KeptRun(files, runRecords, head);
        for (const answer of this.newAsker().each(writesOf(photos, keptRun), () => true)) {
            if (answer !== null) {
                this.take(answer.task.photo, answer.said);
            }
            yield answer;
        }
        keptRun.end();
        return "";
    }

    count(ok) {
        this.sum.tried += 1;
        this.sum.done += ok ? 1 : 0;
        this.sum.failed += ok ? 0 : 1;
    }

    take(photo, said) {
        this.count(said.problem === "");
        if (said.problem === "") {
            this.written[photo.path] = photo.rating;
        }
        this.sum.problem = this.sum.problem || this.log(photo, said);
    }

    // What is in a file is logged, whatever happens to this program afterwards.
    log(photo, said) {
        const ok = said.problem === "";
        const result = { status: ok ? "OK" : "Failed", reason: said.problem, photo: photo,
                         name: splitPath(said.file || photo.path).name, path: said.file || photo.path };
        return appendRows(files, [logRow(result, qsTr("Metadata"), logAction(), new Date().toISOString(),
                                         this.run)]);
    }

    wrote(sum) {
        if (sum.done > 0) {
            this.window.history.wroteRatings(this.run, sum.done);
        }
        this.window.sayBeside([qsTr("%n ratings written", "", sum.done)]
            .concat(sum.failed > 0 ? [problemsText(sum.failed)] : [], sum.problem ? [sum.problem] : []).join(" · "));
    }

    /** Restores the files as they were before a run; the stars in the list stay. */
    revert(run) {
        if (this.job.running) {
            return;
        }
        this.begin(run, this.reverting(run), (sum) => {
            this.window.sayBeside(revertSummary(sum.done, sum.failed, sum.problem));
        });
    }

    * reverting(run) {
        const steps = revertingFields(this.newAsker(), files, run, () => true);
        let step = steps.next();
        while (!step.done) {
            if (step.value !== null) {
                this.tookBack(step.value);
            }
            yield step.value;
            step = steps.next();
        }
        return step.value;
    }

    tookBack(result) {
        this.count(result.status === "OK");
        delete this.written[result.path];
    }
}
