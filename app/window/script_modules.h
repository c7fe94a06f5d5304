#pragma once

#include "app/seam/service_class.h"

namespace script {
class ScriptEngine;
}

namespace window {

class Shell;

/**
 * The services of the modules "quorlin/shell" and "quorlin/program", and the classes of the objects that they return.
 */
std::vector<script::ServiceEntry> windowServices();

/** Adds the modules of windowServices(). */
void addShellModule(script::ScriptEngine &scripts, Shell &shell);

} // namespace window
