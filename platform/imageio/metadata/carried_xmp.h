#pragma once

// Inside platform/ only: the XMP of a new file.

#include "platform/imageio/metadata/metadata_blocks.h"

#include <QSize>

namespace platform {

/** The packet as it was read; one that was never a packet is made of its entries. Sizes are those of @p pixels, if known. */
QByteArray xmpPacket(const Metadata::Blocks &blocks, QSize pixels);

/** The records of IPTC. */
QByteArray iptcRecords(const Metadata::Blocks &blocks);

/** Blocks that a file has no place for, so that XMP says in its own words what it can. */
struct SaidInXmp
{
    bool exif = false;
    bool iptc = false;
};

/**
 * xmpPacket() in step with the other blocks: it says the same of orientation and resolution as EXIF, announces no other data of
 * the old file (announcesOtherData()), and says what @p said has no place for where it did not say it already.
 */
QByteArray carriedXmp(const Metadata::Blocks &blocks, QSize pixels, SaidInXmp said);

} // namespace platform
