"""Where the pictures are that batches run over: the tests' own, or the corpus beside the tree."""
import os
from pathlib import Path

OWN = Path(__file__).resolve().parents[1] / "pictures"


def named(word):
    """The folder for "own", or for the path of the corpus, which QUORLIN_TEST_CORPUS overrides; nothing if it does not
    exist."""
    folder = OWN if word == "own" else Path(os.environ.get("QUORLIN_TEST_CORPUS") or word).resolve()
    if (folder / "EXPECT.tsv").exists():
        return folder
    if folder == OWN:
        raise SystemExit(f"the tests' own pictures are not in {OWN}")
    print(f"no corpus in {folder}")
    return None


def rows(folder):
    """The rows of EXPECT.tsv as dictionaries."""
    lines = (folder / "EXPECT.tsv").read_text(encoding="utf-8").rstrip("\n").split("\n")
    names = lines[0].split("\t")
    return [dict(zip(names, line.split("\t"))) for line in lines[1:]]
