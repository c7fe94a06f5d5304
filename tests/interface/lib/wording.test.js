// Numbers in words.

import { percent } from "../../../interface/lib/wording.js";
import { equal, finish, test } from "../check.js";

test("percentages have the form of the language", () => {
    equal(percent(66.66), "66.7%");
    equal(percent(100), "100%");
});

finish();
