#include "platform/imageio/convert/lossless_turn.h"

#include "platform/imageio/jpeg/lossless_jpeg.h"
#include "platform/imageio/source/opened_file.h"

namespace platform {

std::optional<QByteArray> turnedWithoutLoss(const ImageSource &source, ExactTurn turn)
{
    const ImageSource::File *file = source.file();
    if (!file || file->content != Content::Jpeg)
        return std::nullopt;
    const std::unique_ptr<QIODevice> device = file->bytes.device();
    if (!device)
        return std::nullopt;
    const std::optional<QByteArray> jpeg = losslesslyTurned(device->readAll(), turn);
    if (!jpeg)
        return std::nullopt;
    const Metadata known = swapsSides(turn) ? source.metadata().withResolutionSwapped() : source.metadata();
    const Result<QByteArray> written = known.writtenInto(*jpeg);
    return written ? std::optional(*written) : std::nullopt;
}

} // namespace platform
