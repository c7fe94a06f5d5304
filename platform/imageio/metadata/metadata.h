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

/** How much of a picture's metadata goes with it. */
enum class MetadataScope {
    All,
    /**
     * Who made it, who may copy it, what it is called and what it shows, as EXIF (Artist, Copyright, ImageDescription and the
     * titles and authors of Windows), IPTC (byline, copyright notice, object name, headline, caption) and XMP (dc:creator,
     * dc:rights, dc:title, dc:description, photoshop:Headline, xmpRights) say; and its resolution and orientation.
     */
    Copyright,
    None, ///< but for what the pixels mean: the gamma and primaries of a PNG
};

/** Whether the place where a picture was taken goes with it. */
enum class PlaceTaken { Keep, Drop };

/** What is carried into a file. */
enum class Carried {
    /** EXIF, IPTC and XMP, into JPEG, TIFF and PNG. */
    Blocks,
    /**
     * All that a file of any type can hold: EXIF, IPTC, XMP, comments. What it cannot hold as it was is said in XMP where that
     * has words for it. XMP says the same as EXIF of orientation and resolution, and announces nothing that is not there.
     */
    Everything,
};

struct ContainerBlocks;

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

    /** What EXIF states, in dots per inch; empty where it states none. */
    QSizeF resolution() const;

    /** The same that XMP states, for files that hold no EXIF. */
    QSizeF resolutionInXmp() const;

    /** The same with another resolution, in dots per inch, above 0; EXIF states one from now on. */
    Metadata withResolution(double horizontal, double vertical) const;

    /**
     * No more of it than @p scope says, and without the place if that is asked for: the GPS tags of EXIF, city, province, country
     * and sublocation of IPTC and XMP, and everything in XMP that has "GPS", "latitude" or "longitude" in its name. Maker notes
     * that are known to name a place go as a whole; what they may hold in secret nobody can tell.
     */
    Metadata reduced(MetadataScope scope, PlaceTaken place = PlaceTaken::Keep) const;

    /** The same without the gamma and primaries of a PNG, for a file that has them already. */
    Metadata withoutColours() const;

    /** Whether XMP says that there is such a thing beside the picture. */
    enum class Announced { GainMap, Motion };
    bool announces(Announced part) const;

    /** What a JPEG, PNG or GIF says in a comment of its own, as text. */
    QStringList comments() const;

    /**
     * The encoded JPEG, TIFF or PNG file @p encoded with this metadata in it. The structure of the image itself (size,
     * strips, compression, colour profile) stays that of @p encoded; for TIFF the resolution is the metadata's where it
     * states one. What a PNG source says in texts of its own, and its gamma and primaries, go into a PNG. Fails with Unsupported where the file cannot hold metadata; pixels are never touched.
     *
     * With Carried::Everything also JPEG 2000, JPEG XL, WebP, GIF and PDF files that the encoders here have made; @p encoded must
     * have no metadata of its own then. AVIF is given its metadata when it is encoded.
     *
     * @param pixels  the size of the picture where its file does not tell: PDF and JPEG XL
     */
    Result<QByteArray> writtenInto(const QByteArray &encoded, Carried carried = Carried::Blocks,
                                   QSize pixels = QSize()) const;

    /** What a file of another type can hold of it, for the encoder that makes it. @p pixels is the size of the new picture. */
    enum class Holds { ExifXmpIptc, ExifXmp, Xmp };
    ContainerBlocks blocksFor(QSize pixels, Holds holds) const;

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
    Metadata withComments(const QStringList &comments) const;

    std::shared_ptr<const Blocks> m_blocks;
};

} // namespace platform
