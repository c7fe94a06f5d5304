#pragma once

#include <QString>

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

/** Of the folder at @p path, which need not be there yet: then of the one above that is, with the rest of the path. */
QString folderIdentity(const QString &path);

} // namespace platform
