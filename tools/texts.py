#!/usr/bin/env python3
"""texts.py extract SOURCE FILE.ts | check SOURCE | update SOURCE: the texts that users read, and their translations.

extract  collects the texts of scripts, forms and C++ into FILE.ts.
check    holds the translations, interface/texts/quorlin_*.ts, against the texts, and the tables of services against each
         other: nothing is missing, unfinished or unused, and the places for values are the same in every language. Words that are
         not used, and sentences that are too long, are found by phrases.py.
update   adds the texts that a translation lacks, unfinished, and takes away those that nobody uses.

Needs lupdate of Qt, which cannot read modules: it gets copies of the scripts with "import" and "export" blanked out.
"""
import json
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import phrases

LANGUAGES = ("en", "nl", "de", "fr")
ROOMS = ("app", "views", "image", "jobs", "files", "meta", "presets", "text", "platform")
MODULE_WORDS = re.compile(r"^(\s*)(import\b[^;]*;|export\s+default\b|export\b)", re.M)
# Messages of lupdate about C++ that it need not understand.
HARMLESS = ("Ignoring definition of undeclared qualified class", "Discarding unconsumed meta data")
# %1, %2 ..., %n, and the %@ of keys that services fill.
PLACES = re.compile(r"%(?:L?[1-9]|L?n|@)")
COUNTS = ("%n", "%Ln")


def without_modules(text):
    """A module as a plain script: the same lines, the same columns after what is blanked out."""
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


def collect(root, *runs):
    """Runs lupdate over the texts with each list of options; what it complained about."""
    complaints = []
    with tempfile.TemporaryDirectory() as folder:
        work = Path(folder)
        names = work / "sources.lst"
        names.write_text("\n".join(str(path) for path in copied_sources(root, work)), encoding="utf-8")
        for options in runs:
            run = subprocess.run([lupdate(), "-silent", "-no-obsolete", "-locations", "none", "-source-language", "en", "-I", str(work),
                                  f"@{names}", *options], capture_output=True, text=True)
            if run.returncode != 0:
                sys.exit(f"texts: lupdate failed: {run.stderr}")
            complaints += [line for line in run.stderr.splitlines() if line.strip() and not any(word in line for word in HARMLESS)]
    return complaints


def extracted(root):
    """The messages of all texts, and what lupdate complained about."""
    with tempfile.TemporaryDirectory() as folder:
        all_texts = Path(folder) / "all.ts"
        complaints = collect(root, ["-ts", str(all_texts)])
        return messages(all_texts), complaints


def messages(path):
    """{"context: text": (text, forms of the translation or None, has a count)} of a .ts file."""
    found = {}
    for context in ElementTree.parse(path).getroot().iter("context"):
        for message in context.iter("message"):
            text, made = message.findtext("source"), message.find("translation")
            has_count = message.get("numerus") == "yes"
            forms = [form.text or "" for form in made.iter("numerusform")] if has_count else [made.text or ""]
            found[f"{context.findtext('name')}: {text}"] = (text, None if made.get("type") else forms, has_count)
    return found


def translation(root, language):
    return root / "interface/texts" / f"quorlin_{language}.ts"


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
    names = sorted({path.stem for path in (root / "interface/texts").rglob("*.json")})
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


def check_sentences(root):
    """What is said about recipes, and why a file fails, is said in the window too, in the language of that, if it is marked."""
    marked = [(path, "sentence") for path in sorted((root / "image/recipe").glob("*.cpp"))]
    marked += [(path, "text") for path in sorted((root / "platform").rglob("*.cpp"))
               if "QString text(const char *sentence)" in path.read_text(encoding="utf-8")]
    return [f"{path.relative_to(root)}: not marked for translation: {text}" for path, function in marked
            for text in re.findall(rf'\b{function}\(\s*"([^"]*)', path.read_text(encoding="utf-8"))]


def fault_of(text, forms, has_count):
    """What is wrong with a finished translation. Each of our languages has two forms; the one for 1 may omit the
    number."""
    if len(forms) != (2 if has_count else 1):
        return "lacks a form" if len(forms) < 2 else "has a form too many"
    if not all(forms):
        return "is empty"
    wanted, found = places_of(text), [places_of(form) for form in forms]
    uncounted = [place for place in wanted if place not in COUNTS]
    if found[-1] != wanted or found[0] != wanted and not (has_count and found[0] == uncounted):
        return "has other places for values than in English"
    return ""


def check_translation(path, base):
    """A translation beside all texts; of English only those with counts."""
    if not path.exists():
        return [f"{path.name} is missing"]
    there = messages(path)
    problems = [f"{path.name}: lacks {key}" for key in base if key not in there]
    problems += [f"{path.name}: nobody uses {key}" for key in there if key not in base]
    for key, (text, forms, has_count) in there.items():
        fault = "is unfinished" if forms is None else fault_of(text, forms, has_count)
        if fault:
            problems.append(f"{path.name}: {fault}: {key}")
    return problems


def check_words(root, texts):
    """Whether texts say what they say in words that we use."""
    problems = phrases.faults_of_sources({key: text for key, (text, _, _) in texts.items()})
    for language in LANGUAGES:
        path = translation(root, language)
        if language != "en" and path.exists():
            made = {key: forms for key, (_, forms, _) in messages(path).items() if forms is not None}
            problems += phrases.faults_of_translations(language, made)
        problems += [f"{language}/Localizable.json: says “{phrase}”: {key}" for key, text in (table(root, language, "Localizable") or {}).items()
                     if isinstance(text, str) for phrase in phrases.found_in(text, language)]
    return problems + phrases.check_pages(root)


def check(root):
    texts, complaints = extracted(root)
    problems, names = check_tables(root)
    problems += check_keys(root) + check_sentences(root) + check_words(root, texts) + [f"lupdate: {line}" for line in complaints]
    counts = {key: message for key, message in texts.items() if message[2]}
    for language in LANGUAGES:
        problems += check_translation(translation(root, language), counts if language == "en" else texts)
    if not texts or not names:
        problems.append("no texts found")
    for problem in problems:
        print(problem)
    print(f"{len(problems)} problems" if problems else f"{len(texts)} texts, {len(counts)} of them with counts; tables: {' '.join(names)}")
    return 1 if problems else 0


def update(root):
    others = [str(translation(root, language)) for language in LANGUAGES if language != "en"]
    collect(root, ["-ts", *others], ["-pluralonly", "-ts", str(translation(root, "en"))])
    for language in LANGUAGES:
        waiting = sum(forms is None for _, forms, _ in messages(translation(root, language)).values())
        print(f"{translation(root, language).relative_to(root)}: {waiting} texts wait for their translation")
    return 0


def main():
    if len(sys.argv) < 3 or sys.argv[1] not in ("extract", "check", "update"):
        print(__doc__)
        return 2
    root = Path(sys.argv[2]).resolve()
    if sys.argv[1] == "extract":
        Path(sys.argv[3]).unlink(missing_ok=True)
        collect(root, ["-ts", sys.argv[3]])
        return 0
    return check(root) if sys.argv[1] == "check" else update(root)


if __name__ == "__main__":
    sys.exit(main())
