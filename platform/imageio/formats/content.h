#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace platform {

/** What a file is by its first bytes. */
enum class Content { Unknown, Jpeg, Png, Tiff, Gif, Bmp, Webp, Heif, Avif, Jpeg2000, JpegXl, Photoshop, Pdf, Svg };
constexpr Content lastContent = Content::Svg;

/** Enough of a file's beginning to tell what it is. */
constexpr int contentHeadBytes = 4096;

/** Tells by @p head, the first contentHeadBytes of a file or all of a shorter one. */
Content contentOf(const QByteArray &head);

/** "public.jpeg" for Content::Jpeg and so on; empty for unknown content. */
QString typeIdentifierOf(Content content);

/**
 * The position behind the header of a JPEG's first scan; -1 where there is none, or none behind a few stray bytes, as in a
 * file that a damaged card has filled up with zeros.
 */
qint64 startOfJpegScan(QIODevice &file);

} // namespace platform
