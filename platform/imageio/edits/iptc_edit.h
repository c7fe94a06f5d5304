#pragma once

// Inside platform/ only: the records of IPTC, and the Photoshop resources that contain them.

#include "platform/imageio/edits/metadata_change.h"

#include <optional>

namespace platform {

/**
 * The texts of one data set of the application record, in order. In UTF-8 if the records say so, else in Windows Latin.
 */
QStringList iptcTexts(const QByteArray &records, quint8 dataSet);

/**
 * The records with other texts for some data sets. They are then in UTF-8 and marked so, including the unchanged texts;
 * anything that is not text stays as it is, byte for byte. None if they are damaged.
 */
std::optional<QByteArray> changedIptc(const QByteArray &records, const QList<IptcChange> &changes);

/** The numbers of resources. */
namespace resource {
constexpr quint16 iptc = 0x0404;
constexpr quint16 exif = 0x0422;
constexpr quint16 xmp = 0x0424;
constexpr quint16 digest = 0x0425;
constexpr quint16 oldThumbnail = 0x0409;
constexpr quint16 thumbnail = 0x040c;
} // namespace resource

/** The data of one resource; none if it does not exist. */
std::optional<QByteArray> resourceOf(const QByteArray &resources, quint16 number);

/** The resources with new data for this number, which is added if it did not exist; empty @p data removes it. */
QByteArray withResource(const QByteArray &resources, quint16 number, const QByteArray &data);

/** The resources with changed IPTC, and its digest; without thumbnails if requested. */
std::optional<QByteArray> changedResources(const QByteArray &resources, const MetadataChange &change);

/** Tells whether IPTC was changed by a program that ignores XMP: 16 bytes. */
QByteArray iptcDigest(const QByteArray &records);

} // namespace platform
