#pragma once

#include "app/seam/service_class.h"

#include <vector>

namespace window {

/**
 * The control classes that scripts have in "quorlin/shell": a few members of the toolkit's, and of our own what they
 * declare and what every widget has. A control of any other class appears as its nearest listed base class.
 */
std::vector<script::ServiceEntry> controlClasses();

} // namespace window
