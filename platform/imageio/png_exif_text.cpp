#include "platform/imageio/png_exif_text.h"

#include <QList>

#include <gio/gio.h>

#include <memory>

namespace platform {

QByteArray inflatedText(const QByteArray &compressed, qsizetype most)
{
    const std::unique_ptr<GConverter, decltype(&g_object_unref)> converter(
        G_CONVERTER(g_zlib_decompressor_new(G_ZLIB_COMPRESSOR_FORMAT_ZLIB)), &g_object_unref);
    QByteArray text(most, '\0');
    gsize read = 0;
    gsize written = 0;
    const auto result =
        g_converter_convert(converter.get(), compressed.constData(), gsize(compressed.size()), text.data(),
                            gsize(text.size()), G_CONVERTER_INPUT_AT_END, &read, &written, nullptr);
    return result == G_CONVERTER_FINISHED ? text.left(qsizetype(written)) : QByteArray();
}

QByteArray exifOfPngText(const QByteArray &type, const QByteArray &chunk)
{
    constexpr qsizetype longest = 1 << 20;
    const qsizetype end = chunk.indexOf('\0');
    const QByteArray keyword = chunk.left(end).toLower();
    if (end < 0 || (keyword != "raw profile type exif" && keyword != "raw profile type app1"))
        return {};
    const QByteArray text = type == "zTXt" ? inflatedText(chunk.mid(end + 2), longest) : chunk.mid(end + 1);
    const QList<QByteArray> lines = text.trimmed().split('\n'); // a name, a count of bytes, and digits
    if (lines.size() < 3)
        return {};
    const QByteArray block = QByteArray::fromHex(lines.mid(2).join());
    const QByteArray name("Exif\0\0", 6);
    const QByteArray tiff = block.startsWith(name) ? block.mid(name.size()) : block;
    const bool isTiff = tiff.startsWith(QByteArrayView("II*\0", 4)) || tiff.startsWith(QByteArrayView("MM\0*", 4));
    return isTiff && tiff.size() == lines.at(1).trimmed().toLongLong() - (block.size() - tiff.size()) ? tiff
                                                                                                      : QByteArray();
}

} // namespace platform
