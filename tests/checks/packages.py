#!/usr/bin/env python3
"""packages.py ROOT: packaging/packages.txt against what the build and the tests really use.

A package that everybody here happens to have installed hides from every other test. So each pkg-config module, each
component of Qt, each command of a script or a test and each such header must come from a package of the list, and if
dpkg is available the package must really contain it.
"""
import re
import shutil
import subprocess
import sys
from pathlib import Path

import source_tree as tree

GROUPS = {"build", "run", "test", "lint", "package", "pictures", "bench", "fuzz", "bare"}
# What every Debian has: essential packages, bash and what a shell provides itself.
ALWAYS = set("""apt-get awk basename bash cat cd chmod cmp comm cp cut date df dirname dpkg-query du echo env exec exit
    export find grep gzip head id kill ln ls mapfile mkdir mktemp mv nice printf read rm sed seq set sh sha256sum sleep
    sort stat su sudo sync tail tee test time timeout touch tr trap true uniq wait wc xargs""".split())
# Commands whose use in files of ours is looked for; the list of packages must give each one that is used.
KNOWN = """cmake ctest ninja pkg-config python3 git exiftool vips vipsheader vipsthumbnail vipsedit identify
    convert gm mogrify exiv2 Xvfb xvfb-run xdotool import desktop-file-validate appstreamcli clang-format clang-tidy
    run-clang-tidy hyperfine jpegtran djpeg cjpeg tiffinfo pdfinfo pdftoppm pdfimages opj_decompress opj_compress compare lupdate lrelease rsvg-convert file xauth
    cwebp gif2webp webpmux heif-enc tiffcp tiffset
    sqlite3 plistutil dbus-run-session strace valgrind mmdebstrap dpkg-buildpackage lintian""".split()
HEADERS = {"tl/expected.hpp"}
# Formats of Qt that are read and written by plugins of a package of their own.
PLUGIN_FORMATS = re.compile(r'(?:QImageReader|QImageWriter|loadThroughQt)\b[^;{]*"(icns|mng|tga|tiff|wbmp|webp)"')


def listed(root):
    """{'cmd:ninja': [(group, package)]} and the problems of the list itself."""
    gives, problems, packages = {}, [], {}
    for number, line in enumerate(tree.read(root / "packaging/packages.txt").split("\n"), 1):
        words = line.split()
        if not words or words[0].startswith("#"):
            continue
        if len(words) < 3 or not set(words[0].split(",")) <= GROUPS:
            problems.append(f"packages.txt:{number}: not a group, a package and what it is needed for")
            continue
        if words[1] in packages:
            problems.append(f"packages.txt:{number}: {words[1]} stands in line {packages[words[1]]} already")
        packages[words[1]] = number
        for token in words[2:]:
            gives.setdefault(token, []).extend((group, words[1]) for group in words[0].split(","))
    return gives, problems


def used_by_cmake(root):
    """(token, file) for every library that a CMake file asks for."""
    for path in tree.files(root):
        if path.name != "CMakeLists.txt" and path.suffix != ".cmake":
            continue
        where = str(path.relative_to(root))
        text = re.sub(r"#[^\n]*", "", tree.read(path))
        for call in re.finditer(r"find_package\s*\(\s*(\w+)([^)]*)\)", text):
            if call.group(1) == "Qt6":
                words = re.sub(r"\b(REQUIRED|COMPONENTS|OPTIONAL_COMPONENTS|QUIET|CONFIG)\b|[\d.]+", " ", call.group(2))
                yield from ((f"qt:{word}", where) for word in words.split())
            elif call.group(1) == "PkgConfig":
                yield "cmd:pkg-config", where
            elif call.group(1) in ("Python3", "Python"):
                yield "cmd:python3", where
            elif call.group(1) not in ("Threads",):
                yield f"cmake:{call.group(1)}", where
        for call in re.finditer(r"pkg_check_modules\s*\(\s*\w+([^)]*)\)", text):
            words = re.sub(r"\b(REQUIRED|IMPORTED_TARGET|QUIET|GLOBAL)\b|[<>]=?[\d.]+", " ", call.group(1))
            yield from ((f"pkg:{word}", where) for word in words.split())
        for call in re.finditer(r"find_program\s*\(\s*\w+\s+(?:NAMES\s+)?([\w-]+)", text):
            if call.group(1) != "ccache":
                yield f"cmd:{call.group(1)}", where


def commands_of(path, text):
    if path.suffix == ".py":
        starts = re.findall(r"(?:run|Popen|check_output|check_call|which)\(\s*\[?\s*[\"']([\w.-]+)[\"']", text)
    elif path.suffix == ".cpp":
        starts = re.findall(r"(?:start|execute|findExecutable|startDetached)\(\s*(?:QStringLiteral|u)?\(?\"([\w.-]+)\"",
                            tree.without_comments(text))
    else:
        plain = re.sub(r"(^|\s)#[^\n]*", "", text)
        starts = re.findall(r"(?:^|[|;&(]|\bexec\b|\bthen\b|\bdo\b|\bnice\b|=)\s*([A-Za-z][\w.-]*)(?=\s|$)", plain, re.M)
    return {name for name in starts if name in KNOWN}


def is_script(path, text):
    return path.suffix == ".sh" or (not path.suffix and text.startswith("#!") and "sh" in text.split("\n", 1)[0])


def used_by_scripts(root):
    for path in tree.files(root):
        text = tree.read(path) if path.suffix in {".py", ".sh", ".cpp", ""} else ""
        where = str(path.relative_to(root))
        if not (path.suffix in {".py", ".cpp"} or is_script(path, text)):
            continue
        yield from ((f"cmd:{name}", where) for name in sorted(commands_of(path, text)))
        if path.suffix == ".cpp":
            yield from ((f"include:{name}", where) for name in HEADERS if f"<{name}>" in text)
            yield from ((f"plugin:q{name}", where) for name in PLUGIN_FORMATS.findall(tree.without_comments(text)))


def groups_for(where):
    if where.startswith("bench/"):
        return GROUPS
    if where in ("tools/bare", "tools/minimal-root.sh"):
        return {"build", "run", "test", "bare"}
    if where in ("tools/package", "tools/try-package", "tools/compare-packages"):
        return {"build", "package", "bare"}
    if where == "tests/checks/format.py" or where.endswith("Lint.cmake"):
        return {"build", "run", "test", "lint"}
    if where.startswith("tests/pictures/"):
        return {"test", "pictures"}
    if where.startswith(("tests/", ".ci/")) or where in ("test", "tools/make-samples.py"):
        return {"build", "run", "test"}
    return {"build"}


def held_by(package):
    """The files of an installed package and of what it depends on by itself; None if it is not installed."""
    asked = subprocess.run(["dpkg-query", "-W", "-f=${db:Status-Status}|${Pre-Depends},${Depends}", package],
                           capture_output=True, text=True).stdout
    status, _, depends = asked.partition("|")
    if status != "installed":
        return None
    names = re.findall(r"(?:^|[,|])\s*([a-z0-9][a-z0-9+.-]*)", depends)
    return set(subprocess.run(["dpkg", "-L", package, *names], capture_output=True, text=True).stdout.split("\n"))


def path_of(token):
    kind, name = token.split(":", 1)
    return {"cmd": name if name.startswith("/") else f"/bin/{name}", "pkg": f"/{name}.pc",
            "qt": f"/Qt6{name}Config.cmake", "include": f"/{name}",
            "plugin": f"/imageformats/lib{name}.so"}.get(kind)


def false_claims(gives):
    """What the list says a package gives and the installed package does not hold."""
    held_files = {package: held_by(package) for owners in gives.values() for _, package in owners}
    for token, owners in gives.items():
        wanted = path_of(token)
        for _, package in owners if wanted else ():
            held = held_files[package]
            if held is not None and not any(path.endswith(wanted) for path in held) and not via_alternatives(wanted, held):
                yield f"packages.txt: {package} does not hold {token}"


def via_alternatives(wanted, held):
    """Debian puts some commands in place by links that no package holds: look where the link ends."""
    there = shutil.which(Path(wanted).name, path="/usr/bin:/bin")
    return bool(there) and str(Path(there).resolve()) in held


def main():
    root = Path(sys.argv[1]).resolve()
    gives, problems = listed(root)
    uses = set(used_by_cmake(root)) | set(used_by_scripts(root))
    for token, where in sorted(uses):
        owners = gives.get(token) or gives.get(token.replace("cmd:", "cmd:/usr/lib/qt6/bin/")) or []
        if token.split(":")[1] in ALWAYS:
            continue
        if not any(group in groups_for(where) for group, _ in owners):
            problems.append(f"{where} needs {token}, which no package of groups {sorted(groups_for(where))} gives")
    if shutil.which("dpkg"):
        problems += false_claims(gives)
    if not uses:
        problems.append(f"nothing found that uses a package below {root}")
    return tree.report(problems, f"{len(uses)} uses are covered by {len(gives)} entries")


if __name__ == "__main__":
    sys.exit(main())
