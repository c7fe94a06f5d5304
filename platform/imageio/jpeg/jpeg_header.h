#pragma once

#include "platform/graphics/bitmap.h"

#include <QByteArray>
#include <QIODevice>
#include <QList>
#include <QSize>

#include <optional>

namespace platform {

/** What a JPEG's header says besides its size. */
struct JpegHeader
{
    JpegQuantisation quantisation;
    int componentCount = 0;
    QSize size;               ///< pixels as stored
    double horizontalDpi = 0; ///< of the JFIF segment; 0 if there is none or it names no unit
    double verticalDpi = 0;
    bool isSound = false;    ///< the decoder has no remark
    bool isPlain = false;    ///< sound, with 8 bits of grey or of luma and chroma
    QList<QByteArray> exifs; ///< the contents of all segments that begin as EXIF does
    std::optional<QByteArray>
        profile; ///< the colour profile, empty if there is none; nothing if it is incomplete or was skipped
};

enum class JpegProfile { Skipped, Read };

/** Reads the tables before the first scan. None if they cannot be read. */
std::optional<JpegHeader> readJpegHeader(QIODevice &file, JpegProfile profile = JpegProfile::Skipped);

} // namespace platform
