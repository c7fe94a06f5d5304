#pragma once

#include "platform/graphics/bitmap.h"
#include "platform/imageio/formats/file_format.h"
#include "platform/imageio/metadata/metadata.h"

#include <QMetaType>
#include <QVariantMap>

#include <memory>
#include <optional>

namespace platform {

class LentFile;

enum class Orientation { AsStored, Upright };

/** Options of decoding. */
struct DecodeOptions
{
    int index = 0; ///< which image of the file, 0 to imageCount() - 1
    Orientation orientation = Orientation::Upright;
    Forms forms = Forms::Plain; ///< forms other than plain ones come from TIFF only
    /** What the pixels are written as afterwards, which needs memory too. */
    std::optional<FileFormat> written = {};
};

/** What a header says about the pixels. */
struct PixelFacts
{
    ColorModel model = ColorModel::Rgb;
    bool hasAlpha = false;
    int bits = 8;          ///< per component, as decoded: 8, 16, or 32 for floating point
    QByteArray iccProfile; ///< empty if there is none
    /** They are compressed in a way that no decoder here knows, though the rest of the file can be read. */
    bool areUnknown = false;
};

/**
 * An opened picture file whose header was read; pixels are decoded on request.
 *
 * A cheap value; copies share what is known about the file. Files are recognised by their content, never by their name.
 * Opening costs about a millisecond. A truncated file, or one that claims more pixels than the memory budget allows,
 * does not open: it is refused before anything is decoded. A request for pixels that need more memory than is left is
 * refused as well; the log says so.
 */
class ImageSource
{
public:
    ImageSource() = default;

    /** Fails with NotFound, Unreadable, Unsupported or TooLarge. */
    static Result<ImageSource> open(const QString &path);
    static Result<ImageSource> fromData(const QByteArray &bytes);
    /** The same for a file that is open already, which is kept open; its name is used as the path. */
    static Result<ImageSource> fromLent(std::shared_ptr<const LentFile> file);

    /** True if open() would return a picture; cheaper for a JPEG, of which it reads little more than its header. */
    static bool canOpen(const QString &path);

    bool isNull() const { return !m_file; }
    /** True for two values that share the same opened file. */
    bool operator==(const ImageSource &other) const = default;
    QString path() const;
    /** All bytes of the file. Fails with Unreadable or NotFound. */
    Result<QByteArray> fileContent() const;
    /** Their number; -1 if the file no longer exists, and for data. */
    qint64 fileBytes() const;
    /** The type of the bytes: "public.jpeg", "public.heic" ... */
    QString typeIdentifier() const;
    /** Images, pages or frames in the file; at least 1. */
    int imageCount() const;
    /**
     * The name of image 0's colour space: its profile's, or the default for its kind of pixels. Reads the header again.
     */
    QString colorSpaceName() const;
    /** The colour profile of image 0; empty if it has none. Reads the header again. */
    QByteArray iccProfile() const;
    /** What the pixels of image 0 will be. Reads the header again; fails with Unreadable. */
    Result<PixelFacts> pixelFacts() const;
    /** Pixels of image 0 as stored, and turned upright by the orientation it states. */
    QSize storedSize() const;
    QSize uprightSize() const;
    /** Upright, in points: pixels x 72 / dots per inch. Reads the header again. */
    QSizeF pointSize() const;
    /** 1 to 8; 1 if none or no valid one is stated, or if the container has rotated the picture already. */
    int orientation() const;

    /** The file's metadata, for writing it into another file. Empty if it has none; Unreadable if that is unknown. */
    Result<Metadata> metadata() const;
    /** The file's metadata as nested dictionaries. Fails with Unreadable if some of it could not be read. */
    Result<QVariantMap> properties() const;

    /** All pixels. Fails with Unreadable (damaged, truncated), InvalidValue (index) or TooLarge. */
    Result<Bitmap> decode(const DecodeOptions &options = {}) const;

    /**
     * The part @p part of the upright image 0, clipped to the picture. Rows are decoded one by one and only as far as
     * needed, so that memory is needed for the part alone. Fails like decode(), and with InvalidValue if nothing is
     * left.
     */
    Result<Bitmap> decodePart(const QRect &part, Forms forms = Forms::Plain) const;

    /**
     * Image 0, upright, at exactly @p size pixels: the cheapest decode that is at least that large, then scaled as by
     * resample(). Fails like decode(), and with InvalidValue or TooLarge for the size.
     */
    Result<Bitmap> decodeScaled(QSize size, Forms forms = Forms::Plain) const;

    /**
     * Like decodeScaled(), for results that must not show how a JPEG decoder shrinks: it decodes many times the size,
     * and for line art, where that is not enough, all pixels.
     */
    Result<Bitmap> decodeScaledFinely(QSize size) const;

    /**
     * The input of decodeScaledFinely(): for several results of one decode, the largest of which has @p size. It has
     * all pixels, or is a JPEG that the decoder has halved.
     */
    Result<Bitmap> decodeFinely(QSize size) const;

    /** The result of decodeFinely(), at no more than its @p size: as resample() of all pixels would give it. */
    Result<Bitmap> scaledFinely(const Bitmap &decoded, QSize size) const;

    /** Like decodeScaled(), but left at the size from the decoder; less than @p size only if the picture is smaller. */
    Result<Bitmap> decodeAtLeast(QSize size) const;

    /** What is known about the file, for functions of the platform; null if nothing was opened. */
    struct File;
    const File *file() const { return m_file.get(); }

private:
    enum class Scaling { Exact, AtLeast };
    explicit ImageSource(std::shared_ptr<const File> file) : m_file(std::move(file)) {}
    Result<Bitmap> decodeFor(QSize size, Scaling scaling, Forms forms) const;
    std::shared_ptr<const File> m_file;
};

} // namespace platform

Q_DECLARE_METATYPE(platform::ImageSource)
