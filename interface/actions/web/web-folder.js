// The folder of a page: made beside its destination and moved there when complete; an earlier page made by Quorlin is updated.
// Pure but for translation; the services are passed in.
// Services used: files, webPages, fileHandling (hWritHTMLFile).

import { emptyTable, joinPath } from "../../lib/names.js";
import { fill } from "../../lib/wording.js";

export const PAGE = "index.html";
/**
 * Lists which files of a folder belong to its page, and their content: {quorlinPage: 1, files: {path: [fingerprint
 * ...]}}.
 */
export const MARKER = "quorlin-page.json";
const VERSION = 1;
const PICTURES = "pictures";
const MOST_NUMBERS = 10000;

/** The files of the page in a folder, by their relative paths; null if Quorlin did not make it. */
export function ownFiles(folder, services) {
    const text = services.files.info(joinPath(folder, MARKER)).exists
        ? services.files.readText(joinPath(folder, MARKER)) : null;
    try {
        const marker = JSON.parse(text || "");
        const isOurs = marker.quorlinPage === VERSION && marker.files !== null && typeof marker.files === "object"
            && Object.keys(marker.files).every((path) => isInside(path) && isListOfTexts(marker.files[path]));
        return isOurs ? marker.files : null;
    } catch (error) {
        return null;
    }
}

function isListOfTexts(value) {
    return Array.isArray(value) && value.every((each) => typeof each === "string");
}

// A forged marker must not get files elsewhere removed.
function isInside(path) {
    return path !== "" && !path.startsWith("/") && path.split("/").every((part) => part !== ".." && part !== "");
}

function markerText(known) {
    return JSON.stringify({ quorlinPage: VERSION, files: known }, null, 1) + "\n";
}

/** Both; a file may be the result of either. */
function joined(one, other) {
    const all = Object.assign(emptyTable(), one);
    Object.keys(other).forEach((path) => { all[path] = (all[path] || []).concat(other[path]); });
    return all;
}

export class PageFolder {
    /** @param place  the destination: parent, absolute; name, of the folder; ifTaken, "number" or "update" */
    constructor(services, place) {
        this.services = services;
        this.place = place;
        this.staging = null;
        /** Of the unfinished page, once it is open. */
        this.folder = "";
        /** Where its pictures go, relative to it. */
        this.pictures = PICTURES;
        this.target = joinPath(place.parent, place.name);
        this.earlier = null; // the files of the page that is being updated
    }

    /** Makes the unfinished folder; returns a problem, or "". */
    open() {
        const files = this.services.files;
        const unmade = files.info(this.place.parent).isFolder ? "" : files.makeFolder(this.place.parent);
        const refused = unmade || this.lookAtTarget();
        if (refused !== "") {
            return refused;
        }
        files.sweep(this.place.parent);
        this.staging = files.makeStaging(this.place.parent);
        if (this.staging === null) {
            return fill(qsTr("The folder %1 cannot be written."), this.place.parent);
        }
        this.folder = this.staging + "page";
        return files.makeFolder(this.folder);
    }

    // Only if the user wants it, and only a page made by Quorlin that nobody has changed.
    lookAtTarget() {
        const files = this.services.files;
        if (this.place.ifTaken !== "update" || !files.info(this.target).exists) {
            return "";
        }
        this.earlier = ownFiles(this.target, this.services);
        if (this.earlier === null) {
            return fill(qsTr("%1 was not made by Quorlin and stays unchanged."), this.target);
        }
        if (!this.isPageOurs()) {
            return fill(qsTr("%1 has been changed since by someone else and stays unchanged."),
                        joinPath(this.target, PAGE));
        }
        for (let number = 2; files.info(joinPath(this.target, this.pictures)).exists; number += 1) {
            this.pictures = PICTURES + "-" + number;
        }
        return "";
    }

    isPageOurs() {
        const path = joinPath(this.target, PAGE);
        return !this.services.files.info(path).exists
            || (this.earlier[PAGE] || []).indexOf(this.services.webPages.fingerprint(path)) >= 0;
    }

    /** Writes the page and reads it back; returns a problem, or "". */
    writePage(html) {
        const path = joinPath(this.folder, PAGE);
        this.services.fileHandling.hWritHTMLFile(path, html);
        const read = this.services.files.readText(path);
        if (read === null) {
            return qsTr("The page could not be written.");
        }
        return read === html ? "" : qsTr("The saved page differs from what was written.");
    }

    /**
     * A generator that moves the finished folder to its destination, some files at a time: {problem, path}. paths are
     * those of all pictures, relative to the folder.
     */
    * finish(paths) {
        const known = emptyTable();
        for (const path of paths.concat([PAGE])) {
            const fingerprint = this.services.webPages.fingerprint(joinPath(this.folder, path));
            if (fingerprint === "") {
                return { problem: fill(qsTr("%1 cannot be read."), path), path: "" };
            }
            known[path] = [fingerprint];
            yield path;
        }
        if (this.earlier !== null) {
            const updated = yield* this.update(known);
            return updated;
        }
        const problem = this.services.files.writeText(joinPath(this.folder, MARKER), markerText(known));
        return problem === "" ? this.putInPlace() : { problem: problem, path: "" };
    }

    // One rename; an existing folder is not replaced.
    putInPlace() {
        for (let number = 1; number < MOST_NUMBERS; number += 1) {
            const path = this.target + (number === 1 ? "" : " (" + number + ")");
            const put = this.services.files.place(this.folder, path, "");
            if (put.status !== "Taken") {
                return put.status === "OK" ? { problem: "", path: path } : { problem: put.message, path: "" };
            }
        }
        return { problem: qsTr("no free name was found"), path: "" };
    }

    // The pictures first, then the page that shows them, in one step each; at every moment the current page has its
    // pictures. The marker lists all of them meanwhile, so that the next update cleans up after an interruption.
    * update(known) {
        const files = this.services.files;
        const marker = joinPath(this.target, MARKER);
        let problem = files.writeText(marker, markerText(joined(this.earlier, known)));
        if (problem === "" && files.info(joinPath(this.folder, this.pictures)).exists) {
            problem = this.put(this.pictures, "");
        }
        const page = files.identity(joinPath(this.target, PAGE));
        if (problem === "" && !this.isPageOurs()) {
            problem = fill(qsTr("%1 has been changed since by someone else and stays unchanged."),
                           joinPath(this.target, PAGE));
        }
        problem = problem || this.put(PAGE, page);
        if (problem !== "") {
            return { problem: problem, path: "" };
        }
        yield PAGE;
        yield* this.removeOld(known);
        return { problem: files.writeText(marker, markerText(known)), path: this.target };
    }

    put(name, replaced) {
        const put = this.services.files.place(joinPath(this.folder, name), joinPath(this.target, name), replaced);
        if (put.status === "Taken") {
            return fill(qsTr("Something else is now at %1."), joinPath(this.target, name));
        }
        return put.status === "OK" ? "" : put.message;
    }

    // Files unchanged since they were written that are no longer part of the page.
    * removeOld(known) {
        const folders = emptyTable();
        for (const path of Object.keys(this.earlier).filter((each) => known[each] === undefined)) {
            this.services.webPages.removeKnown(joinPath(this.target, path), this.earlier[path]);
            folders[path.slice(0, path.lastIndexOf("/") + 1)] = true;
            yield path;
        }
        Object.keys(folders).filter((folder) => folder !== "")
            .forEach((folder) => this.services.files.removeEmptyFolder(joinPath(this.target, folder)));
    }

    /** Afterwards the unfinished folder is gone. */
    close() {
        if (this.staging !== null) {
            this.services.files.removeStaging(this.staging);
            this.staging = null;
        }
    }
}
