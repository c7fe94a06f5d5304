#include "platform/imageio/jpeg/jpeg_segments.h"

#include <QtEndian>

#include <algorithm>

namespace platform {
namespace {

constexpr uchar markerStart = 0xff;
constexpr uchar startOfImage = 0xd8;
constexpr uchar endOfImage = 0xd9;
constexpr uchar startOfScan = 0xda;

bool isFrameHeader(uchar marker)
{
    const bool tables = marker == 0xc4 || marker == 0xc8 || marker == 0xcc;
    return marker >= 0xc0 && marker <= 0xcf && !tables;
}

bool standsAlone(uchar marker)
{
    return marker == 0x01 || (marker >= 0xd0 && marker <= 0xd7);
}

bool isMetadata(uchar marker, const QByteArray &payload)
{
    if (marker == 0xe1)
        return payload.startsWith("Exif\0") || payload.startsWith("http://ns.adobe.com/x");
    return marker == 0xed && payload.startsWith("Photoshop 3.0");
}

/** A thumbnail beside the JFIF segment, or an index of the pictures that follow in the file. */
bool isBoundToThisFile(uchar marker, const QByteArray &payload)
{
    return (marker == 0xe0 && payload.startsWith("JFXX")) || (marker == 0xe2 && payload.startsWith("MPF"));
}

/** A block too large for one segment continues in the next one, which then has no header. */
void takeExif(JpegSegments &segments, JpegSegments::Range range, const QByteArray &block)
{
    const bool hasHeader = block.startsWith("II*") || block.startsWith(QByteArray("MM\0*", 4));
    if (segments.exifRanges.isEmpty() || !hasHeader) {
        segments.exif += block;
        segments.exifRanges.append(range);
    }
    ++segments.exifSegments;
}

JpegFrame frameOf(uchar marker, const QByteArray &payload)
{
    constexpr qsizetype firstComponent = 6;
    constexpr uchar lastHuffman = 0xc2;
    JpegFrame frame;
    frame.bitsPerComponent = uchar(payload.at(0));
    frame.isHuffmanCoded = marker <= lastHuffman;
    frame.componentCount = payload.size() > firstComponent ? uchar(payload.at(firstComponent - 1)) : 0;
    QByteArray names;
    for (qsizetype at = firstComponent; at < payload.size(); at += 3)
        names += payload.at(at);
    frame.isPlainRgb = names == "RGB";
    return frame;
}

/** The order in which decoders trust statements about the colours: JFIF, then Adobe, then the components' names. */
void settleColours(JpegSegments &segments, int adobeTransform)
{
    const bool isAdobe = adobeTransform >= 0;
    segments.frame.contradictsItself =
        !segments.jfif.isEmpty() && adobeTransform == 0 && segments.frame.componentCount == 3;
    segments.frame.isPlainRgb = segments.frame.isPlainRgb && segments.jfif.isEmpty() && !isAdobe;
}

/** The conversion that Adobe's segment names; -1 for any other segment. */
int adobeTransformOf(uchar marker, const QByteArray &payload)
{
    constexpr qsizetype transformAt = 11;
    const bool isAdobe = marker == 0xee && payload.size() > transformAt && payload.startsWith("Adobe");
    return isAdobe ? uchar(payload.at(transformAt)) : -1;
}

void take(JpegSegments &segments, uchar marker, JpegSegments::Range range, const QByteArray &payload)
{
    if (isMetadata(marker, payload))
        segments.metadata.append(range);
    if (isBoundToThisFile(marker, payload))
        segments.bound.append(range);
    if (marker == 0xe1 && payload.startsWith(QByteArray("Exif\0\0", 6)))
        takeExif(segments, range, payload.mid(6));
    if (marker == 0xe0 && payload.startsWith("JFIF") && segments.insertAt == range.start)
        segments.insertAt = range.start + range.size;
    if (marker == 0xe0 && segments.jfif.isEmpty() && payload.startsWith("JFIF"))
        segments.jfif = QByteArray(payload.constData(), payload.size()); // the payload is a view
    if (marker == 0xfe)
        segments.comments.append(range);
    if (marker == 0xc2)
        segments.isProgressive = true;
    if (isFrameHeader(marker) && payload.size() >= 5) {
        segments.size =
            QSize(qFromBigEndian<quint16>(payload.constData() + 3), qFromBigEndian<quint16>(payload.constData() + 1));
        segments.frame = frameOf(marker, payload);
    }
}

} // namespace

JpegSegments findJpegSegments(const QByteArray &bytes)
{
    JpegSegments segments;
    const auto at = [&](qsizetype index) { return uchar(bytes.at(index)); };
    if (bytes.size() < 4 || at(0) != markerStart || at(1) != startOfImage)
        return segments;
    segments.insertAt = 2;
    int adobeTransform = -1;
    qsizetype position = 2;
    while (position + 4 <= bytes.size()) {
        const uchar marker = at(position + 1);
        if (at(position) != markerStart || marker == markerStart) { // some writers insert bytes between the segments
            ++position;
            continue;
        }
        if (marker == startOfScan || marker == endOfImage) {
            segments.valid = marker == startOfScan;
            break;
        }
        if (standsAlone(marker)) {
            position += 2;
            continue;
        }
        const qsizetype length = qFromBigEndian<quint16>(bytes.constData() + position + 2);
        if (length < 2 || position + 2 + length > bytes.size())
            break;
        const QByteArray payload = QByteArray::fromRawData(bytes.constData() + position + 4, length - 2);
        take(segments, marker, {position, 2 + length}, payload);
        adobeTransform = std::max(adobeTransform, adobeTransformOf(marker, payload));
        position += 2 + length;
    }
    settleColours(segments, adobeTransform);
    return segments;
}

} // namespace platform
