#include "platform/imageio/jpeg/bare_jpeg.h"

#include <QtEndian>

namespace platform {
namespace {

constexpr uchar startOfImage = 0xd8;
constexpr uchar endOfImage = 0xd9;
constexpr uchar startOfScan = 0xda;

bool isRestart(uchar marker)
{
    return marker >= 0xd0 && marker <= 0xd7;
}

/**
 * The profile, and the statements of JFIF and Adobe about the colours: without them the picture would look different.
 */
bool belongsToThePicture(uchar marker, QByteArrayView payload)
{
    constexpr uchar firstOfMakers = 0xe0;
    constexpr uchar lastOfMakers = 0xef;
    constexpr uchar comment = 0xfe;
    if (marker == comment)
        return false;
    if (marker < firstOfMakers || marker > lastOfMakers)
        return true;
    return (marker == 0xe0 && payload.startsWith(QByteArrayView("JFIF\0", 5))) ||
           (marker == 0xe2 && payload.startsWith(QByteArrayView("ICC_PROFILE\0", 12))) ||
           (marker == 0xee && payload.startsWith(QByteArrayView("Adobe", 5)));
}

/**
 * Where the coded pixels from @p position on end: at the next marker that is not part of them; -1 at the end of the
 * file.
 */
qsizetype endOfCodedPixels(const QByteArray &jpeg, qsizetype position)
{
    for (qsizetype at = jpeg.indexOf('\xFF', position); at >= 0 && at + 1 < jpeg.size();
         at = jpeg.indexOf('\xFF', at + 1)) {
        const auto marker = uchar(jpeg[at + 1]);
        if (marker != 0 && marker != 0xff && !isRestart(marker))
            return at;
    }
    return -1;
}

struct Walked
{
    QByteArray bare;
    qsizetype end = 0; ///< after the end-of-image marker
};

Walked walked(const QByteArray &jpeg)
{
    constexpr qsizetype markerBytes = 2;
    QByteArray bare("\xFF\xD8", markerBytes);
    bare.reserve(jpeg.size());
    qsizetype position = jpeg.startsWith(bare) ? markerBytes : jpeg.size();
    while (position + markerBytes <= jpeg.size()) {
        const auto marker = uchar(jpeg[position + 1]);
        if (uchar(jpeg[position]) != 0xff || marker == 0xff || marker == 0) { // bytes between segments
            ++position;
            continue;
        }
        if (marker == endOfImage)
            return {bare + QByteArrayView(jpeg).sliced(position, markerBytes).toByteArray(), position + markerBytes};
        if (marker == startOfImage || marker == 0x01 || isRestart(marker)) {
            position += markerBytes;
            continue;
        }
        if (position + 4 > jpeg.size())
            break;
        qsizetype end = position + markerBytes + qFromBigEndian<quint16>(jpeg.constData() + position + markerBytes);
        if (end < position + 4 || end > jpeg.size())
            break;
        const auto payload = QByteArrayView(jpeg).sliced(position + 4, end - position - 4);
        if (marker == startOfScan && (end = endOfCodedPixels(jpeg, end)) < 0)
            break;
        if (belongsToThePicture(marker, payload))
            bare.append(jpeg.constData() + position, end - position);
        position = end;
    }
    return {};
}

} // namespace

QByteArray withoutMetadata(const QByteArray &jpeg)
{
    return walked(jpeg).bare;
}

qsizetype endOfJpeg(const QByteArray &jpeg)
{
    return walked(jpeg).end;
}

} // namespace platform
