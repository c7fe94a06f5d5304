// Which of the files found in a folder are added to the list. Pure; services are passed in. Services used: files
// (info), facts (of).

import { emptyTable, splitPath } from "./names.js";
import { typeOfExtension } from "./types.js";

function isOfType(extension, types) {
    const lower = extension.toLowerCase();
    const meant = typeOfExtension(lower);
    return types.some((type) => type === lower || (meant !== "" && typeOfExtension(type) === meant));
}

function isOfSize(path, rule, files) {
    if (rule.least === 0 && rule.most === 0) {
        return true;
    }
    const bytes = files.info(path).bytes;
    return bytes >= rule.least && (rule.most === 0 || bytes <= rule.most);
}

// The date taken, or if a file has none, the day on which it was changed.
function isOfDate(path, rule, facts) {
    if (rule.from === "" && rule.to === "") {
        return true;
    }
    const known = facts.of(path);
    const day = known === null ? "" : (known.taken || known.changed).slice(0, "2026-08-14".length);
    return day !== "" && day >= rule.from && (rule.to === "" || day <= rule.to);
}

function isNamed(name, part) {
    return name.toLowerCase().indexOf(part.toLowerCase()) >= 0;
}

function fits(path, rule, services) {
    const parts = splitPath(path);
    return (rule.types.length === 0 || isOfType(parts.extension, rule.types)) && isNamed(parts.name, rule.name) &&
        isOfSize(path, rule, services.files) && isOfDate(path, rule, services.facts);
}

/**
 * A generator that filters what was collected in a folder by a rule; it yields after each file, and returns the same
 * with fewer paths and `filtered`, the number of files left out, not counting those of subfolders.
 *
 * @param rule  subfolders; types: extensions in lower case; name: part of it; least, most: bytes, 0 for no limit; from, to: days
 *              such as "2026-08-14", "" for no limit
 */
export function* filtered(found, folder, rule, services) {
    const kept = emptyTable();
    let keptCount = 0;
    let filteredOut = 0;
    for (const path of found.listed) {
        const lies = rule.subfolders || splitPath(path).folder === folder;
        if (lies && fits(path, rule, services)) {
            kept[path] = true;
            keptCount += 1;
        } else {
            filteredOut += lies ? 1 : 0;
        }
        yield keptCount + filteredOut;
    }
    const keep = (paths) => paths.filter((path) => kept[path]);
    // If subfolders are not wanted, nobody knows how many other files the folder itself contains.
    const others = rule.subfolders ? {} : { leftOut: 0, companions: [], example: "" };
    return Object.assign({}, found, others,
                         { paths: keep(found.paths), listed: keep(found.listed), filtered: filteredOut });
}
