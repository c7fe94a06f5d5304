#pragma once

// Private to the platform.

#include <QIODevice>
#include <QSize>

#include <optional>

namespace platform {

/** What is known of a JPEG once it is open. */
struct PlainJpeg
{
    QSize size; ///< pixels as stored
    int components = 0;
    int orientation = 1;
};

/**
 * Opens a JPEG as openImage() does, but without its library, which takes longer to load than a photograph to shrink.
 * Nothing for everything that openImage() has to judge: other colours, remarks of the decoder, and EXIF that two readers
 * may understand differently.
 */
std::optional<PlainJpeg> plainJpeg(QIODevice &file);

} // namespace platform
