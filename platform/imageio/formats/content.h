#pragma once

#include <QByteArray>
#include <QString>

class QIODevice;

namespace platform {

/** The kind of a file by its first bytes. */
enum class Content { Unknown, Jpeg, Png, Tiff, Gif, Bmp, Webp, Heif, Avif, Jpeg2000, JpegXl, Photoshop, Pdf, Svg };
constexpr Content lastContent = Content::Svg;

/** Enough of a file's beginning to recognise it. */
constexpr int contentHeadBytes = 4096;

/** Decides by @p head, the first contentHeadBytes of a file or all of a shorter one. */
Content contentOf(const QByteArray &head);

/** "public.jpeg" for Content::Jpeg and so on; empty for unknown content. */
QString typeIdentifierOf(Content content);

/**
 * The position after the header of a JPEG's first scan; -1 if there is none, or none after a few stray bytes, as in a
 * file that a damaged card has filled with zeros.
 */
qint64 startOfJpegScan(QIODevice &file);

} // namespace platform
