#pragma once

namespace platform {

/** An item by its open file, or by its path, in which case a link is the item itself. */
struct AttributedItem
{
    int descriptor = -1;
    const char *path = nullptr; ///< in the system's encoding; used if there is no descriptor
};

/**
 * Gives @p target the access lists of @p source and the attributes that users and programs have attached to it; not
 * those that the system's security module sets per file. What cannot be copied is skipped. The user must be able to
 * write to the target.
 */
void copyAttributes(const AttributedItem &source, const AttributedItem &target);

/**
 * Gives @p target the access list of @p source, or none if that has none: what the target inherited from its folder is
 * removed. The mode, which limits what a list grants, is left to the caller.
 */
void copyAccessList(const AttributedItem &source, const AttributedItem &target);

} // namespace platform
