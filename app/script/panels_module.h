#pragma once

#include <QJSValue>

namespace script {

class ScriptEngine;

/**
 * What scripts import from "quorlin/panels", and the panel provider behind it.
 *
 * From now on panels are answered from the queue that scripts fill. With nothing queued a panel goes to the provider that
 * was set before, and counts as cancelled where there was none. The provider is taken away again with the engine.
 */
QJSValue panelsModule(ScriptEngine &scripts);

} // namespace script
