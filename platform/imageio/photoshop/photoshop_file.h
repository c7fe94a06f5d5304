#pragma once

// Private to the platform.

#include <QByteArray>
#include <QIODevice>
#include <QSize>

#include <array>

namespace platform {

/** What a Photoshop file (PSD, or PSB for large ones) says about its merged picture. */
struct PhotoshopFile
{
    enum class Mode : quint16 { Bitmap = 0, Grey = 1, Palette = 2, Rgb = 3, Cmyk = 4, Inks = 7, Duotone = 8, Lab = 9 };

    bool isLarge = false; ///< a PSB file
    int channels = 0;
    QSize size;
    int bits = 0; ///< 1, 8, 16 or 32, which is floating point
    Mode mode = Mode::Rgb;
    QByteArray palette; ///< 256 reds, then greens, then blues; empty except for palettes
    QByteArray profile;
    QByteArray exif; ///< this and the next two as embedded, each empty if missing
    QByteArray xmp;
    QByteArray iptc;
    /**
     * The first channel after the colours is the transparency of the whole; else it is a saved selection or a spot
     * colour.
     */
    bool hasTransparency = false;
    qint64 pixelsAt = 0; ///< of the merged picture, starting with its compression

    int colours() const;
};

/**
 * Reads everything except the pixels. Throws vips::VError if the file is damaged, truncated or of an unsupported kind.
 */
PhotoshopFile readPhotoshopFile(QIODevice &file);

} // namespace platform
