#pragma once

namespace script {
class ScriptEngine;
}

namespace window {

class Shell;

/** Adds the module "quorlin/files" with the object files, a FileDesk. It needs no window. */
void addFilesModule(script::ScriptEngine &scripts);

/** Adds the module "quorlin/shell" with the object shell. */
void addShellModule(script::ScriptEngine &scripts, Shell &shell);

} // namespace window
