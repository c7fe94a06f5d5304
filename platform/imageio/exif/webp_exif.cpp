#include "platform/imageio/exif/webp_exif.h"

#include <QtEndian>

namespace platform {

QByteArray webpExif(const QByteArray &bytes)
{
    constexpr qsizetype fileHeader = 12;
    constexpr qsizetype chunkHeader = 8;
    if (!bytes.startsWith("RIFF") || bytes.size() < fileHeader || bytes.mid(8, 4) != "WEBP")
        return {};
    qsizetype at = fileHeader;
    while (at + chunkHeader <= bytes.size()) {
        const auto size = qsizetype(qFromLittleEndian<quint32>(bytes.constData() + at + 4));
        if (at + chunkHeader + size > bytes.size())
            break;
        if (QByteArray::fromRawData(bytes.constData() + at, 4) == "EXIF") {
            const QByteArray block = bytes.mid(at + chunkHeader, size);
            return block.startsWith(QByteArray("Exif\0\0", 6)) ? block.mid(6) : block; // some writers put that first
        }
        at += chunkHeader + size + size % 2;
    }
    return {};
}

} // namespace platform
