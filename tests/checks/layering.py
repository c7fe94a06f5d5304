#!/usr/bin/env python3
"""layering.py ROOT [--qt-headers DIR]: who may enter which room.

Compares every #include and every link list with the tables below, and looks for the product's own words in the
platform room. --qt-headers is the folder with QtCore/, QtGui/ ...; without it Qt's headers are not sorted by module.
"""
import argparse
import re
import sys
from pathlib import Path

import source_tree as tree

# Room: the rooms that it may include besides its own. The product's rooms are independent of each other, except for the
# lines where a date stamp, a collection of files or the facts of a picture's file need another room's help.
MAY_ENTER = {
    "platform": set(),
    "text": {"platform"},
    "image": {"platform", "text"},
    "presets": {"platform"},
    "views": {"platform"},
    "files": {"platform", "text", "image"},
    "meta": {"platform", "files"},
    "jobs": {"platform", "text", "image", "files", "meta", "presets"},
    "app": set(tree.ROOMS),
    "tools": set(tree.ROOMS),
    "tests": set(tree.ROOMS) | {"tools"},
    "bench": set(tree.ROOMS) | {"tools"},
}
# Sub-rooms: the folders of a room by their paths below it, in an order in which each includes only earlier ones, and
# which of these each may include besides its own ("*" means all above it). A room that is listed here lists all folders
# in which it has sources, the room itself as "" if it has some.
SUB_ROOMS = {
    "platform": {
        "foundation": "",
        "values": "foundation",
        "plist": "foundation",
        "descriptors": "",
        "file": "foundation descriptors",
        "disk": "foundation descriptors file",
        "workers": "descriptors",
        "confinement": "descriptors",
        "controls": "foundation values",
        "planes": "",
        "graphics": "foundation descriptors planes",
        "effects": "foundation descriptors graphics",
        # Pictures as files: bytes first, then one folder for each kind of file, then what is common to all of them.
        "imageio/bytes": "foundation file",
        "imageio/formats": "foundation graphics imageio/bytes",
        "imageio/jpeg": "foundation planes graphics imageio/bytes",
        "imageio/jpeg2000": "foundation graphics imageio/bytes",
        "imageio/png": "planes graphics imageio/bytes",
        "imageio/tiff": "imageio/bytes",
        "imageio/bmp": "graphics imageio/bytes",
        "imageio/photoshop": "graphics imageio/bytes",
        "imageio/parts": "foundation",
        "imageio/whole": "file imageio/bytes imageio/formats imageio/jpeg2000 imageio/tiff imageio/bmp",
        "imageio/exif": "foundation file imageio/bytes imageio/jpeg imageio/tiff",
        "imageio/xmp": "imageio/png",
        "imageio/metadata": "foundation graphics imageio/bytes imageio/formats imageio/jpeg imageio/png imageio/tiff "
                            "imageio/photoshop imageio/parts imageio/exif imageio/xmp",
        "imageio/load": "file graphics imageio/bytes imageio/formats imageio/jpeg2000 imageio/tiff imageio/bmp "
                        "imageio/photoshop",
        "imageio/encoders": "foundation planes graphics imageio/bytes imageio/formats imageio/jpeg imageio/png imageio/tiff imageio/parts "
                            "imageio/metadata",
        "imageio/codecs": "file graphics imageio/bytes imageio/formats imageio/jpeg2000 imageio/tiff imageio/bmp imageio/whole "
                          "imageio/load imageio/encoders",
        "imageio/facts": "foundation file graphics imageio/bytes imageio/formats imageio/jpeg imageio/jpeg2000 imageio/png imageio/tiff "
                         "imageio/bmp imageio/photoshop imageio/exif imageio/xmp imageio/metadata imageio/codecs",
        "imageio/encode": "foundation file graphics imageio/formats imageio/jpeg2000 imageio/metadata imageio/encoders imageio/codecs",
        "imageio/source": "foundation file graphics imageio/bytes imageio/formats imageio/jpeg imageio/tiff imageio/exif "
                          "imageio/metadata imageio/codecs imageio/facts",
        "imageio/convert": "foundation file planes graphics imageio/bytes imageio/formats imageio/jpeg imageio/png imageio/parts imageio/exif "
                           "imageio/encoders imageio/codecs imageio/facts imageio/metadata imageio/encode imageio/source",
        "imageio/comments": "foundation file imageio/formats imageio/jpeg imageio/png imageio/tiff imageio/exif imageio/source",
        "imageio/edits": "foundation file imageio/bytes imageio/formats imageio/jpeg imageio/png imageio/tiff imageio/parts imageio/xmp "
                         "imageio/metadata imageio/source",
        "desktop": "foundation file disk imageio/formats imageio/encode imageio/source",
    },
    "image": {"types": "", "": "types", "recipe/keys": "types", "recipe": "*", "services": "*"},
    "text": {"": "", "page": "*", "services": "*"},
    "files": {
        "items": "",
        "planning": "",
        "moving": "planning",
        "finishing": "",
        "services": "items planning moving finishing",
        "": "items",
    },
    "app": {
        # Without a widget: all of these but the last two are what quorlin-script links.
        "setup": "",
        "network": "setup",
        "printing": "",
        "services": "setup network printing",
        "seam": "",
        "jobs": "seam",
        "script": "setup services seam",
        "modules": "printing seam script",
        "reading": "modules",
        "preview": "reading",
        # Windows.
        "window/look": "",
        "models": "window/look reading",
        "window/controls": "window/look",
        "window/fields": "",
        "window/folders": "window/look",
        "window/log": "models window/look",
        "window/manual": "window/look",
        "window/panels": "",
        "window/pictures": "models window/look reading",
        "window/preview": "printing seam reading preview window/look",
        "window/properties": "models reading",
        "window/slots": "models window/look",
        "window/web": "",
        "window/forms": "seam window/look window/controls window/fields window/folders window/log window/manual window/pictures "
                        "window/preview window/properties window/slots window/web",
        "window": "*",
        "": "*",
    },
}
# Qt modules by room. Nothing below views and app needs a widget, so that services run in a process without windows.
SERVICE_QT = {"QtCore", "QtGui", "QtQml"}
QT_MODULES = {room: SERVICE_QT for room in ("image", "files", "meta", "presets", "jobs")}
QT_MODULES.update({"text": {"QtCore"}, "platform": {"QtCore", "QtGui"}, "views": SERVICE_QT})
# The same for sub-rooms of the room that has windows, and for the library that is linked if there are none.
WITHOUT_WIDGETS = ("setup", "network", "printing", "services", "seam", "jobs", "script", "modules", "preview", "models")
QT_MODULES.update({f"app/{name}": SERVICE_QT | {"QtNetwork"} for name in WITHOUT_WIDGETS})
QT_OF_TARGET = {"quorlin_script": SERVICE_QT | {"QtNetwork"}}

# Third-party headers and targets, by the one room that may include or link them.
THIRD_PARTY = [
    (r"(vips/|VImage|vips8?\b)", "platform"), (r"exiv2/", "platform"), (r"(cairo|pango/)", "platform"),
    (r"(jpeglib|jerror|jmorecfg|turbojpeg)\.h|jpeglib\.h", "platform"), (r"plist/", "platform"), (r"openjpeg\.h", "platform"), (r"libdeflate\.h", "platform"),
    (r"(glib|gobject|gio)(/|\.h|-object\.h)", "platform"), (r"(tiff|png|zlib|lcms2|webp/.*|libheif/.*|jxl/.*)\.?h?$", "platform"),
    (r"(seccomp\.h|fontconfig/|xcb/)", "platform"), (r"sqlite3\.h", "presets"), (r"tl/expected\.hpp", "platform"),
]
LINK_TARGETS = {"PkgConfig::VIPS": "platform", "PkgConfig::EXIV2": "platform", "PkgConfig::CAIRO": "platform",
                "PkgConfig::JPEG": "platform", "PkgConfig::TURBOJPEG": "platform", "PkgConfig::PLIST": "platform", "PkgConfig::OPENJPEG": "platform",
                "PkgConfig::HEIF": "platform", "PkgConfig::JXL": "platform", "PkgConfig::JXL_THREADS": "platform", "PkgConfig::LCMS": "platform", "PkgConfig::PANGO": "platform",
                "PkgConfig::DEFLATE": "platform", "PkgConfig::SECCOMP": "platform", "PkgConfig::XCB": "platform", "PkgConfig::FONTCONFIG": "platform", "PkgConfig::SQLITE": "presets", "SQLite::SQLite3": "presets"}
SYSTEM = re.compile(r"(sys|linux|netinet|arpa)/\w+\.h|(unistd|fcntl|dirent|dlfcn|iconv|poll|sched|signal|pwd|errno|time|malloc|syslog|spawn|execinfo)\.h")
STANDARD = re.compile(r"[a-z_0-9]+|(cstd|c)[a-z]+|(stdio|stdlib|string|stdint|stddef|setjmp|math|limits|immintrin)\.h")

# Words of the product that the platform must not know: classes of the seam, status words, action keywords.
PRODUCT_NAMES = re.compile(r"\b(ZtImageHandling|cMConversion|cToolBox|cNSFileHandling|cNSStringHandling|mMeta|"
                           r"cEditMetaData|dbViewController|Ztbookmarks|cSheetControl|cAppUpdater|cPrint|"
                           r"my(Main|2nd)PhotoView|mainWindowClass|mainViewController|ZtFFullScreen)\b")
PRODUCT_TEXTS = {"OK", "Failed", "FAILED", "Not Supported", "EXISTS", "successfull", "original file type", "EMM",
                 "EMMDir", "batchSort", "batchSortImages", "resize", "sort", "rescale", "rename", "renameDir",
                 "sortDir", "WatermarkDir", "WatermarkFiles"}
PRODUCT_LOGS = ("Failed to write image to", "Image source is NULL")

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*(?:"([^"]+)"|<([^>]+)>)', re.M)


def qt_modules(folder):
    """Header name to module, as Qt is installed here."""
    if not folder:
        return {}
    return {header.name: module.name
            for module in Path(folder).glob("Qt*") if module.is_dir() for header in module.iterdir() if header.is_file()}


def check_own_include(room, name, path, root):
    target = name.split("/")[0]
    if "/" not in name:
        return None if room in tree.USERS else f'say "{room}/{name}", from the root of the project'
    if target not in MAY_ENTER:
        if room in tree.USERS and (path.parent / name).exists():
            return None
        return f"{target}/ is no room of the project"
    if target != room and target not in MAY_ENTER[room]:
        return f"{room}/ may not enter {target}/"
    if not (root / name).exists() and not (path.parent / name).exists():
        return f"{name} does not exist"
    return None


def sub_room(room, name):
    """The folder of a file below its room, "" for a file in the room itself."""
    return "/".join(name.split("/")[1:-1])


def check_sub_rooms(room, path, root):
    """A file in a sub-room enters those of its row only; it must have a row."""
    rows = SUB_ROOMS[room]
    where = path.relative_to(root)
    own = sub_room(room, where.as_posix())
    if own not in rows:
        yield f"{where}: {room}/{own} is not known to this check: say in layering.py which sub-rooms it may enter"
        return
    for name in own_includes(tree.without_comments(tree.read(path))):
        other = sub_room(room, name)
        if name.startswith(room + "/") and other != own and other not in entered_by(rows, own):
            yield f"{where}: {room}/{own} may not enter {room}/{other}".replace("/ ", " ").removesuffix("/")


def entered_by(rows, name):
    """The sub-rooms that one may enter."""
    before = list(rows)[:list(rows).index(name)]
    return before if rows[name] == "*" else rows[name].split()


def check_order(room):
    """A row names nothing but rows above it, so that there is no way round in a circle."""
    rows = SUB_ROOMS[room]
    for place, name in enumerate(rows):
        for other in sorted(set(entered_by(rows, name)) - set(list(rows)[:place])):
            yield f"layering.py: {room}/{name} enters {room}/{other}, which does not stand above it"


def check_foreign_include(room, name, modules, part=""):
    module = name.split("/")[0] if name.startswith("Qt") and "/" in name else modules.get(name)
    if module:
        allowed = QT_MODULES.get(f"{room}/{part}", QT_MODULES.get(room))
        return f"{room}/ may not use {module} ({name})" if allowed is not None and module not in allowed else None
    if re.fullmatch(r"[Qq][A-Za-z0-9]+(\.h)?", name) and not modules:
        return None
    for pattern, owner in THIRD_PARTY:
        if re.match(pattern, name):
            shared = name == "tl/expected.hpp" or room in ("tests", "bench")
            return None if room == owner or shared else f"<{name}> belongs to {owner}/ only"
    if SYSTEM.fullmatch(name) or STANDARD.fullmatch(name):
        return None
    return f"<{name}> is not known to this check: say in layering.py which room may include it"


def check_includes(path, room, root, modules):
    text = tree.without_comments(tree.read(path))
    for match in INCLUDE.finditer(text):
        own, foreign = match.groups()
        if own and own.endswith(".moc"):
            continue
        if own and re.match(r"ui_\w+\.h", own):
            continue
        fault = check_own_include(room, own, path, root) if own else \
            check_foreign_include(room, foreign, modules, sub_room(room, path.relative_to(root).as_posix()))
        if fault:
            yield f"{path.relative_to(root)}:{text.count(chr(10), 0, match.start()) + 1}: {fault}"


def own_includes(text):
    return [m.group(1) for m in INCLUDE.finditer(text) if m.group(1)]


def closed_headers(root):
    """Headers of platform/ that show a third-party type, by themselves or through another: they may not leave it."""
    texts = {str(path.relative_to(root)): tree.without_comments(tree.read(path))
             for path in tree.files(root / "platform", {".h"})}
    closed = {name for name, text in texts.items() for m in INCLUDE.finditer(text)
              if m.group(2) and m.group(2) != "tl/expected.hpp" and any(re.match(p, m.group(2)) for p, _ in THIRD_PARTY)}
    grown = True
    while grown:
        more = {name for name, text in texts.items() if name not in closed and closed.intersection(own_includes(text))}
        closed |= more
        grown = bool(more)
    return closed


def check_leaks(path, root, closed):
    for name in own_includes(tree.without_comments(tree.read(path))):
        if name in closed:
            yield f"{path.relative_to(root)}: {name} shows third-party types and may not leave platform/"


def check_words(path, root):
    text = tree.read(path)
    where = path.relative_to(root)
    for number, line in enumerate(tree.without_comments(text).split("\n"), 1):
        match = PRODUCT_NAMES.search(line)
        if match:
            yield f"{where}:{number}: platform/ names {match.group()}, a class of the product"
    for number, literal in tree.string_literals(text):
        if literal in PRODUCT_TEXTS or literal.startswith(PRODUCT_LOGS):
            yield f'{where}:{number}: platform/ says "{literal}", a word of the product'


def cmake_links(text):
    """(target, linked) for every library or program that a CMakeLists.txt links, in the order of the text."""
    text = re.sub(r"#[^\n]*", "", text)
    for call in re.finditer(r"(quorlin_library|target_link_libraries)\s*\(\s*([\w-]+)([^)]*)\)", text):
        name, words = call.group(2), call.group(3).split()
        linking = call.group(1) == "target_link_libraries"
        for word in words:
            if word in ("LINKS", "PRIVATE_LINKS"):
                linking = True
            elif word == "SOURCES":
                linking = False
            elif linking and word not in ("PUBLIC", "PRIVATE", "INTERFACE"):
                yield name, word


def may_link_qt(room, target, linked):
    allowed = QT_OF_TARGET.get(target, QT_MODULES.get(room))
    return allowed is None or not linked.startswith("Qt6::") or "Qt" + linked[5:] in allowed


def check_links(room, path, root):
    for target, linked in cmake_links(tree.read(path)):
        fault = None
        if linked in tree.ROOMS and linked != room and linked not in MAY_ENTER[room]:
            fault = f"{room}/ may not link {linked}"
        elif LINK_TARGETS.get(linked, room) != room and room not in tree.USERS:
            fault = f"{linked} belongs to {LINK_TARGETS[linked]}/ only"
        elif linked.startswith("PkgConfig::") and linked not in LINK_TARGETS:
            fault = f"{linked} is not known to this check: say in layering.py which room may link it"
        elif not may_link_qt(room, target, linked):
            fault = f"{room}/ may not link {linked}"
        elif target in QT_OF_TARGET and linked == "quorlin_window":
            fault = f"{target} may not link {linked}"
        if fault:
            yield f"{path.relative_to(root)}: {target}: {fault}"


def check(root, modules):
    problems, seen = [], 0
    closed = closed_headers(root)
    for room in SUB_ROOMS:
        problems += check_order(room)
    for room in MAY_ENTER:
        if not (root / room).is_dir():
            continue
        for path in tree.files(root / room):
            if path.suffix in tree.CPP:
                seen += 1
                problems += check_includes(path, room, root, modules)
                if room in SUB_ROOMS:
                    problems += check_sub_rooms(room, path, root)
                if room not in ("platform", "tests"):
                    problems += check_leaks(path, root, closed)
            if path.name == "CMakeLists.txt":
                problems += check_links(room, path, root)
            if room == "platform" and path.suffix in tree.CPP:
                problems += check_words(path, root)
    return problems, seen


def main():
    arguments = argparse.ArgumentParser()
    arguments.add_argument("root", type=Path)
    arguments.add_argument("--qt-headers")
    given = arguments.parse_args()
    problems, seen = check(given.root.resolve(), qt_modules(given.qt_headers))
    if seen == 0:
        problems.append(f"no source file found below {given.root}")
    return tree.report(problems, f"{seen} files keep to their rooms")


if __name__ == "__main__":
    sys.exit(main())
