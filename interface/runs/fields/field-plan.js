// What a run over the metadata of pictures would change: read by workers, computed by the same functions that write,
// and shown row by row before anything is written.
// Services used: those of the step, files (plannedFields).

import { files } from "quorlin/files";
import { emptyTable } from "../../lib/names.js";
import { statusText } from "../../lib/wording.js";
import { LivePlan } from "../live-plan.js";
import { FieldAsker } from "./field-work.js";

/** The rows that a run with these settings works on: those that are ticked, or of them the chosen ones. */
export function idsInScope(window, settings) {
    const ticked = window.pictures.tickedIds();
    if (settings.scope === "all") {
        return ticked;
    }
    const chosen = emptyTable();
    window.pictures.selectedIds().forEach((id) => { chosen[id] = true; });
    return ticked.filter((id) => chosen[id] === true);
}

// Requests the metadata of each picture; known(path) is what is cached, or null.
function* tasksFor(window, ids, known) {
    for (let i = 0; i < ids.length; i += 1) {
        const photo = window.pictures.photo(ids[i]);
        const said = photo === null ? null : known(photo.path);
        if (photo !== null) {
            yield { id: ids[i], index: i, photo: photo, file: "", said: said === null ? undefined : said,
                    ask: (work) => work.look(photo.path) };
        }
    }
}

/**
 * A generator that says what would change in each of the pictures, in their order. It yields {id, index, path, work, stated, planned:
 * {name: texts}, problem, inPlace, sidecar}, and null while it waits; stated is the current value of each field.
 *
 * @param asker  see FieldAsker
 * @param memory  known(path): {fields, inPlace, sidecar, problem} or null, keep(path, said)
 */
export function* planningFields(window, ids, settings, asker, memory) {
    const maker = window.action.step.workMaker(settings);
    for (const answer of asker.inOrder(tasksFor(window, ids, (path) => memory.known(path)))) {
        if (answer !== null) {
            const { task, said } = answer;
            memory.keep(task.photo.path, said);
            yield Object.assign(itemOf(window, maker, task.photo, task.index, said), { id: task.id });
        } else {
            yield null;
        }
    }
}

function itemOf(window, maker, photo, index, said) {
    const facts = maker.needsFacts ? window.services.facts.of(photo.path) : null;
    const work = maker.make(photo.path, facts, index);
    const stated = said.fields || {};
    const planned = said.problem === "" ? files.plannedFields(stated, work)
        : { fields: {}, problem: photo.problem || qsTr("not a readable picture") };
    return { index: index, path: photo.path, name: photo.name, work: work, stated: stated, planned: planned.fields,
             problem: planned.problem, inPlace: said.inPlace === true, sidecar: said.sidecar || "" };
}

/** Whether a run would do anything to a picture. */
export function isReady(item) {
    return item.problem === ""
        && (Object.keys(item.planned).length > 0 || (item.inPlace && item.work.remove.length > 0));
}

// What is said about a picture besides its changes.
function notesOf(item, disputes) {
    const isBeside = isReady(item) && !item.inPlace;
    const staysPrivate = !item.inPlace && item.work.remove.length > 0;
    return (disputes.length > 0 ? [qsTr("EXIF, IPTC and XMP disagree")] : [])
        .concat(isBeside ? [qsTr("in a sidecar file")] : [])
        .concat(staysPrivate ? [qsTr("private data stays in files of this type")] : []);
}

/** Shows an item of a plan in its row. */
export function showItem(window, item) {
    const list = window.pictures;
    const step = window.action.step;
    if (item.problem !== "") {
        list.setPlan(item.id, "–", "");
        list.setStatus(item.id, "bad", statusText("Failed", item.problem), "");
        return;
    }
    const changes = step.changeWords(item);
    const disputes = step.disputeWords(item.stated);
    const state = isReady(item) ? qsTr("ready") : qsTr("no change");
    const kind = isReady(item) ? "waiting" : "none";
    list.setPlan(item.id, changes.length > 0 ? changes.join(" · ") : "–", "");
    list.setStatus(item.id, disputes.length > 0 ? "caution" : kind, [state].concat(notesOf(item, disputes)).join(", "),
                   changes.concat(disputes).join("\n"));
}

/** The common value of a field in all pictures: {text} if it is the same, {several: true}, or {none: true}. */
export class StatedTogether {
    constructor() {
        this.count = 0;
        this.fields = emptyTable();
    }

    add(stated) {
        Object.keys(stated).forEach((name) => {
            const key = JSON.stringify(stated[name].value);
            const kept = this.fields[name] || { key: key, value: stated[name].value, count: 0, several: false };
            kept.several = kept.several || kept.key !== key;
            kept.count += 1;
            this.fields[name] = kept;
        });
        this.count += 1;
    }

    /** {several, value: texts} */
    of(name) {
        const kept = this.fields[name];
        if (kept === undefined) {
            return { several: false, value: [] };
        }
        return { several: kept.several || kept.count < this.count, value: kept.value };
    }
}

export class FieldPlan extends LivePlan {
    constructor(window, planned) {
        super(window, planned);
        // What was read from files, until a run changes them.
        this.known = emptyTable();
        this.asker = null;
        this.together = new StatedTogether();
    }

    nothing() {
        return { ready: 0, disputed: 0, beside: 0 };
    }

    wantedIds() {
        return idsInScope(this.window, this.window.settings);
    }

    /** Files may have changed. */
    forgetFiles() {
        this.known = emptyTable();
    }

    work(ids, settings) {
        this.together = new StatedTogether();
        this.leaveOthersOut(ids);
        this.askAfresh();
        const known = this.known;
        const planning = planningFields(this.window, ids, settings, this.asker, {
            known: (path) => this.statedOf(path),
            keep: (path, said) => { known[path] = said; },
        });
        return planning; // the engine loses a generator that is returned by the call that creates it
    }

    // Answers to requests of an abandoned plan are dropped.
    askAfresh() {
        if (this.asker !== null) {
            this.asker.end();
        }
        this.asker = new FieldAsker(() => this.job.wake());
    }

    // Rows that are ticked but not selected, when only the selected ones are processed.
    leaveOthersOut(ids) {
        const list = this.window.pictures;
        if (ids.length === list.tickedCount) {
            return;
        }
        const wanted = emptyTable();
        ids.forEach((id) => { wanted[id] = true; });
        list.tickedIds().filter((id) => wanted[id] !== true && !this.isFinal(id)).forEach((id) => {
            list.setPlan(id, "", "");
            list.setStatus(id, "none", qsTr("not selected"), "");
        });
    }

    take(item, summary) {
        this.together.add(item.stated);
        summary.ready += isReady(item) ? 1 : 0;
        summary.beside += isReady(item) && !item.inPlace ? 1 : 0;
        summary.disputed += this.window.action.step.disputeWords(item.stated).length > 0 ? 1 : 0;
        if (!this.isFinal(item.id)) {
            showItem(this.window, item);
        }
    }

    /** What is known about the fields of a file; null if nothing is yet. */
    statedOf(path) {
        return this.known[path] === undefined ? null : this.known[path];
    }

    ended(_value, _summary) {
        this.window.pane.showStated(this.together, (path) => this.statedOf(path));
        this.window.showCurrent();
    }

    refused() {
        this.window.pictures.tickedIds().filter((id) => !this.isFinal(id)).forEach((id) => {
            this.window.pictures.setPlan(id, "–", "");
            this.window.pictures.setStatus(id, "none", "", "");
        });
    }
}
