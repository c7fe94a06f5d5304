#include "platform/imageio/source/picture.h"

#include "platform/graphics/resample.h"
#include "platform/imageio/source/image_source.h"
#include "platform/imageio/source/screen_pixels.h"

namespace platform {

struct Picture::Contents
{
    ImageSource source; ///< source of pixels that are not in memory
    Bitmap bitmap;      ///< all pixels, once they are decoded
    QSizeF size;
    QSize pixels;
    bool isBroken = false; ///< the opened file's pixels cannot be decoded
    Bitmap reduced;        ///< the last reduced decode
    Bitmap scaled;         ///< the last result of scaledTo(): views request the same size again and again
};

namespace {

bool covers(QSize present, QSize wanted)
{
    return present.width() >= wanted.width() && present.height() >= wanted.height();
}

qint64 bytesOf(const Bitmap &bitmap)
{
    constexpr int bitsPerByte = 8;
    return qint64(bitmap.width()) * bitmap.height() * bitmap.bandCount() * bitmap.bitsPerComponent() / bitsPerByte;
}

Result<Bitmap> scaled(const Bitmap &bitmap, QSize pixels)
{
    return bitmap.size() == pixels ? Result<Bitmap>(bitmap) : resample(bitmap, pixels);
}

} // namespace

Picture::Picture(const Bitmap &bitmap, QSizeF sizeInPoints)
{
    if (bitmap.isNull())
        return;
    m_contents = std::make_shared<Contents>();
    m_contents->bitmap = bitmap;
    m_contents->size = sizeInPoints;
    m_contents->pixels = bitmap.size();
}

Picture Picture::fromFile(const QString &path)
{
    const Result<ImageSource> source = ImageSource::open(path);
    if (!source)
        return {};
    const Result<Bitmap> bitmap = source->decode();
    return bitmap ? Picture(*bitmap) : Picture();
}

Picture Picture::opened(const QString &path)
{
    return of(ImageSource::open(path).value_or(ImageSource()));
}

Picture Picture::of(const ImageSource &source)
{
    if (source.isNull())
        return {};
    auto contents = std::make_shared<Contents>();
    contents->source = source;
    contents->size = source.pointSize();
    contents->pixels = source.uprightSize();
    return Picture(std::move(contents));
}

Picture Picture::ofNoSize()
{
    auto contents = std::make_shared<Contents>();
    contents->size = QSizeF(0, 0);
    contents->pixels = QSize(0, 0);
    return Picture(std::move(contents));
}

bool Picture::isNull() const
{
    return !m_contents || m_contents->isBroken;
}

bool Picture::operator==(const Picture &other) const
{
    if (m_contents == other.m_contents)
        return true;
    return m_contents && other.m_contents && isDecoded() && m_contents->bitmap == other.m_contents->bitmap &&
           m_contents->size == other.m_contents->size;
}

QSizeF Picture::size() const
{
    return isNull() ? QSizeF(0, 0) : m_contents->size;
}

QSize Picture::pixelSize() const
{
    return isNull() ? QSize(0, 0) : m_contents->pixels;
}

Picture Picture::withSize(QSizeF sizeInPoints) const
{
    if (isNull())
        return {};
    auto contents = std::make_shared<Contents>(*m_contents);
    contents->size = sizeInPoints;
    return Picture(std::move(contents));
}

Bitmap Picture::bitmap() const
{
    if (isNull())
        return {};
    if (m_contents->bitmap.isNull() && !m_contents->source.isNull()) {
        const Result<Bitmap> decoded = m_contents->source.decode();
        m_contents->isBroken = !decoded.has_value();
        m_contents->bitmap = decoded.value_or(Bitmap());
        m_contents->reduced = Bitmap();
    }
    return m_contents->bitmap;
}

bool Picture::isDecoded() const
{
    return !isNull() && !m_contents->bitmap.isNull();
}

qint64 Picture::bytesInMemory() const
{
    if (isNull())
        return 0;
    const Contents &kept = *m_contents;
    const qint64 reduced = kept.reduced == kept.scaled ? 0 : bytesOf(kept.reduced);
    return bytesOf(kept.bitmap) + reduced + (kept.scaled == kept.bitmap ? 0 : bytesOf(kept.scaled));
}

Result<Bitmap> Picture::scaledTo(QSize pixels) const
{
    if (isNull() || (!isDecoded() && m_contents->source.isNull()))
        return failure(ErrorCode::InvalidValue, QStringLiteral("There is no picture to scale"));
    if (m_contents->scaled.size() == pixels)
        return m_contents->scaled;
    // The first size is made without any detour; what is asked for other sizes decodes a step that serves them all.
    const bool isFirst = !isDecoded() && m_contents->scaled.isNull() && m_contents->reduced.isNull();
    if (const auto straight = isFirst ? screenPixelsOf(m_contents->source, pixels) : std::nullopt)
        return m_contents->scaled = *straight;
    if (!isDecoded()) {
        Result<Bitmap> decoded = decodedAt(pixels);
        if (!decoded)
            return decoded;
        m_contents->reduced = *decoded;
    }
    Result<Bitmap> result = scaled(isDecoded() ? m_contents->bitmap : m_contents->reduced, pixels);
    m_contents->scaled = result.value_or(Bitmap());
    return result;
}

Result<Bitmap> Picture::decodedAt(QSize pixels) const
{
    const ImageSource &source = m_contents->source;
    if (covers(m_contents->reduced.size(), pixels))
        return m_contents->reduced;
    // A JPEG decoder halves in steps: the step is cached, and serves every smaller size equally sharply.
    const bool isJpeg = source.typeIdentifier() == QLatin1String("public.jpeg");
    const bool isBelowHalf = covers(m_contents->pixels / 2, pixels);
    Result<Bitmap> decoded = isJpeg && isBelowHalf ? source.decodeAtLeast(pixels) : source.decodeScaled(pixels);
    if (!decoded && decoded.error().code == ErrorCode::Unreadable)
        m_contents->isBroken = true;
    return decoded;
}

} // namespace platform
