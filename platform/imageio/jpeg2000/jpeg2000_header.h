#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QSize>

#include <array>

class QIODevice;

namespace platform {

/** The meaning of the channels of a JPEG 2000 file, as far as it says so itself. */
enum class Jpeg2000Colours { Grey, Rgb, Ycc, Cmyk, Lab };

/**
 * The number range of one channel of Lab: the lowest sample represents -offset, scaled, and the span of all represents
 * range.
 */
struct LabChannel
{
    double range = 0;
    double offset = 0; ///< in samples
};

/** What precedes the pixels of a JPEG 2000 file, with or without its boxes. */
struct Jpeg2000Header
{
    bool valid = false;
    QSize size; ///< of the picture, which is that of its largest component
    Jpeg2000Colours colours = Jpeg2000Colours::Grey;
    int channelCount = 0; ///< of a decoded pixel: those after a palette, not the one before it
    int bits = 0;         ///< of the most precise channel
    bool hasAlpha = false;
    bool isAlphaUnnamed = false; ///< no box names the channels, and there is one more than there are colours
    std::array<LabChannel, 3> lab = {};
    qint64 codestreamAt = 0;
    qint64 codestreamEnd = 0; ///< end of the codestream according to its box; the end of the file without one

    int colourCount() const;
};

/** Reads the boxes and the head of the codestream; not valid if they are damaged. */
Jpeg2000Header readJpeg2000Header(QIODevice &file);

} // namespace platform
