#pragma once

#include <QString>

namespace platform {

/**
 * What a key of the nested dictionaries is called in words, in the user's language: "Exposure time" for "ExposureTime". The key
 * itself where it has no label.
 */
QString propertyLabel(const QString &key);

} // namespace platform
