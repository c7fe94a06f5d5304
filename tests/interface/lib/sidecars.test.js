import { goingAlong, Sidecars } from "../../../interface/lib/sidecars.js";
import { equal, finish, test } from "../check.js";

function sidecarsAmong(names) {
    const asked = [];
    const sidecars = new Sidecars({
        namesEndingIn: (folder) => { asked.push(folder); return folder === "/a" ? names : []; },
    });
    return { of: (path) => sidecars.of(path), owner: (path) => sidecars.ownerOf(path),
             areIn: (folder) => sidecars.areIn(folder), asked: asked };
}

const ROWS = [
    [["a.jpg", "a.xmp"], "/a/a.jpg", [{ name: "a.xmp", ending: ".xmp" }]],
    [["a.jpg", "a.jpg.xmp"], "/a/a.jpg", [{ name: "a.jpg.xmp", ending: ".jpg.xmp" }]],
    [["a.jpg", "a.XMP", "a.aae"], "/a/a.jpg", [{ name: "a.XMP", ending: ".XMP" }, { name: "a.aae", ending: ".aae" }]],
    [["a.jpg", "A.xmp"], "/a/a.jpg", []],
    [["a.jpg", "ab.xmp", "b.xmp", ".xmp"], "/a/a.jpg", []],
    [["a.jpg", "a.png", "a.txt", "a"], "/a/a.jpg", []],
    [["a.xmp", "a.jpg"], "/a/a.xmp", []],
    [["plain", "plain.xmp"], "/a/plain", [{ name: "plain.xmp", ending: ".xmp" }]],
    [["b.c.jpg", "b.c.xmp"], "/a/b.c.jpg", [{ name: "b.c.xmp", ending: ".xmp" }]],
    [["a.jpg"], "/b/a.jpg", []],
];

for (const row of ROWS) {
    test("finds what belongs to " + row[1] + " among " + row[0].join(" "),
         () => equal(sidecarsAmong(row[0]).of(row[1]), row[2]));
}

test("tellsWhetherAFolderHasAny", () => {
    const sidecars = sidecarsAmong(["a.jpg", "b.xmp"]);
    equal([sidecars.areIn("/a"), sidecars.areIn("/b"), sidecars.areIn("/a")], [true, false, true]);
    equal(sidecars.asked, ["/a", "/b"]);
    equal(sidecarsAmong(["a.jpg", ".xmp"]).areIn("/a"), false);
});

test("givesASidecarToOnePictureOnly", () => {
    const sidecars = sidecarsAmong(["a.jpg", "a.cr2", "a.xmp"]);
    equal([sidecars.of("/a/a.cr2").length, sidecars.of("/a/a.jpg").length], [1, 0]);
    equal(sidecars.owner("/a/a.xmp"), "/a/a.cr2");
});

test("looksIntoAFolderOnce", () => {
    const sidecars = sidecarsAmong(["a.jpg", "b.jpg"]);
    sidecars.of("/a/a.jpg");
    sidecars.of("/a/b.jpg");
    equal(sidecars.asked, ["/a"]);
});

const GOING = [
    [["/a/a.xmp"], ["/a/a.jpg"], ["/a/a.xmp"]],
    [["/a/a.jpg.xmp"], ["/a/a.jpg"], ["/a/a.jpg.xmp"]],
    [["/a/a.XMP", "/a/b.xmp", "/b/a.xmp"], ["/a/a.jpg"], ["/a/a.XMP"]],
    [["/a/A.xmp"], ["/a/a.jpg"], []],
    [["/a/a.txt"], ["/a/a.jpg"], []],
    [["/a/.xmp"], ["/a/.jpg"], []],
    [["/a/a.xmp"], [], []],
    [[], ["/a/a.jpg"], []],
];

for (const row of GOING) {
    test("tells that " + row[2].length + " of " + row[0].join(" ") + " move with " + row[1].join(" "),
         () => equal(goingAlong(row[0], row[1]), row[2]));
}

finish();
