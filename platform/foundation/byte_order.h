#pragma once

#include <QByteArray>
#include <QtEndian>

namespace platform {

/** The bytes of a number, big-endian. */
template<typename Number> QByteArray bigEndian(Number number)
{
    QByteArray bytes(sizeof(Number), Qt::Uninitialized);
    qToBigEndian(number, bytes.data());
    return bytes;
}

/** The big-endian number of four bytes at @p position; 0 if it is not within @p bytes. */
inline quint32 bigEndian32At(const QByteArray &bytes, qsizetype position)
{
    const bool isInside = position >= 0 && position + 4 <= bytes.size();
    return isInside ? qFromBigEndian<quint32>(bytes.constData() + position) : 0;
}

} // namespace platform
