#pragma once

#include "app/seam/service_class.h"

namespace script {

/** Every class that the application offers to scripts, services and stand-in controls. */
std::vector<ServiceEntry> registeredServices();

} // namespace script
