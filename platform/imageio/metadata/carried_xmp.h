#pragma once

// Inside platform/ only: the XMP of a new file.

#include "platform/imageio/metadata/metadata_blocks.h"

#include <QSize>

namespace platform {

/** The packet as it was read; if there was none, one made from its entries. Sizes are those of @p pixels, if known. */
QByteArray xmpPacket(const Metadata::Blocks &blocks, QSize pixels);

/** The records of IPTC. */
QByteArray iptcRecords(const Metadata::Blocks &blocks);

/** Blocks for which a file has no place, so that XMP expresses what it can. */
struct SaidInXmp
{
    bool exif = false;
    bool iptc = false;
};

/**
 * xmpPacket() made consistent with the other blocks: it agrees with EXIF about orientation and resolution, announces no
 * other data of the old file (announcesOtherData()), and expresses what @p said has no place for unless it already
 * does.
 */
QByteArray carriedXmp(const Metadata::Blocks &blocks, QSize pixels, SaidInXmp said);

} // namespace platform
