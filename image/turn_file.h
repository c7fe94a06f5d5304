#pragma once

#include "platform/graphics/turn.h"

#include <QString>

#include <optional>

namespace image {

/** A flip, or an anticlockwise rotation. */
struct Turning
{
    std::optional<platform::ExactTurn> exact; ///< set if no pixel has to be computed
    double degrees = 0;                       ///< otherwise

    static Turning flip(Qt::Orientation axis);
    static Turning by(double degrees);
};

/**
 * Writes image 0 of a file, turned as stored, to a new file; the orientation tag is not applied and is kept.
 *
 * @param sourcePath  absolute; may be @p targetPath, which then is replaced
 * @param targetPath  absolute, extension included; the folder must exist
 * @param type        type identifier of the new file. Metadata goes into JPEG and TIFF files.
 * @return the answer of writeAnswering(); no text at all if there is no image, with "Image source is NULL." (no file,
 *         or no picture) or "Image not created from image source." (an unreadable picture) on standard error,
 *         without a line end
 *
 * From JPEG to JPEG an exact turn is done without loss if the sides are whole blocks; otherwise the new file has the
 * quantisation of the source. A canvas that cannot be made counts as a write failure. Atomic.
 */
QString turnFile(const QString &sourcePath, const QString &targetPath, const QString &type, const Turning &turning);

} // namespace image
