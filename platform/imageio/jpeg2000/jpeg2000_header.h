#pragma once

// Inside platform/ only.

#include <QByteArray>
#include <QSize>

#include <array>

class QIODevice;

namespace platform {

/** How the channels of a JPEG 2000 file are to be understood, as far as it says so itself. */
enum class Jpeg2000Colours { Grey, Rgb, Ycc, Cmyk, Lab };

/** The number range of one channel of Lab: the lowest sample stands for -offset, scaled, and the span of all for range. */
struct LabChannel
{
    double range = 0;
    double offset = 0; ///< in samples
};

/** What stands in front of the pixels of a JPEG 2000 file, with or without its boxes. */
struct Jpeg2000Header
{
    bool valid = false;
    QSize size; ///< of the picture, which its largest component has
    Jpeg2000Colours colours = Jpeg2000Colours::Grey;
    int channelCount = 0; ///< of a decoded pixel: those behind a palette, not the one in front of it
    int bits = 0;         ///< of the most precise channel
    bool hasAlpha = false;
    bool isAlphaUnnamed = false; ///< no box names the channels, and there is one more than there are colours
    std::array<LabChannel, 3> lab = {};
    qint64 codestreamAt = 0;
    qint64 codestreamEnd = 0; ///< where the codestream ends by what its box says; the end of the file without one

    int colourCount() const;
};

/** Reads the boxes and the head of the codestream; not valid where they are damaged. */
Jpeg2000Header readJpeg2000Header(QIODevice &file);

} // namespace platform
