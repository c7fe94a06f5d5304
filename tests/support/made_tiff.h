#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <QtEndian>

/** TIFF files put together byte by byte, for what no encoder writes. */
namespace pictures {

struct MadeTiff
{
    int pages = 1;
    /** The first directory names the version of a raw format, as a camera's file does. */
    bool isRaw = false;
    /** The first directory has a tag 0x9286, which belongs in the EXIF directory. */
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

/** One entry of a directory, low byte first. */
inline QByteArray tiffEntry(quint16 tag, quint16 type, quint32 count, quint32 value)
{
    QByteArray entry(12, '\0');
    qToLittleEndian<quint16>(tag, entry.data());
    qToLittleEndian<quint16>(type, entry.data() + 2);
    qToLittleEndian<quint32>(count, entry.data() + 4);
    qToLittleEndian<quint32>(value, entry.data() + 8);
    return entry;
}

inline QByteArray tiffDirectory(const QByteArrayList &entries)
{
    QByteArray count(2, '\0');
    qToLittleEndian<quint16>(quint16(entries.size()), count.data());
    return count + entries.join() + QByteArray(4, '\0');
}

/** A raw file as cameras write it, with no sensor data, and with a preview if there is one. */
inline QByteArray rawFileWith(const QByteArray &preview, quint16 orientation)
{
    constexpr quint16 shortType = 3;
    constexpr quint16 longType = 4;
    constexpr quint32 firstAt = 8;
    constexpr quint32 secondAt = firstAt + 2 + 4 * 12 + 4;
    constexpr quint32 previewAt = secondAt + 2 + 4 * 12 + 4;
    QByteArray file("II*\0\x08\0\0\0", 8);
    file += tiffDirectory({tiffEntry(0x00fe, longType, 1, 1), tiffEntry(0x0112, shortType, 1, orientation),
                           tiffEntry(0x014a, longType, 1, secondAt), tiffEntry(0xc612, 1, 4, 0x00000401)});
    const quint32 size = quint32(preview.size());
    file += tiffDirectory({tiffEntry(0x00fe, longType, 1, 1), tiffEntry(0x0103, shortType, 1, 6),
                           tiffEntry(0x0201, longType, 1, previewAt), tiffEntry(0x0202, longType, 1, size)});
    return file + preview;
}

} // namespace pictures
