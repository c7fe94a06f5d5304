#pragma once

namespace platform {

/** An item by its open file, or by its path, where a link is the item itself. */
struct AttributedItem
{
    int descriptor = -1;
    const char *path = nullptr; ///< as the system takes it; counts where there is no descriptor
};

/**
 * Gives @p target the access lists of @p source and what users and programs have attached to that; not what the system's
 * security module decides for each file. What cannot be copied is left. The user must be able to write to the target.
 */
void copyAttributes(const AttributedItem &source, const AttributedItem &target);

/**
 * Gives @p target the access list of @p source, and none where that has none: what the folder gave to the target goes. The mode, which
 * bounds what a list grants, is left to the caller.
 */
void copyAccessList(const AttributedItem &source, const AttributedItem &target);

} // namespace platform
