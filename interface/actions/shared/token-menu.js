// The searchable menu of tokens, and the button that opens it.

import { tokens } from "quorlin/tokens";
import { guard } from "../../lib/guard.js";

/**
 * Fills a menu with the tokens that isOffered accepts; insert is called with "{taken:yyyy}", once one is chosen. `more`
 * precede them, in the form of tokens.offered(); optional.
 */
export function fillTokens(menu, isOffered, insert, more) {
    const offered = [];
    (more || []).concat(tokens.offered().filter(isOffered)).forEach((token) => token.forms.forEach((each) => {
        offered.push({ title: token.words + (each === "" ? "" : "  " + each),
                       text: "{" + token.name + (each === "" ? "" : ":" + each) + "}", example: token.example });
    }));
    menu.setPlaceholder(qsTr("Search values"));
    menu.setEntries(offered.map((each) => each.title), offered.map((each) => each.text),
                    offered.map((each) => each.example), offered.map((each) => each.text));
    menu.chosen.connect(guard("tokens", insert));
}

/**
 * Fills the menu of a form.
 *
 * @param names      of its controls: {menu, button}
 * @param isOffered  whether a token makes sense there
 * @param insert     is called with "{taken:yyyy}", once one is chosen
 * @param more       see fillTokens()
 */
export function joinTokens(form, names, isOffered, insert, more) {
    const button = form.control(names.button);
    fillTokens(form.control(names.menu), isOffered, insert, more);
    button.clicked.connect(guard(names.button, () => form.control(names.menu).popUp(button)));
}

/** Inserts a text at the cursor of a one-line field. */
export function insertAtCursor(field, text) {
    const at = field.cursorPosition;
    field.text = field.text.slice(0, at) + text + field.text.slice(at);
    field.cursorPosition = at + text.length;
    field.setFocus();
}
