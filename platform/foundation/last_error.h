#pragma once

#include <cerrno>
#include <system_error>

namespace platform {

/** Why the call of the system that failed last did so. */
inline std::error_code lastError()
{
    return std::error_code(errno, std::generic_category());
}

} // namespace platform
