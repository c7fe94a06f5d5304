#pragma once

#include "platform/imageio/edits/metadata_change.h"

#include <QStringList>

namespace meta {

namespace exifTag {
constexpr quint16 taken = 0x9003;
constexpr quint16 takenZone = 0x9011;
constexpr quint16 takenSubSeconds = 0x9291;
constexpr quint16 rating = 0x4746;
constexpr quint16 ratingPercent = 0x4749;
} // namespace exifTag

namespace iptcDataSet {
constexpr quint8 dayTaken = 55;
constexpr quint8 timeTaken = 60;
} // namespace iptcDataSet

/** What some programs write besides the date taken. */
platform::XmpChange exifDateInXmp();

/**
 * Several creators in the only text that EXIF has for them: separated by "; ", in quotation marks if a name contains a
 * semicolon.
 */
QString namesInExif(const QStringList &names);
QStringList namesFromExif(const QString &text);

} // namespace meta
