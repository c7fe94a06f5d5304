#pragma once

// Private to the platform.

#include <filesystem>
#include <system_error>

namespace platform {

/**
 * Copies a file, a link or a folder with all that is in it to @p to, which must not be there.
 *
 * Permissions, access lists, modification dates and the user's extended attributes are kept; what the file system of the target cannot
 * hold of them is left out without a word. Pipes, sockets and devices are refused. On failure a part of the copy is left.
 */
std::error_code copyTree(const std::filesystem::path &from, const std::filesystem::path &to);

/** Removes a copy, or the beginning of one, with the folders in it that may not be changed because their originals may not. */
std::error_code discardTree(const std::filesystem::path &copy);

} // namespace platform
