#pragma once

#include <QByteArray>
#include <QtEndian>

/** PNG files put together chunk by chunk, for what no encoder writes. */
namespace pictures {

inline QByteArray big(quint32 value)
{
    char bytes[4];
    qToBigEndian(value, bytes);
    return {bytes, 4};
}

inline QByteArray chunk(const char *type, const QByteArray &data)
{
    return big(quint32(data.size())) + type + data + big(0); // the check sum is not looked at
}

inline QByteArray png(const QByteArray &chunks)
{
    const QByteArray header = big(1) + big(1) + QByteArray("\x08\x02\0\0\x01", 5);
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", header) + chunks + chunk("IEND", {});
}

inline QByteArray zlib(const QByteArray &text)
{
    return qCompress(text).mid(4);
}

template<size_t size> inline QByteArray bytes(const char (&literal)[size])
{
    return QByteArray(literal, size - 1);
}

} // namespace pictures
