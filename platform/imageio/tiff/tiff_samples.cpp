#include "platform/imageio/tiff/tiff_samples.h"

#include "platform/imageio/tiff/tiff_reader.h"
#include "platform/imageio/tiff/tiff_tags.h"

#include <algorithm>

namespace platform {

bool TiffSamples::isLogarithmic() const
{
    constexpr int logL = 32844;
    constexpr int logLuv = 32845;
    return photometric == logL || photometric == logLuv;
}

TiffSamples readTiffSamples(QIODevice &file, int page)
{
    constexpr auto end = TiffReader::End::MayBeCut;
    const TiffReader reader(file);
    TiffDirectory directory = reader.isValid() ? reader.directory(reader.firstOffset(), end) : TiffDirectory();
    for (int number = 0; number < page && directory.valid; ++number)
        directory = reader.directory(directory.next, end);
    TiffSamples samples;
    samples.isKnown = !directory.entries.isEmpty();
    samples.photometric = int(reader.integer(directory, tiffTag::photometric, quint64(samples.photometric)));
    samples.bits = int(reader.integer(directory, tiffTag::bits, quint64(samples.bits)));
    if (const TiffEntry *others = directory.findSound(tiffTag::extraSamples)) {
        constexpr quint64 mostOthers = 64;
        for (quint64 i = 0; i < std::min(others->count, mostOthers); ++i)
            samples.others.append(int(reader.integer(*others, i)));
    }
    return samples;
}

} // namespace platform
