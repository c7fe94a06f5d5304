#pragma once

#include "app/script/ScriptEngine.h"

#include <vector>

namespace script {

/** Registers those of @p services that belong to @p module; @p object is the one that is a single object. */
void offerServices(ScriptEngine &scripts, const std::vector<ServiceEntry> &services, const QByteArray &module,
                   QObject *object);

} // namespace script
