#pragma once

#include "platform/descriptors/descriptor.h"

#include <QImage>

#include <optional>

namespace platform {

/** Pixels for the screen in memory that another process can be given: 32 bits each, row by row without gaps. */
struct SharedImage
{
    QSize size;
    bool hasAlpha = false;
    Descriptor pixels; ///< sealed: nobody can change or shorten it
};

/** A picture for the screen has no more pixels than this on a side, and no more than so many bytes. */
inline constexpr int mostSharedSide = 1 << 15;
inline constexpr qint64 mostSharedBytes = qint64(512) << 20;

/** The pixels of @p image, not premultiplied where they are transparent. Nothing where it is null, too large, or no memory is left. */
std::optional<SharedImage> sharedImage(const QImage &image);

/**
 * The image that another process says it is, copied out of the shared memory. Nothing is believed: where it is no such memory, is
 * not sealed, or does not hold exactly what its size needs, there is none.
 */
QImage imageFrom(const SharedImage &shared);

} // namespace platform
