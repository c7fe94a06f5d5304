#pragma once

class QJSEngine;

namespace script {

/**
 * Lets the text of a list that holds itself come to an end: where it stands in itself, its text is empty, as the language has it.
 * The engine's own operations go down until the stack is used up, which ends the process.
 */
void boundListTexts(QJSEngine &engine);

} // namespace script
