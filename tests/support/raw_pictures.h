#pragma once

#include <QByteArray>
#include <QList>
#include <QtEndian>

#include <cstring>

/** Picture files of kinds that hardly any program writes, byte by byte. */
namespace pictures {

template<typename T> void appendLittle(QByteArray &bytes, T number)
{
    char text[sizeof number];
    qToLittleEndian<T>(number, text);
    bytes.append(text, sizeof number);
}

template<typename T> void appendBig(QByteArray &bytes, T number)
{
    char text[sizeof number];
    qToBigEndian<T>(number, text);
    bytes.append(text, sizeof number);
}

/** Consecutive little-endian numbers. */
template<typename T> QByteArray packed(const QList<T> &numbers)
{
    QByteArray bytes;
    for (const T number : numbers)
        appendLittle(bytes, number);
    return bytes;
}

struct TiffKind
{
    int photometric = 2;
    int bits = 8;
    int samples = 3;
    int sampleFormat = 1; ///< 1 without, 2 with sign, 3 floating point
    QList<int> others;    ///< meanings of the samples after the colours
};

/** A TIFF file of @p width pixels a row in one strip. */
inline QByteArray tiff(const TiffKind &kind, int width, int height, const QByteArray &pixels)
{
    const auto shorts = [](const QList<int> &values) {
        QByteArray bytes;
        for (const int value : values)
            appendLittle(bytes, quint16(value));
        return bytes;
    };
    struct Entry
    {
        quint16 tag;
        QByteArray values;
    };
    constexpr quint32 pixelsAt = 8;
    QByteArray place;
    appendLittle(place, pixelsAt);
    QByteArray size;
    appendLittle(size, quint32(pixels.size()));
    QList<Entry> entries = {{0x100, shorts({width})},
                            {0x101, shorts({height})},
                            {0x102, shorts(QList<int>(kind.samples, kind.bits))},
                            {0x103, shorts({1})},
                            {0x106, shorts({kind.photometric})},
                            {0x111, place},
                            {0x115, shorts({kind.samples})},
                            {0x116, shorts({height})},
                            {0x117, size}};
    if (!kind.others.isEmpty())
        entries.append({0x152, shorts(kind.others)});
    if (kind.sampleFormat != 1)
        entries.append({0x153, shorts(QList<int>(kind.samples, kind.sampleFormat))});
    const QByteArray padded = pixels.size() % 2 ? pixels + '\0' : pixels;
    QByteArray values;
    QByteArray directory;
    appendLittle(directory, quint16(entries.size()));
    const auto valuesAt = quint32(pixelsAt + padded.size());
    for (const Entry &entry : entries) {
        const bool isLong = entry.tag == 0x111 || entry.tag == 0x117;
        appendLittle(directory, entry.tag);
        appendLittle(directory, quint16(isLong ? 4 : 3));
        appendLittle(directory, quint32(entry.values.size() / (isLong ? 4 : 2)));
        if (entry.values.size() > 4) {
            appendLittle(directory, quint32(valuesAt + values.size()));
            values.append(entry.values);
        } else {
            directory.append(entry.values.leftJustified(4, '\0'));
        }
    }
    appendLittle(directory, quint32(0));
    QByteArray file("II*\0", 4);
    appendLittle(file, quint32(valuesAt + values.size()));
    return file + padded + values + directory;
}

struct PsdKind
{
    int mode = 3;
    int bits = 8;
    int channels = 3;
    int layers = 0; ///< below 0: the first channel after the colours is transparency
    bool isLarge = false;
};

/** A Photoshop file; @p planes are the consecutive channels, as they are stored. */
inline QByteArray psd(const PsdKind &kind, int width, int height, const QByteArray &planes, bool inRuns = false)
{
    QByteArray file("8BPS");
    appendBig(file, quint16(kind.isLarge ? 2 : 1));
    file.append(6, '\0');
    appendBig(file, quint16(kind.channels));
    appendBig(file, quint32(height));
    appendBig(file, quint32(width));
    appendBig(file, quint16(kind.bits));
    appendBig(file, quint16(kind.mode));
    appendBig(file, quint32(0)); // colours
    appendBig(file, quint32(0)); // resources
    QByteArray layers;
    if (kind.layers != 0) {
        appendBig(layers, qint16(kind.layers));
        QByteArray length;
        kind.isLarge ? appendBig(length, quint64(layers.size())) : appendBig(length, quint32(layers.size()));
        layers.prepend(length);
    }
    kind.isLarge ? appendBig(file, quint64(layers.size())) : appendBig(file, quint32(layers.size()));
    file.append(layers);
    appendBig(file, quint16(inRuns ? 1 : 0));
    if (!inRuns)
        return file + planes;
    const qsizetype rowBytes = (qsizetype(width) * kind.bits + 7) / 8;
    QByteArray lengths;
    QByteArray rows;
    for (qsizetype at = 0; at < planes.size(); at += rowBytes) { // each row as one piece that is copied
        kind.isLarge ? appendBig(lengths, quint32(rowBytes + 1)) : appendBig(lengths, quint16(rowBytes + 1));
        rows.append(char(rowBytes - 1)).append(planes.mid(at, rowBytes));
    }
    return file + lengths + rows;
}

struct BmpKind
{
    int bits = 24;
    int compression = 0;
    QList<quint32> masks;
    QList<quint32> palette;
};

/** A bitmap file; a negative height says that @p rows begin above. */
inline QByteArray bmp(const BmpKind &kind, int width, int height, const QByteArray &rows)
{
    constexpr int headerBytes = 54;
    const auto pixelsAt = quint32(headerBytes + 4 * (kind.masks.size() + kind.palette.size()));
    QByteArray file("BM");
    for (const quint32 number : {quint32(pixelsAt + rows.size()), quint32(0), pixelsAt, quint32(40)})
        appendLittle(file, number);
    appendLittle(file, qint32(width));
    appendLittle(file, qint32(height));
    appendLittle(file, quint16(1));
    appendLittle(file, quint16(kind.bits));
    appendLittle(file, quint32(kind.compression));
    for (const quint32 number :
         {quint32(rows.size()), quint32(0), quint32(0), quint32(kind.palette.size()), quint32(0)})
        appendLittle(file, number);
    return file + packed(kind.masks) + packed(kind.palette) + rows;
}

} // namespace pictures
