#pragma once

#include <QByteArrayView>
#include <QHashFunctions>

namespace jobs {

/** FNV-1a, 64 bits: the same on every machine and in every version, for what several processes must agree on. */
constexpr quint64 pathHash(QByteArrayView bytes)
{
    quint64 hash = 14695981039346656037ULL;
    for (const char byte : bytes)
        hash = (hash ^ quint8(byte)) * 1099511628211ULL;
    return hash;
}

/** Represents a path among very many: 128 bits, which no two of a million millions share by chance. */
struct PathKey
{
    quint64 high = 0;
    quint64 low = 0;

    friend bool operator==(const PathKey &, const PathKey &) = default;
    friend size_t qHash(const PathKey &key, size_t seed = 0) { return ::qHash(key.low, seed); }
};

/** FNV-1a, 128 bits. */
constexpr PathKey pathKey(QByteArrayView bytes)
{
    __extension__ using Wide = unsigned __int128;
    constexpr int half = 64;
    constexpr Wide prime = (Wide(1) << 88) + 0x13b;
    Wide hash = (Wide(0x6c62272e07bb0142ULL) << half) | 0x62b821756295c58dULL;
    for (const char byte : bytes)
        hash = (hash ^ quint8(byte)) * prime;
    return {quint64(hash >> half), quint64(hash)};
}

} // namespace jobs
