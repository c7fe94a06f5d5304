#pragma once

#include <QStringList>

namespace platform {

/** What keeps a process from doing harm, as the running kernel has it. */
struct Confinement
{
    bool hasNoNewPrivileges = false; ///< no program that it starts may do more than it
    bool hasFileRules =
        false; ///< Landlock: files are read where that is allowed, and nowhere is anything made, changed or removed
    bool hasCallRules = false; ///< seccomp: system calls are those that decoding and encoding need

    bool isWhole() const { return hasNoNewPrivileges && hasFileRules && hasCallRules; }
    bool operator==(const Confinement &) const = default;
};

/**
 * Confines this process for the rest of its life, as far as the kernel can. Files that are open stay open and are read and written
 * as before; nothing else can be written, no other program started, no socket opened and no other process reached. To be called while
 * there is one thread, since those that are there already would stay as they are.
 *
 * @param readable  files and folders, with all below them, that may still be opened for reading; those that are not there are passed over
 * @return what is active now, as activeConfinement() has it
 */
Confinement confine(const QStringList &readable);

/** What is active, asked of the kernel. */
Confinement activeConfinement();

/** What libraries of pictures and letters read by themselves: themselves, fonts, profiles, time zones, what the system says of itself. */
QStringList systemFolders();

} // namespace platform
