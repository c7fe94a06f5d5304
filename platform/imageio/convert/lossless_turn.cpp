#include "platform/imageio/convert/lossless_turn.h"

#include "platform/file/regular_file.h"
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

} // namespace platform
