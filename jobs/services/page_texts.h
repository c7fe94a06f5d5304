#pragma once

#include <QHash>
#include <QString>
#include <QVariantMap>

namespace jobs {

/**
 * What the metadata of a picture says of it, by the names of text::captionTokens(); what it does not say is missing.
 *
 * @param properties  see platform::ImageSource::properties(). XMP counts before IPTC, and that before EXIF
 * @param fields      see meta::fieldMap(); these count before the properties, as they do everywhere else
 */
QHash<QString, QString> pageTexts(const QVariantMap &properties, const QVariantMap &fields);

} // namespace jobs
