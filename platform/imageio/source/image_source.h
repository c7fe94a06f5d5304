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

/** What a decoder is asked for. */
struct DecodeOptions
{
    int index = 0; ///< which image of the file, 0 to imageCount() - 1
    Orientation orientation = Orientation::Upright;
    Forms forms = Forms::Plain; ///< others than plain ones come of a TIFF only
    /** What the pixels are written as next, which needs memory too. */
    std::optional<FileFormat> written = {};
};

/** What a header tells of the pixels to come. */
struct PixelFacts
{
    ColorModel model = ColorModel::Rgb;
    bool hasAlpha = false;
    int bits = 8;          ///< a component, as it is decoded: 8, 16, or 32 for floating point
    QByteArray iccProfile; ///< empty where there is none
};

/**
 * A picture file that was opened and whose header was read; pixels are decoded when they are asked for.
 *
 * A cheap value that shares what it knows of the file. Files are recognised by their content, never by their name.
 * Opening costs about a millisecond. A file that is cut short, or that claims more pixels than the memory budget
 * allows, does not open: it is refused before anything is decoded. So are, when pixels are asked for, those that need more
 * memory than is left then; the log says so.
 */
class ImageSource
{
public:
    ImageSource() = default;

    /** Fails with NotFound, Unreadable, Unsupported or TooLarge. */
    static Result<ImageSource> open(const QString &path);
    static Result<ImageSource> fromData(const QByteArray &bytes);
    /** The same of a file that is open already, which is held open; its name counts as the path. */
    static Result<ImageSource> fromLent(std::shared_ptr<const LentFile> file);

    /** True where open() gives a picture; cheaper for a JPEG, of which it reads little more than its header. */
    static bool canOpen(const QString &path);

    bool isNull() const { return !m_file; }
    /** True for two values that share the same opened file. */
    bool operator==(const ImageSource &other) const = default;
    QString path() const;
    /** All bytes of the file. Fails with Unreadable or NotFound. */
    Result<QByteArray> fileContent() const;
    /** How many they are; -1 for a file that is not there any more, and for data. */
    qint64 fileBytes() const;
    /** What the bytes are: "public.jpeg", "public.heic" ... */
    QString typeIdentifier() const;
    /** Images, pages or frames in the file; at least 1. */
    int imageCount() const;
    /** The name of image 0's colour space: its profile's, or that of the one its kind of pixels has without. Reads the header again. */
    QString colorSpaceName() const;
    /** The colour profile of image 0; empty where it has none. Reads the header again. */
    QByteArray iccProfile() const;
    /** What the pixels of image 0 will be. Reads the header again; fails with Unreadable. */
    Result<PixelFacts> pixelFacts() const;
    /** Pixels of image 0 as stored, and turned upright by the orientation it states. */
    QSize storedSize() const;
    QSize uprightSize() const;
    /** Upright, in points: pixels x 72 / dots per inch. Reads the header again. */
    QSizeF pointSize() const;
    /** 1 to 8; 1 where none or no valid one is stated, or where the container has turned the picture already. */
    int orientation() const;

    /** The file's metadata, for writing it into another file. Empty where it has none; Unreadable where that cannot be told. */
    Result<Metadata> metadata() const;
    /** The file's metadata as nested dictionaries. Fails with Unreadable where some of it could not be read. */
    Result<QVariantMap> properties() const;

    /** All pixels. Fails with Unreadable (damaged, cut short), InvalidValue (index) or TooLarge. */
    Result<Bitmap> decode(const DecodeOptions &options = {}) const;

    /**
     * The part of the upright image 0 that lies in @p part, cut to the picture. Rows are decoded one by one and only as
     * far as the part reaches, so that memory is needed for the part alone. Fails as decode() does, and with
     * InvalidValue where nothing is left.
     */
    Result<Bitmap> decodePart(const QRect &part, Forms forms = Forms::Plain) const;

    /**
     * Image 0, upright, at exactly @p size pixels: the cheapest decode that is at least that large, then a
     * resampling as resample() has it. Fails as decode() does, and with InvalidValue or TooLarge for the size.
     */
    Result<Bitmap> decodeScaled(QSize size, Forms forms = Forms::Plain) const;

    /**
     * As decodeScaled(), for results that show nothing of how a decoder of JPEG shrinks: it gives many times the size, and of line art,
     * where that is not enough, all pixels.
     */
    Result<Bitmap> decodeScaledFinely(QSize size) const;

    /**
     * What decodeScaledFinely() scales: for several results of one decode, the largest of which has @p size. It has all pixels, or a JPEG
     * that the decoder has halved.
     */
    Result<Bitmap> decodeFinely(QSize size) const;

    /** What decodeFinely() gave, at no more than its @p size: as resample() of all pixels has it. */
    Result<Bitmap> scaledFinely(const Bitmap &decoded, QSize size) const;

    /** As decodeScaled(), left at the size that the decoder gives; less than @p size only where the picture is. */
    Result<Bitmap> decodeAtLeast(QSize size) const;

    /** What is known of the file, for the functions of the platform; null where nothing was opened. */
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
