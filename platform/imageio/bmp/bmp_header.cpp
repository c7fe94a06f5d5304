#include "platform/imageio/bmp/bmp_header.h"

#include <QtEndian>

#include <cstdlib>

// A bitmap file; numbers are little-endian, offsets count from the first byte:
//
//     0 "BM"  2 size of the file  10 where the rows begin | 14 size of the second header, which tells its version:
//     12: 18 width (2)  20 height (2)  24 bits (2)
//     40 and more: 18 width (4)  22 height (4), negative where rows go downwards  28 bits (2)  30 compression (4)
//                  38 and 42 pixels a metre
//     124: 70 kind of colour space  126 where the profile begins, counted from 14  130 its size

namespace platform {
namespace {

constexpr int fileHeaderBytes = 14;
constexpr quint32 oldHeaderBytes = 12;
constexpr quint32 usualHeaderBytes = 40;

template<typename T> T numberAt(const QByteArray &bytes, int position)
{
    return qFromLittleEndian<T>(bytes.constData() + position);
}

struct Fields
{
    qint64 width = 0;
    qint64 height = 0;
    int bitsPerPixel = 0;
    quint32 compression = 0;
};

Fields fieldsOf(const QByteArray &head)
{
    const auto headerBytes = numberAt<quint32>(head, fileHeaderBytes);
    if (headerBytes == oldHeaderBytes)
        return {numberAt<quint16>(head, 18), numberAt<quint16>(head, 20), numberAt<quint16>(head, 24), 0};
    if (headerBytes < usualHeaderBytes)
        return {};
    // A negative height means that the rows are stored from top to bottom.
    return {numberAt<qint32>(head, 18), std::llabs(qint64(numberAt<qint32>(head, 22))), numberAt<quint16>(head, 28),
            numberAt<quint32>(head, 30)};
}

} // namespace

BmpHeader readBmpHeader(QIODevice &file)
{
    constexpr int known = fileHeaderBytes + int(usualHeaderBytes);
    const QByteArray head = file.seek(0) ? file.read(known) : QByteArray();
    if (head.size() < known || !head.startsWith("BM"))
        return {};
    const Fields fields = fieldsOf(head);
    constexpr qint64 longestSide = 10'000'000;
    if (fields.width < 1 || fields.height < 1 || fields.width > longestSide || fields.height > longestSide)
        return {};
    BmpHeader header;
    header.size = QSize(int(fields.width), int(fields.height));
    if (numberAt<quint32>(head, fileHeaderBytes) >= usualHeaderBytes) {
        header.horizontalPerMetre = numberAt<qint32>(head, 38);
        header.verticalPerMetre = numberAt<qint32>(head, 42);
    }
    constexpr quint32 plain = 0;
    constexpr quint32 plainWithMasks = 3;
    if (fields.compression == plain || fields.compression == plainWithMasks) {
        const qint64 rowBytes = (fields.width * fields.bitsPerPixel + 31) / 32 * 4;
        header.bytesNeeded = numberAt<quint32>(head, 10) + rowBytes * fields.height;
    }
    return header;
}

namespace {

struct ProfilePlace
{
    qint64 at = 0;
    qint64 size = 0;
};

ProfilePlace profilePlace(QIODevice &file)
{
    constexpr quint32 headerBytes = 124;
    constexpr quint32 embedded = 0x4D424544;
    const QByteArray head = file.seek(0) ? file.read(fileHeaderBytes + qint64(headerBytes)) : QByteArray();
    if (head.size() < fileHeaderBytes + int(headerBytes) || numberAt<quint32>(head, fileHeaderBytes) != headerBytes ||
        numberAt<quint32>(head, fileHeaderBytes + 56) != embedded)
        return {};
    return {fileHeaderBytes + qint64(numberAt<quint32>(head, fileHeaderBytes + 112)),
            numberAt<quint32>(head, fileHeaderBytes + 116)};
}

} // namespace

qint64 endOfBmpProfile(QIODevice &file)
{
    const ProfilePlace place = profilePlace(file);
    return place.at + place.size;
}

QByteArray readBmpProfile(QIODevice &file)
{
    constexpr qint64 mostProfileBytes = 16 << 20;
    const ProfilePlace place = profilePlace(file);
    const bool isInside = place.size <= mostProfileBytes && place.at + place.size <= file.size();
    return isInside && file.seek(place.at) ? file.read(place.size) : QByteArray();
}

} // namespace platform
