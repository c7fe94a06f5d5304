#pragma once

#include <QString>

#include <optional>

struct stat;

namespace platform {

struct ItemState;

/**
 * What tells an item from all others, however its path is spelled: through links, ".." or a second mount. Two names of one
 * file have the same. Empty where nothing is. To be compared within one run of the program, not to be kept.
 */
QString identityOf(const struct stat &item);
QString identityOf(const ItemState &item);

/** Whether a text has the form of an identity. */
bool isIdentity(QStringView text);

/** Of the item itself, a link not followed. */
QString itemIdentity(const QString &path);

/** Of what the path leads to. */
QString targetIdentity(const QString &path);

/** The same in numbers, for those who keep many: 16 bytes each. */
struct ItemNumber
{
    quint64 device = 0;
    quint64 inode = 0;

    bool operator==(const ItemNumber &) const = default;
};

size_t qHash(const ItemNumber &item, size_t seed);

/** What a path leads to. */
struct TargetFacts
{
    ItemNumber number;
    bool isFile = false; ///< an ordinary one
    bool isFolder = false;
    bool hasSecondName = false; ///< the file has hard links
    qint64 bytes = 0;
    qint64 modifiedNs = 0; ///< of the content, nanoseconds since 1970
    qint64 changedNs = 0;  ///< of anything about it, its name too: nobody can set that back

    bool operator==(const TargetFacts &) const = default;
};

/** None where nothing is. */
std::optional<TargetFacts> targetFacts(const QString &path);

/** Of the folder at @p path, which need not be there yet: then of the one above that is, with the rest of the path. */
QString folderIdentity(const QString &path);

} // namespace platform
