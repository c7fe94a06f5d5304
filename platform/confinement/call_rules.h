#pragma once

// Inside platform/confinement.

namespace platform {

/**
 * Allows this process the system calls that decoding and encoding need. All others fail as not permitted; starting
 * programs, using the network and accessing other processes kills it. False if the kernel does not support such rules.
 */
bool restrictCalls();

} // namespace platform
