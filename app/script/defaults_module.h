#pragma once

#include <QJSValue>

namespace script {

class ScriptEngine;

/** What scripts import from "quorlin/defaults": get, set and remove on the user defaults that the services use. */
QJSValue defaultsModule(ScriptEngine &scripts);

} // namespace script
