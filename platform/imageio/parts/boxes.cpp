#include "platform/imageio/parts/boxes.h"

#include "platform/foundation/byte_order.h"

namespace platform {
namespace {

constexpr int mostBoxes = 65536;

std::optional<Box> boxAt(const QByteArray &bytes, qsizetype at, qsizetype end)
{
    constexpr qsizetype frame = 8;
    constexpr qsizetype longFrame = 16;
    const qsizetype left = end - at;
    if (left < frame)
        return std::nullopt;
    Box box{bytes.mid(at + 4, 4), at, qsizetype(bigEndian32At(bytes, at)), at + frame};
    if (box.size == 0) { // up to the end
        box.size = left;
    } else if (box.size == 1 && left >= longFrame) {
        const auto size = qFromBigEndian<quint64>(bytes.constData() + at + frame);
        box.size = size <= quint64(left) ? qsizetype(size) : 0;
        box.dataAt = at + longFrame;
    }
    const bool isSound = box.size >= box.dataAt - at && box.size <= left;
    return isSound ? std::optional(box) : std::nullopt;
}

} // namespace

BoxChain boxesBetween(const QByteArray &bytes, qsizetype begin, qsizetype end)
{
    BoxChain chain{{}, begin};
    while (chain.end < end && chain.boxes.size() < mostBoxes) {
        const std::optional<Box> box = boxAt(bytes, chain.end, end);
        if (!box)
            break;
        chain.boxes.append(*box);
        chain.end += box->size;
    }
    return chain;
}

QByteArray boxOf(const char *name, const QByteArray &data)
{
    constexpr qsizetype frame = 8;
    constexpr qsizetype longestShort = 0xffffffff - frame;
    const auto size = quint64(data.size()) + frame;
    if (data.size() <= longestShort)
        return bigEndian(quint32(size)) + QByteArray(name, 4) + data;
    return bigEndian(quint32(1)) + QByteArray(name, 4) + bigEndian(quint64(size + frame)) + data;
}

QByteArray dataOf(const QByteArray &bytes, const Box &box)
{
    return QByteArray::fromRawData(bytes.constData() + box.dataAt, box.dataSize());
}

} // namespace platform
