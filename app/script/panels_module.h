#pragma once

#include <QJSValue>

namespace script {

class ScriptEngine;

/**
 * What scripts import from "quorlin/panels", and the panel provider behind it.
 *
 * From now on panels are answered from the queue that scripts fill. If it is empty, a panel goes to the provider that
 * was set before, and counts as cancelled if there was none. The provider is removed with the engine.
 */
QJSValue panelsModule(ScriptEngine &scripts);

} // namespace script
