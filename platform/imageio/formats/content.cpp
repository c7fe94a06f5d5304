#include "platform/imageio/formats/content.h"

#include "platform/imageio/bytes/block_reader.h"
#include "platform/imageio/formats/formats.h"

#include <QIODevice>
#include <QtEndian>

namespace platform {
qint64 startOfJpegScan(QIODevice &file)
{
    constexpr qint64 mostBetweenSegments = 65536;
    BlockReader reader(file);
    qint64 position = 2;
    qint64 strayBytes = 0;
    while (strayBytes <= mostBetweenSegments) {
        const QByteArrayView head = reader.at(position, 4);
        if (head.size() < 4)
            return -1;
        const auto marker = uchar(head[1]);
        const bool isNone = uchar(head[0]) != 0xFF || marker == 0xFF || marker == 0;
        if (isNone) { // some writers insert bytes between the segments
            ++position;
            ++strayBytes;
            continue;
        }
        const bool standsAlone = marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
        const qint64 next = position + 2 + (standsAlone ? 0 : qFromBigEndian<quint16>(head.data() + 2));
        if (marker == 0xDA)
            return next;
        position = next;
        strayBytes += standsAlone ? 2 : 0;
    }
    return -1;
}

Content contentOf(const QByteArray &head)
{
    for (const Format &format : formats())
        if (format.begins && format.begins(head))
            return format.content;
    return Content::Unknown;
}

QString typeIdentifierOf(Content content)
{
    const Format *format = formatOf(content);
    return format ? format->identifier : QString();
}

} // namespace platform
