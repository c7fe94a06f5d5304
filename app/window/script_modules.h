#pragma once

namespace script {
class ScriptEngine;
}

namespace window {

class Shell;

/**
 * Adds the modules "quorlin/files" with the object files, a FileDesk, "quorlin/moves" with the object moves, a MoveDesk, and
 * "quorlin/pictures" with the object pictures, a PictureDesk. They need no window.
 */
void addFilesModule(script::ScriptEngine &scripts);

/** Adds the modules "quorlin/shell" with the object shell and "quorlin/program" with the object program, a ProgramDesk. */
void addShellModule(script::ScriptEngine &scripts, Shell &shell);

} // namespace window
