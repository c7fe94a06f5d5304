#pragma once

#include <QString>

#include <optional>

struct stat;

namespace platform {

struct ItemState;

/**
 * What tells an item from all others, however its path is spelled: through links, ".." or a second mount. Two hard
 * links of one file share it. Empty if nothing is there. For comparison within one run of the program, not for storage.
 */
QString identityOf(const struct stat &item);
QString identityOf(const ItemState &item);

/** Whether a text has the form of an identity. */
bool isIdentity(QStringView text);

/** Of the item itself; a link is not followed. */
QString itemIdentity(const QString &path);

/** Of the target of the path. */
QString targetIdentity(const QString &path);

/** The same in numbers, to save memory: 16 bytes each. */
struct ItemNumber
{
    quint64 device = 0;
    quint64 inode = 0;

    bool operator==(const ItemNumber &) const = default;
};

size_t qHash(const ItemNumber &item, size_t seed);

/** The target of a path. */
struct TargetFacts
{
    ItemNumber number;
    bool isFile = false; ///< a regular file
    bool isFolder = false;
    bool hasSecondName = false; ///< the file has hard links
    qint64 bytes = 0;
    qint64 modifiedNs = 0; ///< of the content, nanoseconds since 1970
    qint64 changedNs = 0;  ///< of anything about it, including its name: nobody can set it back

    bool operator==(const TargetFacts &) const = default;
};

/** None if nothing is there. */
std::optional<TargetFacts> targetFacts(const QString &path);

/**
 * Of the folder at @p path, which need not exist yet: then of its nearest existing parent, with the rest of the path.
 */
QString folderIdentity(const QString &path);

} // namespace platform
