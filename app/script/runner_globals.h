#pragma once

#include <QStringList>

namespace script {

class ScriptEngine;

/**
 * Adds what only a script without a window has: the frozen list scriptArguments, and quit(code), which ends the process at
 * once. @p code is a whole number from 0 to 255; without one it is 0.
 */
void addRunnerGlobals(ScriptEngine &scripts, const QStringList &arguments);

} // namespace script
