#pragma once

// Inside platform/ only: the records of IPTC, and the resources of Photoshop among which they stand.

#include "platform/imageio/edits/metadata_change.h"

#include <optional>

namespace platform {

/** The texts of one data set of the application record, in their order. By the records' own mark UTF-8, else Windows' Latin. */
QStringList iptcTexts(const QByteArray &records, quint8 dataSet);

/**
 * The records with other texts for some data sets. They are in UTF-8 and marked so from then on, the texts that stay included; whatever
 * is no text stays as it is, byte for byte. None where they are damaged.
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

/** The data of one resource; none where there is none. */
std::optional<QByteArray> resourceOf(const QByteArray &resources, quint16 number);

/** The resources with another one for this number, which is added where it was not there; empty @p data take it out. */
QByteArray withResource(const QByteArray &resources, quint16 number, const QByteArray &data);

/** The resources with changed IPTC, and the digest that belongs to it; without thumbnails where that is asked for. */
std::optional<QByteArray> changedResources(const QByteArray &resources, const MetadataChange &change);

/** What says whether IPTC was changed by somebody who does not know XMP: 16 bytes. */
QByteArray iptcDigest(const QByteArray &records);

} // namespace platform
