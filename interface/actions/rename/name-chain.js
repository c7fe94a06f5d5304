// A chain of steps that makes new names from old ones. Pure; text operations are passed in.

import { splitPath } from "../../lib/names.js";
import { prepared } from "./name-steps.js";

const NONE = Object.freeze([]);

export class NameChain {
    /**
     * @param steps    those of name-steps.js; disabled ones are skipped
     * @param names    the operations (cNSStringHandling)
     * @param missing  replacements for values that a file does not have: {standIns, standIn} of TokenText
     */
    constructor(steps, names, missing) {
        this.steps = steps
            .map((step, i) => ({ index: i, ready: prepared(step, names, missing), part: step.part || "name",
                                 isOn: step.on }))
            .filter((each) => each.isOn);
        this.needsFacts = this.steps.some((each) => each.ready.needsFacts);
    }

    /**
     * The new name of one file or folder: {old: the parts of its path, name, base, extension, missing: tokens without a
     * value, short: indices of the steps that could not change it because it is too short, cut: "half" or "mark" if a
     * character was split, trace: the name after each step that was applied, by the step's index, if it is asked for}.
     *
     * Files must be passed in order, because of the counters.
     */
    apply(path, isFolder, facts, wantsTrace) {
        const file = splitPath(path);
        const now = isFolder ? { base: file.name, extension: "" } : { base: file.base, extension: file.extension };
        const told = { old: file, name: file.name, base: now.base, extension: now.extension, missing: NONE, short: NONE,
                       cut: "", trace: wantsTrace ? {} : null };
        const context = { folder: file.folder, extension: now.extension, facts: facts };
        for (let i = 0; i < this.steps.length; i += 1) {
            context.extension = now.extension;
            const made = this.applyOne(this.steps[i], now, context, isFolder);
            note(told, made, this.steps[i].index);
            if (wantsTrace) {
                told.trace[this.steps[i].index] = joined(now);
            }
            if (made.stop) {
                break;
            }
        }
        told.base = now.base;
        told.extension = now.extension;
        told.name = joined(now);
        return told;
    }

    /** By the index of a step: how many digits its counter needs for all names made so far, if it has fewer. */
    digits() {
        return this.steps.map((each) => ({ index: each.index, digits: each.ready.digits() }))
            .filter((each) => each.digits > 0);
    }

    // Changes the part of `now` that the step works on.
    applyOne(each, now, context, isFolder) {
        if (each.part === "both" && !isFolder) {
            const made = each.ready.apply(joined(now), context);
            const file = splitPath("/" + made.text);
            // Text with a slash is not treated as a path but reported as it is.
            now.base = made.text.indexOf("/") < 0 ? file.base : made.text;
            now.extension = made.text.indexOf("/") < 0 ? file.extension : "";
            return made;
        }
        if (each.part === "extension" && (isFolder || now.extension === "")) {
            return {};
        }
        const part = each.part === "extension" ? "extension" : "base";
        const made = each.ready.apply(now[part], context);
        now[part] = made.text;
        return made;
    }
}

// An empty name stays empty, whatever its extension.
function joined(now) {
    return now.base === "" || now.extension === "" ? now.base : now.base + "." + now.extension;
}

function note(told, made, index) {
    if (made.short) {
        told.short = told.short.concat([index]);
    }
    if (made.cut && told.cut !== "half") {
        told.cut = made.cut;
    }
    if (made.missing && made.missing.length > 0) {
        told.missing = told.missing.concat(made.missing);
    }
}
