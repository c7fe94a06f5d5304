import { joinPath, splitPath } from "../../../interface/lib/names.js";
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

finish();
