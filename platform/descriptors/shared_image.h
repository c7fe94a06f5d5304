#pragma once

#include "platform/descriptors/descriptor.h"

#include <QImage>

#include <optional>

namespace platform {

/** Pixels for the screen in memory that can be passed to another process: 32 bits each, row by row without gaps. */
struct SharedImage
{
    QSize size;
    bool hasAlpha = false;
    Descriptor pixels; ///< sealed: nobody can change or shorten it
};

/** A picture for the screen has at most this many pixels on a side, and at most so many bytes. */
inline constexpr int mostSharedSide = 1 << 15;
inline constexpr qint64 mostSharedBytes = qint64(512) << 20;

/**
 * The pixels of @p image, not premultiplied if they are transparent. Nothing if it is null or too large, or memory is
 * exhausted.
 */
std::optional<SharedImage> sharedImage(const QImage &image);

/**
 * The image that another process claims to send, copied out of the shared memory. Nothing is trusted: if it is not such
 * memory, is not sealed, or does not hold exactly what its size requires, there is none.
 */
QImage imageFrom(const SharedImage &shared);

} // namespace platform
