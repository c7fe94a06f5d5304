#pragma once

#include "app/seam/service_class.h"

#include <vector>

namespace window {

/**
 * The classes of controls as scripts have them in "quorlin/shell": of those of the toolkit a few members, of our own what they declare
 * and what every widget has. A control of another class is what the nearest of them above it is.
 */
std::vector<script::ServiceEntry> controlClasses();

} // namespace window
