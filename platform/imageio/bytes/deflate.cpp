#include "platform/imageio/bytes/deflate.h"

#include <libdeflate.h>

#include <memory>

namespace platform {

bool appendDeflated(QByteArray &out, const QByteArray &bytes)
{
    // Above this level photographs hardly get smaller, but take several times as long.
    constexpr int quickLevel = 1;
    const std::unique_ptr<libdeflate_compressor, void (*)(libdeflate_compressor *)> compressor(
        libdeflate_alloc_compressor(quickLevel), libdeflate_free_compressor);
    if (!compressor)
        return false;
    const qsizetype before = out.size();
    const qsizetype most = before + qsizetype(libdeflate_zlib_compress_bound(compressor.get(), size_t(bytes.size())));
    out.reserve(most); // resize() alone would take up to twice as much
    out.resize(most);
    const size_t size = libdeflate_zlib_compress(compressor.get(), bytes.constData(), size_t(bytes.size()),
                                                 out.data() + before, size_t(out.size() - before));
    out.truncate(before + qsizetype(size)); // the pages after it were never touched
    return size > 0;
}

QByteArray deflated(const QByteArray &bytes)
{
    QByteArray stream;
    return appendDeflated(stream, bytes) ? stream : QByteArray();
}

quint32 crc32Of(const QByteArray &bytes, quint32 before)
{
    return libdeflate_crc32(before, bytes.constData(), size_t(bytes.size()));
}

} // namespace platform
