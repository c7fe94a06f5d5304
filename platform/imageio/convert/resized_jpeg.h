#pragma once

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include <QRect>

namespace platform {

/** A picture that becomes smaller, and what is kept of it. */
struct JpegResize
{
    QSize size; ///< of the whole picture, in no direction more than it has
    QRect kept; ///< in it
    /**
     * The decoder gives at least that many times the size, as long as there are so many pixels. At less than this a JPEG of quality 80
     * is more than 0.3 dB further from what Lanczos makes of all pixels than that one's own JPEG; see bench/quality.
     */
    double finer = 1.5;
    /** Whether the result may show nothing of how the decoder shrinks, as ImageSource::decodeFinely() has it; finer is without a meaning. */
    bool isFine = false;
};

/**
 * Image 0 of @p source at another size as a JPEG: what ImageSource::decodeScaled(), a cut and encodeImage() give, without making
 * colours of what the decoder hands out and taking them apart again. Pixels differ by little; docs/performance.md says how much.
 *
 * @return none where it does not go that way: for all but upright JPEGs of grey or of brightness and colours, such as the decoder
 *         has anything to say about, sizes that are not smaller, and where memory is short
 */
std::optional<QByteArray> resizedJpeg(const ImageSource &source, const JpegResize &resize,
                                      const EncodeOptions &options);

} // namespace platform
