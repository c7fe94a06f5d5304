#include "platform/imageio/bytes/deflate.h"

#include <libdeflate.h>

#include <memory>

namespace platform {

QByteArray deflated(const QByteArray &bytes)
{
    // Above this level photographs hardly get smaller, but take several times as long.
    constexpr int quickLevel = 1;
    const std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor *)> compressor(
        libdeflate_alloc_compressor(quickLevel), libdeflate_free_compressor);
    if (!compressor)
        return {};
    QByteArray stream(qsizetype(libdeflate_zlib_compress_bound(compressor.get(), size_t(bytes.size()))),
                      Qt::Uninitialized);
    const size_t size = libdeflate_zlib_compress(compressor.get(), bytes.constData(), size_t(bytes.size()),
                                                 stream.data(), size_t(stream.size()));
    stream.truncate(qsizetype(size)); // the pages after it were never touched
    return stream;
}

quint32 crc32Of(const QByteArray &bytes, quint32 before)
{
    return libdeflate_crc32(before, bytes.constData(), size_t(bytes.size()));
}

} // namespace platform
