#pragma once

#include <QStringList>

namespace platform {

/** What keeps a process from doing harm, as far as the running kernel supports it. */
struct Confinement
{
    bool hasNoNewPrivileges = false; ///< programs that it starts gain no further rights
    bool hasFileRules =
        false; ///< Landlock: files can be read only where allowed, and nothing can be created, changed or removed
    bool hasCallRules = false; ///< seccomp: only the system calls that decoding and encoding need

    bool isWhole() const { return hasNoNewPrivileges && hasFileRules && hasCallRules; }
    bool operator==(const Confinement &) const = default;
};

/**
 * Confines this process for the rest of its life, as far as the kernel can. Files that are open stay open and are read and written
 * as before; nothing else can be written, no other program started, no socket opened and no other process reached. Call
 * it while there is only one thread, since other existing threads would stay unconfined.
 *
 * @param readable  files and folders, with everything below them, that may still be opened for reading; missing ones
 * are skipped
 * @return what is active now, as from activeConfinement()
 */
Confinement confine(const QStringList &readable);

/** What is active, according to the kernel. */
Confinement activeConfinement();

/**
 * What picture and font libraries read by themselves: their own files, fonts, profiles, time zones, system information.
 */
QStringList systemFolders();

} // namespace platform
