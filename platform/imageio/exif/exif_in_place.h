#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QSize>

namespace platform {

/**
 * An EXIF block as it was read, made fit for another file without moving anything in it, so that every offset still
 * holds, those in maker notes that nobody can read included.
 *
 * Taken out of the first directory: tags about the old file's storage (describesStructure()), XMP, IPTC and profiles.
 * The thumbnail's directory is cut off, and its picture where that is the end of the block. The size in pixels is set
 * again where the block states one. Empty where the block is not sound enough for that.
 */
QByteArray exifBlockInPlace(const QByteArray &block, QSize pixels);

/** The block with another orientation in it; unchanged where it states none. */
QByteArray exifBlockWithOrientation(QByteArray block, int orientation);

/** The block with its horizontal and its vertical resolution in each other's places; unchanged where one is missing. */
QByteArray exifBlockWithResolutionSwapped(QByteArray block);

/**
 * The block with this resolution in dots per inch in it; without its thumbnail where there was no place for it, since what is new
 * goes to the end. Empty where the block is not sound enough for that.
 */
QByteArray exifBlockWithResolution(const QByteArray &block, double horizontal, double vertical);

/** The block without its place: the GPS directory with all its values becomes zeros. Empty where the block is not sound. */
QByteArray exifBlockWithoutPlace(const QByteArray &block);

/** The block without maker notes, which become zeros. Empty where the block is not sound. */
QByteArray exifBlockWithoutMakerNote(const QByteArray &block);

} // namespace platform
