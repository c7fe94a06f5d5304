#include "platform/imageio/jpeg/lossless_jpeg.h"

#include "platform/foundation/memory_left.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/jpeg/jpeg_segments.h"

#include <algorithm>
#include <memory>
#include <type_traits>

#include <turbojpeg.h>

namespace platform {
namespace {

using Transformer = std::unique_ptr<std::remove_pointer_t<tjhandle>, int (*)(tjhandle)>;

/** The library rotates clockwise. */
int operationFor(ExactTurn turn)
{
    switch (turn) {
    case ExactTurn::None:
        return TJXOP_NONE;
    case ExactTurn::Quarter:
        return TJXOP_ROT270;
    case ExactTurn::Half:
        return TJXOP_ROT180;
    case ExactTurn::ThreeQuarters:
        return TJXOP_ROT90;
    case ExactTurn::MirrorAcross:
        return TJXOP_HFLIP;
    case ExactTurn::MirrorDown:
        return TJXOP_VFLIP;
    }
    return TJXOP_NONE;
}

/** Four columns sharing one colour would become one to four rows, which many readers do not support. */
bool canSwapSides(tjhandle decoder, const QByteArray &jpeg)
{
    int width = 0;
    int height = 0;
    int sampling = -1;
    int colours = -1;
    const int failed =
        tjDecompressHeader3(decoder, reinterpret_cast<const unsigned char *>(jpeg.constData()),
                            static_cast<unsigned long>(jpeg.size()), &width, &height, &sampling, &colours);
    return failed == 0 && sampling != TJSAMP_411;
}

std::optional<QByteArray> transformed(const QByteArray &jpeg, ExactTurn turn, bool isProgressive)
{
    const Transformer transformer(tjInitTransform(), tjDestroy);
    if (!transformer || (swapsSides(turn) && !canSwapSides(transformer.get(), jpeg)))
        return std::nullopt;
    tjtransform transform = {};
    transform.op = operationFor(turn);
    transform.options = TJXOPT_PERFECT | (isProgressive ? TJXOPT_PROGRESSIVE : 0);
    unsigned char *bytes = nullptr;
    unsigned long size = 0;
    // A warning means a damaged file; whether it can be read anyway is left to the pixel decoder.
    const int failed = tjTransform(transformer.get(), reinterpret_cast<const unsigned char *>(jpeg.constData()),
                                   static_cast<unsigned long>(jpeg.size()), 1, &bytes, &size, &transform,
                                   TJFLAG_STOPONWARNING | TJFLAG_LIMITSCANS);
    const std::unique_ptr<unsigned char, void (*)(unsigned char *)> owner(bytes, tjFree);
    if (failed != 0 || !bytes)
        return std::nullopt;
    return QByteArray(reinterpret_cast<const char *>(bytes), qsizetype(size));
}

/** Swaps the densities in the first segment. */
void swapDensity(QByteArray &jpeg, const JpegSegments &segments)
{
    constexpr qsizetype horizontal = 14; // from the start of the file: two markers, a length, name, version and unit
    constexpr qsizetype vertical = 16;
    if (segments.jfif.isEmpty() || jpeg.mid(6, 4) != "JFIF" || jpeg.size() < vertical + 2)
        return;
    std::swap_ranges(jpeg.begin() + horizontal, jpeg.begin() + vertical, jpeg.begin() + vertical);
}

/** Coefficients of both pictures are in memory at once, two bytes each. */
bool coefficientsFit(QSize size)
{
    constexpr int components = 3;
    constexpr int bytesOfBoth = 4;
    const qint64 need = qint64(size.width()) * size.height() * components * bytesOfBoth;
    return fitsMemoryBudget(size.width(), size.height(), components, bytesOfBoth) && need < memoryLeft();
}

} // namespace

std::optional<QByteArray> losslesslyTurned(const QByteArray &jpeg, ExactTurn turn)
{
    const JpegSegments source = findJpegSegments(jpeg);
    if (!source.valid || !coefficientsFit(source.size))
        return std::nullopt;
    std::optional<QByteArray> result = transformed(jpeg, turn, source.isProgressive);
    if (!result)
        return result;
    const JpegSegments made = findJpegSegments(*result);
    if (swapsSides(turn))
        swapDensity(*result, made);
    for (auto range = made.bound.crbegin(); range != made.bound.crend(); ++range)
        result->remove(range->start, range->size);
    return result;
}

} // namespace platform
