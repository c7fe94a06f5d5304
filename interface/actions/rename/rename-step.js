// Renames files or folders by a chain of steps. Services used: names (cNSStringHandling), files (names), facts (lib/known-facts.js).
// Plain data in, plain data out; the run that moves files carries out what rows() requests.

import { tokens } from "quorlin/tokens";
import { plainRow, row } from "../../runs/move-plan.js";
import { NameChain } from "./name-chain.js";
import { stepFrom, stepProblems } from "./name-steps.js";
import { emptyTable, joinPath, splitPath } from "../../lib/names.js";
import { riskOf } from "./risky-names.js";
import { Sidecars } from "../../lib/sidecars.js";
import { kindWords } from "./step-words.js";
import { hasHalf } from "./text-cuts.js";
import { fill } from "../../lib/wording.js";

// Names are made for about this long before the window gets control again.
const SLICE_MS = 1;
const LOOKED_UP = 250;

const NOTHING = Object.freeze([]);
const NOBODY = { of: () => NOTHING, leader: () => -1 };

export const MOST_STEPS = 30;

/** What a new pane shows. what: "files" or "folders"; steps: those of name-steps.js; sidecars: whether they are renamed too. */
export const defaults = { what: "files", steps: [], sidecars: true, simulation: false };

/** The settings in a few words, for the log. */
export function describe(settings) {
    const words = kindWords();
    const steps = stepsOf(settings).filter((step) => step.on)
        .map((step) => (step.kind === "text" ? step.pattern : words[step.kind].title));
    return fill({ files: qsTr("files: %1"), folders: qsTr("folders: %1") }[settings.what], steps.join(", "));
}

/** The steps that are valid. */
export function stepsOf(settings) {
    return settings.steps.map(stepFrom).filter((step) => step !== null);
}

/** Messages on what is wrong with the settings; empty if a run can start. */
export function validate(settings) {
    const messages = stepsOf(settings).filter((step) => step.on)
        .reduce((all, step) => all.concat(stepProblems(step)), []);
    return messages.filter((message, i) => messages.indexOf(message) === i);
}

function missingWords(token) {
    const dates = { taken: qsTr("no date taken"), created: qsTr("no date created"),
                    changed: qsTr("no date changed") };
    return dates[token] || fill(qsTr("no value for “%1”"), tokens.words(token));
}

/** Replacements for values that a file does not have: {standIns: by the names of tokens, standIn: for all others}. */
export function missingValues() {
    const undated = qsTr("undated");
    return { standIns: { taken: undated, created: undated, changed: undated }, standIn: qsTr("unknown") };
}

/** The chain of the settings, prepared; see name-chain.js. */
export function chainOf(settings, services) {
    return new NameChain(stepsOf(settings), services.names, missingValues());
}

function cautionOf(made) {
    if (made.missing.length === 0) {
        return "";
    }
    const token = made.missing[0];
    const { standIns, standIn } = missingValues();
    return fill(qsTr("%1: “%2”"), missingWords(token), standIns[token] || standIn);
}

function notesOf(made, oldName) {
    const notes = made.cut === "mark" ? [qsTr("separates a letter from its accent")] : NOTHING;
    const risk = made.name === oldName ? "" : riskOf(made.name);
    return risk === "" ? notes : notes.concat([risk]);
}

// A sidecar gets the new name with its own ending; "a.JPG.xmp" keeps the extension of its picture.
function companion(folder, other, old, made) {
    const doubled = "." + old.extension + ".";
    const ending = old.extension !== "" && other.ending.startsWith(doubled)
        ? "." + made.extension + other.ending.slice(doubled.length - 1) : other.ending;
    return { from: joinPath(folder, other.name), to: joinPath(folder, made.base + ending) };
}

function wish(made, companions) {
    const old = made.old;
    if (hasHalf(made.name)) {
        return row({ status: "Failed", reason: qsTr("would split a character"), shown: "–" });
    }
    const to = joinPath(old.folder, made.name);
    const shown = made.name === "" ? "–" : made.name;
    const notes = notesOf(made, old.name);
    if (made.missing.length === 0 && notes.length === 0 && companions.length === 0) {
        return plainRow(to, shown);
    }
    return row({ to: to, shown: shown, caution: cautionOf(made), notes: notes,
                 along: companions.map((other) => companion(old.folder, other, old, made)) });
}

// Whether the folder of any file has sidecars. Files of one folder come in sequence, so it is seldom asked for.
function* haveSidecars(paths, sidecars) {
    let before = "";
    let found = false;
    for (let i = 0; i < paths.length && !found; i += 1) {
        const end = paths[i].lastIndexOf("/") + 1;
        if (end !== before.length || !paths[i].startsWith(before)) {
            before = paths[i].slice(0, end);
            found = sidecars.areIn(splitPath(paths[i]).folder);
        }
        if (i % LOOKED_UP === LOOKED_UP - 1) {
            yield i;
        }
    }
    return found;
}

// The sidecars of every file, and for each sidecar that is in the list itself the row of its picture. Built in slices.
function* companionsOf(paths, services) {
    const sidecars = new Sidecars(services.files);
    const areThere = yield* haveSidecars(paths, sidecars);
    if (!areThere) {
        return NOBODY;
    }
    const found = [];
    const at = emptyTable();
    for (let i = 0; i < paths.length; i += 1) {
        found.push(sidecars.of(paths[i]));
        at[paths[i]] = i;
        if (i % LOOKED_UP === LOOKED_UP - 1) {
            yield i;
        }
    }
    return { of: (i) => found[i],
             leader: (path) => (sidecars.ownerOf(path) === undefined ? -1 : at[sidecars.ownerOf(path)]) };
}

function rowFor(path, i, context) {
    const leader = context.companions.leader(path);
    if (leader >= 0) {
        return row({ goesWith: leader });
    }
    const facts = context.chain.needsFacts ? context.services.facts.of(path) : null;
    const made = context.chain.apply(path, context.areFolders, facts, false);
    for (let k = 0; k < made.short.length; k += 1) {
        context.short[made.short[k]] = (context.short[made.short[k]] || 0) + 1;
    }
    return wish(made, context.companions.of(i));
}

// A sidecar shows the name that it will have beside its picture.
function nameFollowers(found, paths) {
    found.forEach((each, i) => {
        if (each.goesWith >= 0) {
            const own = found[each.goesWith].along.find((other) => other.from === paths[i]);
            each.shown = own === undefined ? "–" : splitPath(own.to).name;
        }
    });
}

/**
 * A generator that makes the new names: see move-plan.js. The array also has `short`: by index in stepsOf(), how many
 * names a step could not change because they are too short; and `digits`, see NameChain.digits().
 */
export function* rows(paths, settings, services) {
    const areFolders = settings.what === "folders";
    const found = [];
    const context = { chain: chainOf(settings, services), areFolders: areFolders, services: services, short: [],
                      companions: NOBODY };
    if (settings.sidecars && !areFolders) {
        const looking = companionsOf(paths, services);
        let step = looking.next();
        for (; !step.done; step = looking.next()) {
            yield { rows: found, from: 0, to: 0 };
        }
        context.companions = step.value;
    }
    let from = 0;
    let since = Date.now();
    for (let i = 0; i < paths.length; i += 1) {
        found.push(rowFor(paths[i], i, context));
        if (Date.now() - since >= SLICE_MS) {
            yield { rows: found, from: from, to: found.length };
            from = found.length;
            since = Date.now();
        }
    }
    nameFollowers(found, paths);
    Object.assign(found, { short: context.short, digits: context.chain.digits() });
    if (from < found.length) {
        yield { rows: found, from: from, to: found.length };
    }
    return found;
}
