#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

/** TIFF files put together byte by byte, for what no encoder writes. */
namespace pictures {

struct MadeTiff
{
    int pages = 1;
    /** The first directory names the version of a raw format, as a camera's file does. */
    bool isRaw = false;
    /** The first directory has a tag 0x9286 of its own, which belongs into the EXIF directory. */
    QByteArray misplacedComment = {};
};

/** Grey pages of 8 x 8 pixels, each page's pixels in front of its directory; the last directory ends the file. */
inline QByteArray madeTiff(const MadeTiff &wanted)
{
    struct Entry
    {
        quint16 tag;
        quint16 type;
        quint32 count;
        quint32 value;
    };
    constexpr quint32 side = 8;
    QByteArray file("II*\0\0\0\0\0", 8);
    const auto number = [&file](auto value) {
        char bytes[sizeof value];
        qToLittleEndian(value, bytes);
        file.append(bytes, sizeof value);
    };
    qsizetype linkAt = 4;
    for (int page = 0; page < wanted.pages; ++page) {
        const auto pixels = quint32(file.size());
        file.append(QByteArray(side * side, char('A' + page)));
        const auto comment = quint32(file.size());
        const QByteArray misplaced = page == 0 ? wanted.misplacedComment : QByteArray();
        file.append(misplaced).append(misplaced.size() % 2, '\0');
        QList<Entry> entries = {
            {0x0100, 3, 1, side},       {0x0101, 3, 1, side},   {0x0102, 3, 1, 8}, {0x0103, 3, 1, 1},
            {0x0106, 3, 1, 1},          {0x0111, 4, 1, pixels}, {0x0115, 3, 1, 1}, {0x0116, 3, 1, quint32(side)},
            {0x0117, 4, 1, side * side}};
        if (!misplaced.isEmpty())
            entries.append({0x9286, 7, quint32(misplaced.size()), comment});
        if (wanted.isRaw && page == 0)
            entries.append({0xc612, 1, 4, 0x00000401});
        qToLittleEndian<quint32>(quint32(file.size()), file.data() + linkAt);
        number(quint16(entries.size()));
        for (const Entry &entry : entries) {
            number(entry.tag);
            number(entry.type);
            number(entry.count);
            number(entry.value);
        }
        linkAt = file.size();
        number(quint32(0));
    }
    return file;
}

} // namespace pictures
