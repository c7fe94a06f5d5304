#pragma once

#include "platform/foundation/result.h"
#include "platform/imageio/bytes/file_ends.h"

#include <QByteArray>
#include <QSize>
#include <QSizeF>
#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace platform {

/** How much of a picture's metadata is kept. */
enum class MetadataScope {
    All,
    /**
     * Author, rights, title and description, from EXIF (Artist, Copyright, ImageDescription and the titles and authors
     * of Windows), IPTC (byline, copyright notice, object name, headline, caption) and XMP (dc:creator, dc:rights,
     * dc:title, dc:description, photoshop:Headline, xmpRights) ; and its resolution and orientation.
     */
    Copyright,
    None, ///< except what defines the pixels: the gamma and primaries of a PNG
};

/** Whether the location of a picture is kept. */
enum class PlaceTaken { Keep, Drop };

/** What is written into a file. */
enum class Carried {
    /** EXIF, IPTC and XMP, into JPEG, TIFF and PNG. */
    Blocks,
    /**
     * Everything that a file of any type can hold: EXIF, IPTC, XMP, comments. What it cannot hold in the original form
     * is expressed in XMP if possible. XMP agrees with EXIF about orientation and resolution, and announces nothing
     * that is missing.
     */
    Everything,
};

struct ContainerBlocks;

/**
 * The EXIF, IPTC and XMP of a picture, to be carried from one file into another.
 *
 * A cheap value. Nothing is lost between a source and a target that can hold it, including maker notes. The embedded
 * thumbnail is not copied, since the pixels of the new file differ.
 */
class Metadata
{
public:
    Metadata();

    /** Reads the metadata in a file's bytes. Empty if there is none, or none that can be understood. */
    static Metadata fromFileBytes(const QByteArray &bytes);

    /**
     * Metadata from blocks that another decoder extracted; each may be empty or broken.
     *
     * @param exif  with or without the "Exif\0\0" before its TIFF header
     * @param xmp   the packet
     * @param iptc  the records themselves, or the Photoshop resources around them
     */
    static Metadata fromBlocks(const QByteArray &exif, const QByteArray &xmp = {}, const QByteArray &iptc = {});

    /**
     * Metadata from nested dictionaries with the groups {Exif}, {TIFF}, {GPS}, {IPTC} and the keys DPIWidth, DPIHeight
     * and Orientation, in the form of properties(). Keys and values that no tag can hold are skipped.
     */
    static Metadata fromProperties(const QVariantMap &properties);

    bool isEmpty() const;

    /**
     * The groups {Exif}, {TIFF}, {GPS}, {IPTC}, {XMP} with the usual tag names, each only if it has entries, and
     * Orientation, DPIWidth, DPIHeight if stated. Values are numbers, text, arrays of those, or data.
     */
    QVariantMap toProperties() const;

    bool hasUserComment() const;
    /** The EXIF user comment as text, without its charset mark; empty if there is none. */
    QString userComment() const;

    /** 1 to 8; 0 if none or no valid one is stated. */
    int orientation() const;

    /** The same with another orientation, 1 to 8, if one is stated; for pixels that were turned meanwhile. */
    Metadata withOrientation(int orientation) const;

    /** The same, with an orientation that EXIF states even if there was no EXIF before. */
    Metadata statingOrientation(int orientation) const;

    /** The same with horizontal and vertical resolution swapped; for pixels that were turned on their side. */
    Metadata withResolutionSwapped() const;

    /** The resolution in EXIF, in dots per inch; empty if it states none. */
    QSizeF resolution() const;

    /** The same that XMP states, for files that hold no EXIF. */
    QSizeF resolutionInXmp() const;

    /** The same with another resolution, in dots per inch, above 0; EXIF then states one. */
    Metadata withResolution(double horizontal, double vertical) const;

    /**
     * Reduced to @p scope, and without the location if requested: the GPS tags of EXIF, city, province, country and
     * sublocation of IPTC and XMP, and everything in XMP that has "GPS", "latitude" or "longitude" in its name. Maker
     * notes known to name a location are dropped as a whole; what they may hide otherwise nobody can tell.
     */
    Metadata reduced(MetadataScope scope, PlaceTaken place = PlaceTaken::Keep) const;

    /** The same without the gamma and primaries of a PNG, for a file that has them already. */
    Metadata withoutColours() const;

    /** Whether XMP says that there is such data beside the picture. */
    enum class Announced { GainMap, Motion };
    bool announces(Announced part) const;

    /** The comment of a JPEG, PNG or GIF, as text. */
    QStringList comments() const;

    /**
     * The encoded JPEG, TIFF or PNG file @p encoded with this metadata in it. The structure of the image itself (size,
     * strips, compression, colour profile) stays that of @p encoded; for TIFF the resolution is the metadata's if it
     * states one. A PNG source's own texts, gamma and primaries are copied into a PNG. Fails with Unsupported if the
     * file cannot hold metadata; pixels are never touched.
     *
     * With Carried::Everything also JPEG 2000, JPEG XL, WebP, GIF and PDF files made by our own encoders; @p encoded
     * must then have no metadata yet. AVIF gets its metadata when it is encoded.
     *
     * @param pixels  the size of the picture if its file does not say: PDF and JPEG XL
     */
    Result<QByteArray> writtenInto(const QByteArray &encoded, Carried carried = Carried::Blocks,
                                   QSize pixels = QSize()) const;

    /** What a file of another type can hold of it, for its encoder. @p pixels is the size of the new picture. */
    enum class Holds { ExifXmpIptc, ExifXmp, Xmp };
    ContainerBlocks blocksFor(QSize pixels, Holds holds) const;

    /**
     * writtenInto() for a TIFF file that is written piece by piece; its pixels are between the two ends.
     *
     * @param bare        head and tail of the encoded file as if there were no pixels, except for the offsets of its
     * strips
     * @param pixelBytes  the number of bytes of the pixels; an odd number is followed by a zero
     * @return none if the file cannot hold everything in this way
     */
    std::optional<FileEnds> writtenAround(const FileEnds &bare, qint64 pixelBytes) const;

    struct Blocks;

private:
    Metadata withComments(const QStringList &comments) const;

    std::shared_ptr<const Blocks> m_blocks;
};

} // namespace platform
