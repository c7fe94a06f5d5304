#pragma once

#include "platform/foundation/result.h"
#include "platform/imageio/bytes/file_ends.h"

#include <QByteArray>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace platform {

/**
 * The EXIF, IPTC and XMP of a picture, to be carried from one file into another.
 *
 * A cheap value. Nothing is lost on the way from a source to a target that can hold it, maker notes included. The
 * embedded thumbnail is not carried, since the pixels of the new file are others.
 */
class Metadata
{
public:
    Metadata();

    /** Reads what a file's bytes hold. Empty where there is nothing, or nothing that can be understood. */
    static Metadata fromFileBytes(const QByteArray &bytes);

    /**
     * Metadata from the blocks that another decoder took out of a file; each may be empty or broken.
     *
     * @param exif  with or without the "Exif\0\0" in front of its TIFF header
     * @param xmp   the packet
     * @param iptc  the records themselves, or the Photoshop resources around them
     */
    static Metadata fromBlocks(const QByteArray &exif, const QByteArray &xmp = {}, const QByteArray &iptc = {});

    /**
     * Metadata from nested dictionaries with the groups {Exif}, {TIFF}, {GPS}, {IPTC} and the keys DPIWidth, DPIHeight
     * and Orientation, as properties() gives them. Keys and values that no tag can hold are passed over.
     */
    static Metadata fromProperties(const QVariantMap &properties);

    bool isEmpty() const;

    /**
     * The groups {Exif}, {TIFF}, {GPS}, {IPTC}, {XMP} with the usual tag names, each only where it has entries, and
     * Orientation, DPIWidth, DPIHeight where stated. Values are numbers, text, arrays of those, or data.
     */
    QVariantMap toProperties() const;

    bool hasUserComment() const;
    /** The EXIF user comment as text, without its charset mark; empty where there is none. */
    QString userComment() const;

    /** 1 to 8; 0 where none or no valid one is stated. */
    int orientation() const;

    /** The same with another orientation, 1 to 8, where one is stated; for pixels that were turned meanwhile. */
    Metadata withOrientation(int orientation) const;

    /** The same with horizontal and vertical resolution in each other's places; for pixels that lie on their side now. */
    Metadata withResolutionSwapped() const;

    /**
     * The encoded JPEG, TIFF or PNG file @p encoded with this metadata in it. The structure of the image itself (size,
     * strips, compression, colour profile) stays that of @p encoded; for TIFF the resolution is the metadata's where it
     * states one. What a PNG source says in texts of its own, and its gamma and primaries, go into a PNG. Fails with Unsupported where the file cannot hold metadata; pixels are never touched.
     */
    Result<QByteArray> writtenInto(const QByteArray &encoded) const;

    /**
     * writtenInto() for a TIFF file that is written piece by piece; its pixels lie between the two ends.
     *
     * @param bare        head and tail of the encoded file as if there were no pixels, but for the offsets of its strips
     * @param pixelBytes  how many bytes the pixels take; an odd number is followed by a zero
     * @return none where the file cannot take everything in this way
     */
    std::optional<FileEnds> writtenAround(const FileEnds &bare, qint64 pixelBytes) const;

    struct Blocks;

private:
    std::shared_ptr<const Blocks> m_blocks;
};

} // namespace platform
