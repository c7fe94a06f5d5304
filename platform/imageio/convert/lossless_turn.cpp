#include "platform/imageio/convert/lossless_turn.h"

#include "platform/file/regular_file.h"
#include "platform/imageio/jpeg/jpeg_header.h"
#include "platform/imageio/jpeg/lossless_jpeg.h"
#include "platform/imageio/source/opened_file.h"

namespace platform {

std::optional<QByteArray> turnedWithoutLoss(const ImageSource &source, ExactTurn turn)
{
    const ImageSource::File *file = source.file();
    if (!file || file->content != Content::Jpeg)
        return std::nullopt;
    const std::unique_ptr<QIODevice> device = file->bytes.device();
    const QByteArray bytes = device ? device->readAll() : QByteArray();
    const Result<Metadata> stated = source.metadata();
    if (!stated || !device || !readProblemOf(*device).isEmpty())
        return std::nullopt;
    const std::optional<QByteArray> jpeg = losslesslyTurned(bytes, turn);
    if (!jpeg)
        return std::nullopt;
    const Metadata known = swapsSides(turn) ? stated->withResolutionSwapped() : *stated;
    const Result<QByteArray> written = known.writtenInto(*jpeg);
    return written ? std::optional(*written) : std::nullopt;
}

bool canTurnWithoutLoss(const ImageSource &source, ExactTurn turn)
{
    const ImageSource::File *file = source.file();
    if (!file || file->content != Content::Jpeg)
        return false;
    const std::unique_ptr<QIODevice> device = file->bytes.device();
    const std::optional<JpegHeader> header = device ? readJpegHeader(*device) : std::nullopt;
    if (!header || !header->isSound)
        return false;
    constexpr int block = 8;
    const bool hasColours = header->componentCount > 1;
    const int across = hasColours ? header->quantisation.horizontalSampling : 1;
    const int down = hasColours ? header->quantisation.verticalSampling : 1;
    // The right or bottom edge moves to the other side, where no partial block is allowed.
    const bool fitsAcross = header->size.width() % (block * across) == 0;
    const bool fitsDown = header->size.height() % (block * down) == 0;
    constexpr int mostToSwap = 2;
    switch (turn) {
    case ExactTurn::None:
        return true;
    case ExactTurn::Quarter:
        return fitsAcross && across <= mostToSwap;
    case ExactTurn::Half:
        return fitsAcross && fitsDown;
    case ExactTurn::ThreeQuarters:
        return fitsDown && across <= mostToSwap;
    case ExactTurn::MirrorAcross:
        return fitsAcross;
    case ExactTurn::MirrorDown:
        return fitsDown;
    }
    Q_UNREACHABLE();
}

} // namespace platform
