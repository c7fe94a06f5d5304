#pragma once

#include "jobs/reading/reading_messages.h"

#include <memory>

namespace platform {
class LentFile;
}

namespace jobs {

/**
 * The values of a picture by the names of properties: those of meta::fields(), which include the sidecar, and paths
 * through the nested dictionaries of platform::ImageSource::properties(), such as "{Exif}|FNumber" and "|PixelWidth".
 * Answer: {values: {name: {value, reference}}}, for those with a value; a reference accompanies a coordinate.
 *
 * @param asked  {names, packet}: the packet is that of the sidecar, which may be empty
 */
AnswerMessage propertyValues(const std::shared_ptr<const platform::LentFile> &picture, const QVariantMap &asked);

/** The names of all properties of a dictionary, as paths. */
QStringList propertyNames(const QVariantMap &properties);

/** The separator of a path's parts. */
inline constexpr char16_t propertySeparator = u'|';

} // namespace jobs
