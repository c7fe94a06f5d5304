#pragma once

// Private to the platform.

#include <QIODevice>
#include <QSize>

#include <optional>

namespace platform {

/** What opening a JPEG tells of it. */
struct PlainJpeg
{
    QSize size; ///< pixels as stored
    int components = 0;
    int orientation = 1;
};

/**
 * Opens a JPEG as openImage() does, without the library behind that, which takes longer to start than a photograph to be made smaller.
 * None for everything that is not quite plain, which openImage() is to judge: other colours, remarks of the decoder, and EXIF that two
 * readers may understand differently.
 */
std::optional<PlainJpeg> plainJpeg(QIODevice &file);

} // namespace platform
