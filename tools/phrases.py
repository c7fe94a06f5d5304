"""The words of texts that users read: phrases that are not used, straight quotes, contractions, sentences that are too long, and
buttons that are not in title case.

Holds what ships as text: the texts of the window and their translations, the tables of services, the texts between quotes in
sources, the manual, the man pages, the README, the desktop entry and the description for software centres. What something else
relies on stays as it is: EXEMPT names each such text with its place. Used by texts.py.
"""
import re
import xml.etree.ElementTree as ElementTree
from pathlib import Path

# Whole phrases: "date taken", "Sort by Hand" and "becomes" do not count.
PHRASES = {
    "en": [r"deeds?", r"anew", r"(go|goes|going|went|gone) along", r"(take|takes|taking|took) back", r"taken back", r"put back",
           r"(its|their|his) turn", r"(lying|standing) (pictures?|photos?|ones?)", r"stored lying", r"(pictures|photos) that stand",
           r"per cent", r"please", r"oops", r"(ca|do|does|did|is|are|was|were|have|has|had|would|should|could|wo)n[’']t",
           r"(it|that|there|what|who|let|he|she)[’']s", r"(you|we|they)[’'](re|ll|ve|d)", r"I[’'](m|ll|ve|d)",
           r"simulat(e|es|ed|ion|ions)", r"name is taken", r"counter-?clockwise", r"cut away", r"under way"],
    "de": [r"zurück(genommen|nehmen|zunehmen)", r"geh(t|en) mit", r"an der Reihe", r"bitte", r"Prozent", r"Lauf(s|es)?", r"Läufen?",
           r"Simulation(en)?", r"Durchsichtig(em|en|es)?", r"durchsichtige?[nrs]?", r"(liegende|stehende)[nrs]? Bild(er|ern)?",
           r"Name vergeben", r"Konvertieren", r"Das Band", r"sichern"],
    "fr": [r"s[’']il vous plaît", r"veuillez", r"pour cent", r"simulations?", r"simuler", r"(son|leur) tour", r"nom déjà pris",
           r"images? (couchées?|debout|verticales?)", r"être repris(es?)?"],
    "nl": [r"alstublieft", r"a\.u\.b\.", r"procent", r"simulaties?", r"simuleren", r"(de|aan de) beurt", r"ga(at|an) mee", r"doorzichtige?",
           r"metagegevens", r"prullenmand", r"naam bestaat al", r"verwerkingen", r"sidecar-bestand(en)?"],
}
# Menus that are searched by typing also find what people call things elsewhere.
SEARCHED = re.compile(r"^(step|recipe)-words: [a-z0-9 -]+$")
LONGEST = 120
# Sentences that may be longer: each names what it would lose by being shorter.
LONG = {
    "“%1” does not select part of a name; use a number of characters, “word”, or “~” and words separated by commas",
}
# Texts that others rely on to the letter, with their places.
EXEMPT = {
    "app/services/cSheetControl.cpp": [
        "*** FIRST: Choose a root support folder please: ***",
        r"Oeps! Your previous defined folder has gone!?\rSelect a new location please.",
    ],
    # A code, which scripts compare.
    "files/planning/move_problem.cpp": ["taken back"],
}
# Buttons and commands are in title case, but for these words in their middle.
SMALL = {"a", "an", "and", "as", "at", "by", "for", "from", "in", "into", "it", "of", "on", "or", "over", "the", "this", "to", "with"}
BUTTONS = ("QPushButton", "QToolButton")
LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
ROOMS = ("app", "views", "image", "jobs", "files", "meta", "presets", "text", "platform", "tools")


# An entity that was escaped once more is read as it is typed.
ESCAPED = re.compile(r"&(?:#\w+|amp|lt|gt|quot|nbsp);")


def patterns(language):
    return [re.compile(rf"(?<![\w’]){phrase}(?![\w])", re.I) for phrase in PHRASES[language]] + [ESCAPED]


def sentences(text):
    """The sentences of a text of the window; places for values count as one sign each."""
    plain = re.sub(r"%L?[1-9n]", "x", text).replace("&", "")
    return [part for line in plain.split("\n") for part in re.split(r"(?<=[.?!:;]) +", line) if part]


def found_in(text, language):
    return [match.group() for pattern in patterns(language) for match in [pattern.search(text)] if match]


def faults_of_sources(texts):
    """What is wrong with English texts of the window: {"context: text": text}."""
    problems = []
    for key, text in texts.items():
        problems += [f"says “{phrase}”: {key}" for phrase in found_in(text, "en") if not SEARCHED.match(key)]
        problems += [f"has a sentence of {len(part)} characters: {key}" for part in sentences(text)
                     if len(part) >= LONGEST and text not in LONG]
        if "!" in text:
            problems.append(f"has an exclamation mark: {key}")
        # Properties have the names that their standards give them.
        if not key.startswith("properties: ") and re.search(r"\w'\w|\.\.\.|\d %(?![\dLn])", text):
            problems.append(f"has a typewriter's sign for ’ or …, or a space before %: {key}")
    return problems


def faults_of_translations(language, forms):
    """What is wrong with the translations into one language: {"context: text": [forms]}."""
    return [f"quorlin_{language}.ts: says “{phrase}”: {key}" for key, texts in forms.items() for text in texts if text
            for phrase in found_in(text, language) if not SEARCHED.match(key)]


def title_case_fault(text):
    """The first word of the text of a button that lacks its capital; None if all have it."""
    words = re.findall(r"(?<![\w’{])[^\W\d_][\w’]*", text.replace("&", ""))
    return next((word for i, word in enumerate(words) if word[0].islower() and (i == 0 or word not in SMALL)), None)


def buttons(root):
    """(place, text) of every button and command: of forms, and of questions that scripts ask."""
    for path in sorted((root / "interface").rglob("*.ui")):
        tree = ElementTree.parse(path).getroot()
        for control in [*(each for each in tree.iter("widget") if each.get("class") in BUTTONS), *tree.iter("action")]:
            for text in control.findall("property[@name='text']/string"):
                if text.get("notr") != "true" and text.text:
                    yield str(path.relative_to(root)), text.text
    for path in sorted((root / "interface").rglob("*.js")):
        for answers in re.findall(r"buttons: \[(.*?)\]", path.read_text(encoding="utf-8"), re.S):
            for text in re.findall(r'qsTr\("([^"]*)"', answers):
                yield str(path.relative_to(root)), text


def check_buttons(root):
    return [f"{place}: “{fault}” in the button “{text}” has no capital" for place, text in buttons(root)
            for fault in [title_case_fault(text)] if fault]


def without_code(text):
    """A page without anything that is typed literally: code, links, tables of formats."""
    return re.sub(r"`[^`]*`|\]\([^)]*\)|^    .*$|^\.\w+.*$", "", text, flags=re.M)


def pages(root):
    """(place, language, text) of everything else that ships as text."""
    for path in [*sorted((root / "docs/manual").glob("*.md")), *sorted((root / "docs/man").glob("*.[15]")), root / "README.md"]:
        if path.exists():
            yield str(path.relative_to(root)), "en", without_code(path.read_text(encoding="utf-8"))
    for language in PHRASES:
        for path in sorted((root / "docs/manual" / language).glob("*.md")):
            yield str(path.relative_to(root)), language, without_code(path.read_text(encoding="utf-8"))
    for path in sorted((root / "packaging").glob("*.desktop")):
        for line in path.read_text(encoding="utf-8").splitlines():
            match = re.match(r"(?:Name|GenericName|Comment)(?:\[(\w\w)\])?=(.*)", line)
            if match:
                yield str(path.relative_to(root)), match.group(1) or "en", match.group(2)
    for path in sorted((root / "packaging").glob("*.metainfo.xml")):
        for element in ElementTree.parse(path).getroot().iter():
            if element.text and element.tag in ("p", "li", "summary", "caption", "name"):
                yield (str(path.relative_to(root)), element.get("{http://www.w3.org/XML/1998/namespace}lang", "en"), element.text)


def literals(root):
    """(place, text) of every text between quotes in the sources of programs."""
    paths = [path for room in ROOMS for path in (root / room).rglob("*") if path.suffix in (".cpp", ".h")]
    for path in sorted([*paths, *(root / "interface").rglob("*.js")]):
        for line in path.read_text(encoding="utf-8").splitlines():
            if not re.match(r"\s*(//|\*|/\*|#include|import|\} from|export \{)", line):
                for match in LITERAL.finditer(line):
                    if " " in match.group(1):
                        yield str(path.relative_to(root)), match.group(1)


def check_pages(root):
    problems = check_buttons(root)
    problems += [f"{place}: says “{phrase}”: {text.strip()[:60]}" if len(text) < 400 else f"{place}: says “{phrase}”"
                for place, language, text in pages(root) for phrase in found_in(text, language)]
    return problems + [f"{place}: says “{phrase}”: {text[:60]}" for place, text in literals(root)
                       if text not in EXEMPT.get(place, ()) for phrase in found_in(text, "en")]
