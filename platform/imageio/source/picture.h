#pragma once

#include "platform/graphics/bitmap.h"

#include <QSizeF>

#include <memory>

namespace platform {

class ImageSource;

/**
 * A picture in memory: upright pixels, and a separate size in points.
 *
 * A cheap value whose copies share their pixels, including those decoded later. If it was opened from a file, its size
 * in points is pixels x 72 / dots per inch.
 */
class Picture
{
public:
    Picture() = default;
    /** A picture whose size in points is that of the bitmap; a null picture for a null bitmap. */
    explicit Picture(const Bitmap &bitmap) : Picture(bitmap, bitmap.pointSize()) {}
    Picture(const Bitmap &bitmap, QSizeF sizeInPoints);

    /** Reads a file, upright. A null picture if it cannot be read. */
    static Picture fromFile(const QString &path);
    /**
     * Opens a file without decoding its pixels until they are needed. A null picture if it cannot be opened; if its
     * pixels turn out to be damaged, the picture becomes null.
     */
    static Picture opened(const QString &path);
    /** The same for an opened file; a null picture for a null one. */
    static Picture of(const ImageSource &source);
    /** A picture without pixels, of size 0 x 0, that is not null. */
    static Picture ofNoSize();

    bool isNull() const;
    /** True for pictures that share their pixels and have the same size. */
    bool operator==(const Picture &other) const;
    /** In points. */
    QSizeF size() const;
    /** In pixels; decodes nothing. */
    QSize pixelSize() const;
    /** The same picture with another size in points; shares already decoded pixels. */
    Picture withSize(QSizeF sizeInPoints) const;

    /** All pixels, decoded on the first call. A null bitmap if the picture is null or has no pixels. */
    Bitmap bitmap() const;
    /** True where all pixels are in memory. */
    bool isDecoded() const;
    /** How much memory its pixels take now, including cached reductions. */
    qint64 bytesInMemory() const;
    /**
     * The picture at exactly @p pixels: from the pixels in memory if available, otherwise by the cheapest decode that
     * is sharp at that size, which is cached for the next call. Fails like ImageSource::decodeScaled().
     */
    Result<Bitmap> scaledTo(QSize pixels) const;

private:
    struct Contents;
    explicit Picture(std::shared_ptr<Contents> contents) : m_contents(std::move(contents)) {}
    Result<Bitmap> decodedAt(QSize pixels) const;

    std::shared_ptr<Contents> m_contents;
};

} // namespace platform

Q_DECLARE_METATYPE(platform::Picture)
