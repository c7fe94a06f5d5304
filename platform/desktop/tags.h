#pragma once

#include "platform/foundation/result.h"

#include <QStringList>

namespace platform {

/**
 * Makes @p tags the tags of the file or folder at @p path, as file managers keep them: separated by commas in the extended
 * attribute "user.xdg.tags". Surrounding spaces and empty tags are dropped; without tags the attribute is removed.
 *
 * Fails with WriteFailed, also if the item does not exist or the file system has no such attributes.
 */
Result<void> setTags(const QString &path, const QStringList &tags);

/** The tags of the file or folder at @p path; none if it has none, or does not exist. */
QStringList tagsOf(const QString &path);

} // namespace platform
