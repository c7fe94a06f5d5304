#include "platform/imageio/source/screen_pixels.h"

#include "platform/foundation/memory_left.h"
#include "platform/graphics/resample.h"
#include "platform/imageio/codecs/codecs.h"
#include "platform/imageio/facts/resolution.h"
#include "platform/imageio/jpeg/planes_as_pixels.h"
#include "platform/imageio/jpeg/shrunk_jpeg.h"
#include "platform/imageio/source/opened_file.h"

#include <QTransform>

#include <algorithm>
#include <new>

namespace platform {
namespace {

/** Below that a decoder that is asked for a size might choose another scale. */
constexpr int shortestSide = 64;

bool isPossible(const ImageSource::File &file, QSize size)
{
    return file.content == Content::Jpeg && !size.isEmpty() && size.width() <= file.storedSize.width() / 2 &&
           size.height() <= file.storedSize.height() / 2 &&
           std::min(file.storedSize.width(), file.storedSize.height()) >= shortestSide;
}

/** The file, the planes before, and the pixels in two forms. */
bool isMemoryLeft(const PlaneFacts &facts, qsizetype fileBytes, int shrink, QSize size)
{
    constexpr qint64 components = 3;
    constexpr qint64 coefficientBytes = 2;
    const auto area = [](QSize each) { return components * each.width() * each.height(); };
    const qint64 coefficients = facts.comesInPasses ? coefficientBytes * area(facts.stored) : 0;
    return fileBytes + coefficients + area(facts.stored / shrink) + 2 * area(size) < memoryLeft();
}

QImage upright(const QImage &stored, int orientation)
{
    const auto turned = [&stored](int degrees) { return stored.transformed(QTransform().rotate(degrees)); };
    switch (orientation) {
    case 2:
        return stored.mirrored(true, false);
    case 3:
        return stored.mirrored(true, true);
    case 4:
        return stored.mirrored(false, true);
    case 5:
        return turned(90).mirrored(true, false);
    case 6:
        return turned(90);
    case 7:
        return turned(270).mirrored(true, false);
    case 8:
        return turned(270);
    default:
        return stored;
    }
}

std::optional<Bitmap> decodedAt(const ImageSource::File &file, QSize size)
{
    const QByteArray jpeg = file.bytes.all();
    const std::optional<PlaneFacts> facts = planeFacts(jpeg);
    const int shrink = jpegShrinkFor(file.storedSize, size);
    if (!facts || facts->stored != file.storedSize || !isMemoryLeft(*facts, jpeg.size(), shrink, size))
        return std::nullopt;
    const std::optional<QImage> stored = pixelsOfPlanes(jpeg, *facts, shrink, size);
    const QImage pixels = stored ? upright(*stored, file.orientation) : QImage();
    if (pixels.isNull())
        return std::nullopt;
    const auto header = jpegHeaderOf(file.bytes, file.content);
    return Bitmap(std::make_shared<const Bitmap::Pixels>(
        pixels, facts->profile, uprightResolution(resolutionOf(file.bytes, file.content), file.orientation),
        header ? std::optional(header->quantisation) : std::nullopt));
}

} // namespace

std::optional<Bitmap> screenPixelsOf(const ImageSource &source, QSize size)
{
    const ImageSource::File *file = source.file();
    const bool isOnItsSide = file && source.uprightSize() != file->storedSize;
    const QSize stored = isOnItsSide ? size.transposed() : size;
    if (!file || !isPossible(*file, stored))
        return std::nullopt;
    try {
        return decodedAt(*file, stored);
    } catch (const std::bad_alloc &) {
    }
    return std::nullopt; // the other way reports it properly
}

} // namespace platform
