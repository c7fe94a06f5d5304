#pragma once

// Inside platform/ only: the names of tags in the nested dictionaries, if they differ from exiv2's.

#include <QString>

namespace platform {

/** The name of a tag of group "Photo" or "Image" in the groups {Exif} and {TIFF}. */
QString exifName(const QString &tagName);
/** The tag name of a key of {Exif} or {TIFF}. */
QString exifTagName(const QString &name);

/** "GPSLatitude" as "Latitude", and vice versa. */
QString gpsName(const QString &tagName);
QString gpsTagName(const QString &name);

/** The name of a record 2 data set of IPTC, and vice versa. */
QString iptcName(const QString &dataSetName);
QString iptcDataSetName(const QString &name);
/** True for a key of {IPTC} whose value is always an array. */
bool isIptcList(const QString &name);

/** True for a key of {Exif} whose value is an array even if the tag has one number. */
bool isAlwaysArray(const QString &name);

} // namespace platform
