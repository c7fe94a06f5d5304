"""What the checks share: which files belong to the project, and their text without comments and literals."""
import re
from pathlib import Path

ROOMS = ("app", "jobs", "views", "image", "files", "meta", "presets", "text", "platform")
USERS = ("tools", "tests", "bench")
CPP = {".h", ".cpp"}
BUILT = ("build", ".git", ".cache")


def is_built(path, root):
    first = path.relative_to(root).parts[0]
    return first in BUILT or first.startswith("build-") or "__pycache__" in path.parts


def files(root, suffixes=None):
    """Every file of the tree below root that nobody generated, in order of name."""
    root = Path(root)
    for path in sorted(root.rglob("*")):
        if path.is_file() and not is_built(path, root) and (suffixes is None or path.suffix in suffixes):
            yield path


def read(path):
    return path.read_text(encoding="utf-8", errors="replace")


_TOKENS = re.compile(
    r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^()\s\\]{0,16})\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.S)


def _blank(text):
    return re.sub(r"[^\n]", " ", text)


def without_comments(text):
    """C++ or JavaScript text with its comments blanked out, line by line."""
    return _TOKENS.sub(lambda m: _blank(m.group()) if m.group().startswith(("//", "/*")) else m.group(), text)


def code_only(text):
    """Text with comments and the contents of literals blanked out, line by line."""
    return _TOKENS.sub(lambda m: _blank(m.group()), text)


def string_literals(text):
    """(line, content) of every string literal outside comments."""
    for match in _TOKENS.finditer(text):
        token = match.group()
        if token.startswith(('"', 'R"')):
            content = token[1:-1] if token[0] == '"' else token[token.index("(") + 1:token.rindex(")")]
            yield text.count("\n", 0, match.start()) + 1, content


def report(problems, clean):
    """Prints one line for each problem and returns the exit status of the check."""
    for problem in problems:
        print(problem)
    print(f"{len(problems)} problems" if problems else clean)
    return 1 if problems else 0
