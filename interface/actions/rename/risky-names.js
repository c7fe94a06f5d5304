// Names that this system accepts and others do not. Pure but for translation; no service is used.

import { fill } from "../../lib/wording.js";

const SIGNS = "\\:*?\"<>|";
const DEVICES = /^(con|prn|aux|nul|com[1-9]|lpt[1-9])(\..*)?$/i;

const RISKY = /[\\:*?"<>|\x00-\x1f\x7f]|^ |[ .]$/;

/** What other systems reject in a name, in a few words; "" if nothing. */
export function riskOf(name) {
    const found = RISKY.exec(name);
    if (found === null) {
        return DEVICES.test(name) ? fill(qsTr("other systems reserve the name %1"), name) : "";
    }
    if (SIGNS.indexOf(found[0]) >= 0) {
        return fill(qsTr("other systems do not allow %1"), found[0]);
    }
    if (found[0] !== " " && found[0] !== ".") {
        return qsTr("contains a control character");
    }
    return found.index === 0 && name.length > 1
        ? qsTr("starts with a space") : qsTr("other systems do not allow a trailing space or dot");
}
