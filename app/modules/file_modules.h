#pragma once

#include "app/seam/service_class.h"

#include <vector>

namespace script {

class ScriptEngine;

/** The services of the modules "quorlin/files", "quorlin/moves", "quorlin/pictures", "quorlin/tokens", "quorlin/recipes" and "quorlin/watch". */
std::vector<ServiceEntry> fileServices();

/** Adds the modules of fileServices(). They need no window. */
void addFileModules(ScriptEngine &scripts);

} // namespace script
