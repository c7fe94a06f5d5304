#include "platform/imageio/png/png_exif_text.h"

#include <QList>
#include <QtEndian>

#include <gio/gio.h>

#include <memory>

namespace platform {
namespace {

/** The form that older programs wrote: a name, a count of bytes, and digits. */
struct WrittenOut
{
    QByteArray bytes;
    qint64 said = 0; ///< as many as the count says
};

std::optional<WrittenOut> writtenOut(const QByteArray &type, const QByteArray &chunk, qsizetype longest)
{
    const qsizetype end = chunk.indexOf('\0');
    const QByteArray text = type == "zTXt" ? inflatedText(chunk.mid(end + 2), longest) : chunk.mid(end + 1);
    const QList<QByteArray> lines = text.trimmed().split('\n');
    if (lines.size() < 3)
        return std::nullopt;
    return WrittenOut{QByteArray::fromHex(lines.mid(2).join()), lines.at(1).trimmed().toLongLong()};
}

/** The text after two flags, a language and a translated keyword. */
QByteArray internationalText(const QByteArray &chunk, qsizetype keyword, qsizetype longest)
{
    const qsizetype flags = keyword + 1;
    const qsizetype language = chunk.indexOf('\0', flags + 2);
    const qsizetype translated = language < 0 ? -1 : chunk.indexOf('\0', language + 1);
    if (translated < 0)
        return {};
    const QByteArray text = chunk.mid(translated + 1);
    return chunk.at(flags) == 0 ? text : inflatedText(text, longest);
}

} // namespace

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
    const auto [block, said] = writtenOut(type, chunk, longest).value_or(WrittenOut());
    const QByteArray name("Exif\0\0", 6);
    const QByteArray tiff = block.startsWith(name) ? block.mid(name.size()) : block;
    const bool isTiff = tiff.startsWith(QByteArrayView("II*\0", 4)) || tiff.startsWith(QByteArrayView("MM\0*", 4));
    return isTiff && tiff.size() == said - (block.size() - tiff.size()) ? tiff : QByteArray();
}

std::optional<QByteArray> xmpOfPngText(const QByteArray &type, const QByteArray &chunk)
{
    constexpr qsizetype longest = 4 << 20;
    const qsizetype end = chunk.indexOf('\0');
    if (end < 0 || (type != "iTXt" && type != "tEXt" && type != "zTXt"))
        return std::nullopt;
    const QByteArray keyword = chunk.left(end);
    if (type == "iTXt" && keyword == "XML:com.adobe.xmp")
        return internationalText(chunk, end, longest);
    if (keyword.toLower() == "raw profile type xmp")
        return writtenOut(type, chunk, 2 * longest).value_or(WrittenOut()).bytes;
    return std::nullopt;
}

QStringList pngComments(const QByteArray &chunks)
{
    constexpr qsizetype frame = 12;
    constexpr qsizetype longest = 1 << 20;
    static const QByteArray keyword("Comment\0", 8);
    QStringList comments;
    for (qsizetype at = 0; at + frame <= chunks.size();) {
        const auto size = qsizetype(qFromBigEndian<quint32>(chunks.constData() + at));
        const QByteArray name = chunks.mid(at + 4, 4);
        const QByteArray data = chunks.mid(at + 8, size);
        at += frame + size;
        if (!data.startsWith(keyword))
            continue;
        if (name == "tEXt")
            comments.append(QString::fromLatin1(data.mid(keyword.size())));
        else if (name == "zTXt")
            comments.append(QString::fromLatin1(inflatedText(data.mid(keyword.size() + 1), longest)));
        else if (name == "iTXt")
            comments.append(QString::fromUtf8(internationalText(data, keyword.size() - 1, longest)));
    }
    comments.removeAll(QString());
    return comments;
}

} // namespace platform
