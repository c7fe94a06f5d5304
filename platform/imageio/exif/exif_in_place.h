#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * An EXIF block as it was read, adapted to another file without moving anything in it, so that every offset stays
 * valid, including those in unreadable maker notes.
 *
 * Removed from the first directory: tags about the old file's storage (describesStructure()), XMP, IPTC and profiles.
 * The thumbnail's directory is cut off, and its picture if that is at the end of the block. The size in pixels is
 * updated if the block states one. Empty if the block is too damaged for that.
 */
QByteArray exifBlockInPlace(const QByteArray &block, QSize pixels);

/** The block with another orientation; unchanged if it states none. */
QByteArray exifBlockWithOrientation(QByteArray block, int orientation);

/** The block with horizontal and vertical resolution swapped; unchanged if one is missing. */
QByteArray exifBlockWithResolutionSwapped(QByteArray block);

/**
 * The block with this resolution in dots per inch; without its thumbnail if there was no place for it, since new data
 * goes to the end. Empty if the block is too damaged for that.
 */
QByteArray exifBlockWithResolution(const QByteArray &block, double horizontal, double vertical);

/**
 * The block without its location: the GPS directory with all its values becomes zeros. Empty if the block is damaged.
 */
QByteArray exifBlockWithoutPlace(const QByteArray &block);

/** The block without maker notes, which become zeros. Empty if the block is damaged. */
QByteArray exifBlockWithoutMakerNote(const QByteArray &block);

} // namespace platform
