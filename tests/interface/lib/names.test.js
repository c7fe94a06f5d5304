import { FolderNames, joinPath, numberedName, splitPath } from "../../../interface/lib/names.js";
import { equal, finish, test } from "../check.js";

const PATHS = [
    ["/a/b.jpg", "/a", "b.jpg", "b", "jpg"], ["/b.tar.gz", "/", "b.tar.gz", "b.tar", "gz"],
    ["/a/.hidden", "/a", ".hidden", ".hidden", ""], ["/a/dot.", "/a", "dot.", "dot.", ""],
    ["/a/plain", "/a", "plain", "plain", ""],
];

for (const row of PATHS) {
    test("takes apart " + row[0], () => {
        const parts = splitPath(row[0]);
        equal([parts.folder, parts.name, parts.base, parts.extension], row.slice(1));
        equal(joinPath(parts.folder, parts.name), row[0]);
    });
}

test("numbersBeforeTheExtension", () => {
    equal([numberedName("a.jpg", 2), numberedName("a", 3), numberedName("a.b.jpg", 10)],
          ["a (2).jpg", "a (3)", "a.b (10).jpg"]);
});

// Names of 255 bytes, the longest there are, of characters of one to four bytes.
for (const letter of ["a", "ä", "€", "🙂"]) {
    const bytes = unescape(encodeURIComponent(letter)).length;
    const name = "x".repeat((251 - bytes * 60) % 251) + letter.repeat(60) + ".jpg";

    test("numbersANameOf255Bytes " + letter, () => {
        const numbered = numberedName(name, 12);
        const encoded = encodeURIComponent(numbered); // an error where a character was cut in two
        equal([unescape(encodeURIComponent(name)).length, numbered.endsWith(" (12).jpg")], [255, true]);
        equal([unescape(encoded).length <= 255, unescape(encoded).length > 250], [true, true]);
        const names = new FolderNames([name, numberedName(name, 2)]);
        equal([names.giveNumbered(name), names.giveNumbered(name)], [numberedName(name, 3), numberedName(name, 4)]);
    });
}

test("numbersAlsoWhereTheExtensionIsAllOfTheName", () => {
    const numbered = numberedName("a." + "b".repeat(253), 2);
    equal([numbered.length, numbered.endsWith(" (2)")], [255, true]);
});

test("passesOverNumbersThatAreTaken", () => {
    const names = new FolderNames(["a.jpg", "a (2).jpg", "A (3).JPG"]);
    equal([names.giveNumbered("a.jpg"), names.giveNumbered("a.jpg")], ["a (4).jpg", "a (5).jpg"]);
});

test("takesNamesThatDifferInCaseOnlyForTheSame", () => {
    const names = new FolderNames(["IMG.JPG"]);
    equal([names.isFree("img.jpg"), names.onDiskAs("img.jpg")], [false, "IMG.JPG"]);
});

test("takesAnAccentInTwoWritingsForTheSame", () => {
    equal(new FolderNames(["e\u0301.jpg"]).isFree("\u00e9.jpg"), false);
});

test("prefersTheExactSpelling", () => {
    equal(new FolderNames(["a.jpg", "A.JPG"]).onDiskAs("a.jpg"), "a.jpg");
});

test("remembersNamesThatWereGiven", () => {
    const names = new FolderNames([]);
    names.give("a.jpg");
    equal([names.isFree("A.jpg"), names.isGiven("A.jpg"), names.onDiskAs("a.jpg")], [false, true, null]);
});

finish();
