#pragma once

// Private to the platform: how much memory reading and writing a picture takes, before it is begun.

#include "platform/graphics/pixels.h"
#include "platform/imageio/formats/content.h"
#include "platform/imageio/formats/file_format.h"

namespace platform {

/** What becomes of a picture whose pixels are about to be decoded. */
struct Outcome
{
    QSize made; ///< what is left in memory, as stored; empty where the rows only pass through
    bool isTurned = false;
    std::optional<FileFormat> written = {}; ///< what the pixels become next, if that is known
};

/** All that the need depends on. */
struct DecodingFacts
{
    Content content = Content::Unknown;
    qint64 fileBytes = 0;
    QSize decoded; ///< what the decoder goes through; of a JPEG that it shrinks, the shrunk size
    int bands = 3;
    int componentBytes = 1;
    double drawingBytes = 0;    ///< of a drawing: what it takes to draw it, as far as that is known
    bool comesInPasses = false; ///< each of which goes over the whole picture: progressive JPEG, interlaced PNG
};

/** The name of what an opened drawing tells of DecodingFacts::drawingBytes, a number. */
inline constexpr char bytesOfDrawing[] = "quorlin-drawing-bytes";

/**
 * The threads that a decoder starts reserve a stack and a heap each, of which they use next to nothing. Where that fails the
 * decoder waits for ever, or ends the process.
 */
qint64 addressesOfThreads(Content content);

/** The bytes that all of it takes at its peak, the writing included. */
qint64 memoryNeed(const DecodingFacts &facts, const Outcome &outcome);

/** Whether an encoder of a type that can do either loses some of the picture. */
enum class Loss { Some, None };

/** The bytes that writing takes beside the pixels, which are in memory. */
qint64 memoryNeedOfWriting(FileFormat format, const vips::VImage &image, Loss loss = Loss::Some);

/** The same for a page, which holds the pixels as a PNG does and is put together in two steps. */
qint64 memoryNeedOfPage(const vips::VImage &image);

} // namespace platform
