#pragma once

// Private to the platform.

#include <filesystem>
#include <system_error>

namespace platform {

/**
 * Copies a file, a link or a folder with its contents to @p to, which must not exist.
 *
 * Permissions, access lists, modification dates and the user's extended attributes are kept; what the target's file
 * system does not support of these is silently dropped. Pipes, sockets and devices are refused. On failure a partial
 * copy remains.
 */
std::error_code copyTree(const std::filesystem::path &from, const std::filesystem::path &to);

/** Removes a copy, or a partial one, including its read-only folders. */
std::error_code discardTree(const std::filesystem::path &copy);

} // namespace platform
