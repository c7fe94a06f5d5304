#pragma once

#include <QString>
#include <QVariant>

namespace window {

/**
 * A property of a picture as people read it: "1/250 s", "f/2.8", "50 mm", "48.85840° N".
 *
 * @param key    its key in the nested dictionaries
 * @param value  number, text, list, truth or data
 * @param group  what stands beside it, where the reference of a coordinate is found
 */
QString propertyWords(const QString &key, const QVariant &value, const QVariantMap &group);

} // namespace window
