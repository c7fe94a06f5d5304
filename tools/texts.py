#!/usr/bin/env python3
"""texts.py extract SOURCE FILE | check SOURCE | update SOURCE: the texts that users read, and their translations.

extract  collects the texts of scripts, forms and C++ into FILE (JSON: {context: {text: [places]}}).
check    holds the tables of interface/texts against each other and against the texts: nothing is missing or unused, and the
         places for values are the same in every language. What still waits to be translated is counted, not a problem, as
         long as a language has no Interface.json; from then on every text must be in it.
update   adds the texts that a language's Interface.json lacks, as null, and takes away those that nobody uses.

Needs lupdate of Qt, which cannot read modules: it gets copies of the scripts with "import" and "export" blanked.
"""
import json
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

LANGUAGES = ("en", "nl", "de", "fr")
ROOMS = ("app", "views", "image", "files", "meta", "presets", "text", "platform")
MODULE_WORDS = re.compile(r"^(\s*)(import\b[^;]*;|export\s+default\b|export\b)", re.M)
# What lupdate says of C++ that it need not understand.
HARMLESS = ("Ignoring definition of undeclared qualified class", "Discarding unconsumed meta data")
# %1, %2 ..., %n, and the %@ of keys that services fill.
PLACES = re.compile(r"%(?:L?[1-9]|n|@)")


def without_modules(text):
    """A module as a plain script: the same lines, the same columns behind what is blanked."""
    return MODULE_WORDS.sub(lambda m: m.group(1) + re.sub(r"[^\n]", " ", m.group(2)), text)


def lupdate():
    for place in ("/usr/lib/qt6/bin/lupdate", shutil.which("lupdate6"), shutil.which("lupdate")):
        if place and Path(place).exists():
            return place
    sys.exit("texts: lupdate of Qt 6 is not installed (package qt6-l10n-tools)")


def copied_sources(root, work):
    """Copies of everything that holds texts, below the folder work, under the same paths."""
    sources = [*(root / "interface").rglob("*.js"), *(root / "interface").rglob("*.ui")]
    sources += [path for room in ROOMS for path in (root / room).rglob("*") if path.suffix in (".cpp", ".h")]
    for path in sorted(sources):
        target = work / path.relative_to(root)
        target.parent.mkdir(parents=True, exist_ok=True)
        text = path.read_text(encoding="utf-8")
        target.write_text(without_modules(text) if path.suffix == ".js" else text, encoding="utf-8")
        yield target


def extracted(root):
    """{context: {text: ["file:line", ...]}}, and what lupdate complained about."""
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        names = work / "sources.lst"
        names.write_text("\n".join(str(path) for path in copied_sources(root, work)), encoding="utf-8")
        run = subprocess.run([lupdate(), "-silent", "-locations", "absolute", "-I", str(work), f"@{names}", "-ts", str(work / "all.ts")],
                             capture_output=True, text=True)
        if run.returncode != 0:
            sys.exit(f"texts: lupdate failed: {run.stderr}")
        contexts = {}
        for context in ElementTree.parse(work / "all.ts").getroot().iter("context"):
            texts = contexts.setdefault(context.findtext("name"), {})
            for message in context.iter("message"):
                places = [f"{Path(each.get('filename')).as_posix()}:{each.get('line')}" for each in message.iter("location")]
                texts[message.findtext("source")] = places
        return contexts, [line for line in run.stderr.splitlines() if line.strip() and not any(word in line for word in HARMLESS)]


def table(root, language, name):
    path = root / "interface/texts" / language / f"{name}.json"
    return json.loads(path.read_text(encoding="utf-8")) if path.exists() else None


def places_of(text):
    return sorted(set(PLACES.findall(text)))


def compare_texts(where, base, other):
    """What is wrong with one table of {key: text} beside that of the first language."""
    problems = [f"{where}: no text for {key}" for key in base if key not in other]
    problems += [f"{where}: nobody has the key {key}" for key in other if key not in base]
    for key in base:
        if isinstance(other.get(key), str) and places_of(other[key]) != places_of(base[key]):
            problems.append(f"{where}: other places for values than in English: {key}")
        if key in other and not isinstance(other[key], str):
            problems.append(f"{where}: {key} is no text")
        elif other.get(key) == "" and base[key] != "":
            problems.append(f"{where}: the text of {key} is empty")
    return problems


def check_tables(root):
    """The tables of services, in which each language has each key."""
    names = sorted({path.stem for path in (root / "interface/texts").rglob("*.json")} - {"Interface"})
    problems = []
    for name in names:
        base = table(root, "en", name)
        if base is None:
            problems.append(f"en/{name}.json is missing")
            continue
        for language in LANGUAGES:
            other = table(root, language, name)
            problems += [f"{language}/{name}.json is missing"] if other is None else \
                compare_texts(f"{language}/{name}.json", base, other)
    return problems, names


def used_keys(root):
    """Every text between quotes that a service or a script could look up."""
    used = set()
    for path in [*(root / "interface").rglob("*.js"), *(p for room in ROOMS for p in (root / room).rglob("*.cpp"))]:
        used.update(re.findall(r'"([A-Za-z][\w.]*)"', path.read_text(encoding="utf-8")))
    return used


def check_keys(root):
    used = used_keys(root)
    return [f"en/Localizable.json: nobody looks up {key}" for key in table(root, "en", "Localizable") or {}
            if key not in used]


def check_interface(root, contexts):
    """The translations of scripts, forms and C++: whole where a language has any."""
    problems, waiting = [], []
    base = {f"{context}: {text}": text for context, texts in contexts.items() for text in texts}
    for language in LANGUAGES[1:]:
        there = table(root, language, "Interface")
        if there is None:
            waiting.append(language)
            continue
        flat = {f"{context}: {text}": value for context, texts in there.items() for text, value in texts.items()}
        problems += compare_texts(f"{language}/Interface.json", base, flat)
    return problems, waiting


def check(root):
    contexts, complaints = extracted(root)
    problems, names = check_tables(root)
    problems += check_keys(root) + [f"lupdate: {line}" for line in complaints]
    more, waiting = check_interface(root, contexts)
    problems += more
    count = sum(len(texts) for texts in contexts.values())
    if count == 0 or not names:
        problems.append("no texts found")
    for problem in problems:
        print(problem)
    state = f", not yet translated: {' '.join(waiting)}" if waiting else ""
    print(f"{len(problems)} problems" if problems else f"{count} texts in {len(contexts)} contexts{state}; tables: {' '.join(names)}")
    return 1 if problems else 0


def update(root):
    contexts, _ = extracted(root)
    for language in LANGUAGES[1:]:
        old = table(root, language, "Interface") or {}
        new = {context: {text: old.get(context, {}).get(text) for text in sorted(texts)}
               for context, texts in sorted(contexts.items())}
        path = root / "interface/texts" / language / "Interface.json"
        path.write_text(json.dumps(new, ensure_ascii=False, indent=1) + "\n", encoding="utf-8")
        missing = sum(value is None for texts in new.values() for value in texts.values())
        print(f"{path.relative_to(root)}: {missing} texts wait for their translation")
    return 0


def main():
    if len(sys.argv) < 3 or sys.argv[1] not in ("extract", "check", "update"):
        print(__doc__)
        return 2
    root = Path(sys.argv[2]).resolve()
    if sys.argv[1] == "extract":
        contexts, _ = extracted(root)
        Path(sys.argv[3]).write_text(json.dumps(contexts, ensure_ascii=False, indent=1, sort_keys=True) + "\n", encoding="utf-8")
        print(f"{sum(len(texts) for texts in contexts.values())} texts in {len(contexts)} contexts")
        return 0
    return check(root) if sys.argv[1] == "check" else update(root)


if __name__ == "__main__":
    sys.exit(main())
