#pragma once

// Inside platform/confinement.

namespace platform {

/**
 * Allows this process the system calls that decoding and encoding need. All others fail as if they were not permitted; starting
 * programs, networks and reaching into other processes ends it. False where the kernel has no such rules.
 */
bool restrictCalls();

} // namespace platform
