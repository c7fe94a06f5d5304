#pragma once

#include <cerrno>
#include <system_error>

namespace platform {

/** Why the last failed system call failed. */
inline std::error_code lastError()
{
    return std::error_code(errno, std::generic_category());
}

} // namespace platform
