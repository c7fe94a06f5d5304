#pragma once

#include <QString>
#include <QVariant>

#include <optional>

namespace window {

/**
 * A property of a picture as people read it: "1/250 s", "f/2.8", "50 mm", "48.85840° N".
 *
 * @param key    its key in the nested dictionaries
 * @param value  number, text, list, truth or data
 * @param group  the properties beside it, among which the reference of a coordinate is found
 */
QString propertyWords(const QString &key, const QVariant &value, const QVariantMap &group);

/** Degrees; north and east are positive. */
struct Place
{
    double latitude = 0;
    double longitude = 0;
};

enum class PlaceForm { Degrees, Minutes };

/** Where a picture with these properties was taken; none if they do not say, or give a place outside the globe. */
std::optional<Place> placeOf(const QVariantMap &properties);

/** "48.858400, -2.294500", which maps understand in any language, or "48° 51′ 30.2″ N, 2° 17′ 40.2″ W". */
QString placeWords(const Place &place, PlaceForm form);

} // namespace window
