#pragma once

#include <QString>

namespace platform {

/**
 * The label of a key of the nested dictionaries in the user's language: "Exposure time" for "ExposureTime". The key
 * itself if it has no label.
 */
QString propertyLabel(const QString &key);

} // namespace platform
