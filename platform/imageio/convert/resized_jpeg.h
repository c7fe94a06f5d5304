#pragma once

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include <QRect>

namespace platform {

/** A picture to be reduced, and the part of it that is kept. */
struct JpegResize
{
    QSize size; ///< of the whole picture; no larger than it in any direction
    QRect kept; ///< in it
    /**
     * The decoder delivers at least that many times the size, as long as there are so many pixels. With less, a JPEG of
     * quality 80 differs by more than 0.3 dB from a JPEG of all pixels scaled with Lanczos; see bench/quality.
     */
    double finer = 1.5;
    /**
     * Whether the result must not show how the decoder shrinks, as in ImageSource::decodeFinely(); finer then has no
     * effect.
     */
    bool isFine = false;
};

/**
 * Image 0 of @p source at another size as a JPEG: the result of ImageSource::decodeScaled(), a cut and encodeImage(),
 * but without converting the decoder's planes to colours and back. Pixels differ little; docs/performance.md says how
 * much.
 *
 * @return none if this way is not possible: for all except upright JPEGs of grey or of brightness and colours about
 *         which the decoder has nothing to report, for sizes that are not smaller, and if memory is short
 */
std::optional<QByteArray> resizedJpeg(const ImageSource &source, const JpegResize &resize,
                                      const EncodeOptions &options);

} // namespace platform
