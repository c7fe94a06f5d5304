#pragma once

// Private to the platform: how much memory reading and writing a picture needs, before it is started.

#include "platform/graphics/pixels.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/formats/file_format.h"

namespace platform {

/** What happens to a picture whose pixels are about to be decoded. */
struct Outcome
{
    QSize made; ///< what stays in memory, as stored; empty if the rows only pass through
    bool isTurned = false;
    std::optional<FileFormat> written = {}; ///< the next form of the pixels, if known
};

/** Everything that the need depends on. */
struct DecodingFacts
{
    Content content = Content::Unknown;
    qint64 fileBytes = 0;
    QSize decoded; ///< what the decoder processes; for a JPEG that it shrinks, the shrunk size
    int bands = 3;
    int componentBytes = 1;
    double drawingBytes = 0;    ///< for a drawing: what drawing needs, as far as known
    bool comesInPasses = false; ///< passes over the whole picture: progressive JPEG, interlaced PNG
};

/** The name of the number in which an opened drawing stores DecodingFacts::drawingBytes. */
inline constexpr char bytesOfDrawing[] = "quorlin-drawing-bytes";

/**
 * The threads of a decoder reserve a stack and a heap each, of which they use next to nothing. If that fails, the
 * decoder waits for ever, or ends the process.
 */
qint64 addressesOfThreads(Content content);

/** The peak need in bytes, including the writing. */
qint64 memoryNeed(const DecodingFacts &facts, const Outcome &outcome);

/** Whether an encoder of a type that supports both is lossy. */
enum class Loss { Some, None };

/** The bytes that writing needs besides the pixels, which are in memory. */
qint64 memoryNeedOfWriting(FileFormat format, const vips::VImage &image, Loss loss = Loss::Some);

/** The same for a page, which holds the pixels like a PNG and is assembled in two steps. */
qint64 memoryNeedOfPage(const vips::VImage &image);

} // namespace platform
