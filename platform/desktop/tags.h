#pragma once

#include "platform/foundation/result.h"

#include <QStringList>

namespace platform {

/**
 * Makes @p tags the tags of the file or folder at @p path, as file managers keep them: separated by commas in the extended
 * attribute "user.xdg.tags". Blanks around them and empty ones are left out; without any the attribute is removed.
 *
 * Fails with WriteFailed, also where nothing is there or the file system has no such attributes.
 */
Result<void> setTags(const QString &path, const QStringList &tags);

/** The tags of the file or folder at @p path; none where it has none, or nothing is there. */
QStringList tagsOf(const QString &path);

} // namespace platform
