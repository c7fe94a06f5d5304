#pragma once

#include "app/script/ScriptEngine.h"

#include <vector>

namespace script {

/** Registers those of @p services that belong to @p module; the one that is an object of its own is @p object. */
void offerServices(ScriptEngine &scripts, const std::vector<ServiceEntry> &services, const QByteArray &module,
                   QObject *object);

} // namespace script
