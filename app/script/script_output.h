#pragma once

namespace script {

/**
 * From now on print(...) and console.log(...) of scripts write plain lines to standard output, console.warn(...) and
 * console.error(...) to standard error, whatever the logging rules of the user's environment say. Messages of libraries
 * are handled as before.
 */
void installScriptOutput();

} // namespace script
