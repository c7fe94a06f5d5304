#pragma once

#include <QByteArrayView>

namespace jobs {

/** FNV-1a, 64 bits: the same on every machine and in every version, for what several processes must agree on. */
constexpr quint64 pathHash(QByteArrayView bytes)
{
    quint64 hash = 14695981039346656037ULL;
    for (const char byte : bytes)
        hash = (hash ^ quint8(byte)) * 1099511628211ULL;
    return hash;
}

} // namespace jobs
