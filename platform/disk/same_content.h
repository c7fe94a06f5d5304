#pragma once

// Private to the platform.

#include <filesystem>
#include <system_error>

namespace platform {

/**
 * Whether two files have the same bytes, two links say the same, or two folders have items of the same names with the same
 * content. False if something cannot be read, and for two items of different kinds. Costs the reading of both.
 */
bool haveSameContent(const std::filesystem::path &one, const std::filesystem::path &other);

/** Whether everything in @p part, some of which may be gone already, is also in @p whole, another item. */
bool holdsAll(const std::filesystem::path &whole, const std::filesystem::path &part);

/** Syncs a file, or a folder with its contents, to the disk. */
std::error_code settleTree(const std::filesystem::path &item);

} // namespace platform
