#include "platform/imageio/edits/iptc_edit.h"

#include "platform/foundation/byte_order.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <algorithm>
#include <array>

// Records:    0x1c | record (1) | data set (1) | length (2, its highest bit set: so many bytes of the length follow) | data ...
// Resources:  "8BIM" | number (2) | name, its length first, in all even | length (4) | data, padded to even ...
// Numbers have their highest byte first.

namespace platform {
namespace {

constexpr quint8 envelope = 1;
constexpr quint8 application = 2;
constexpr quint8 characterSet = 90;
const QByteArray utf8Mark("\x1b%G", 3);

struct DataSet
{
    quint8 record = 0;
    quint8 number = 0;
    QByteArray data;
    QByteArray bytes; ///< with its header
};

struct Records
{
    QList<DataSet> sets;
    bool isSound = true;
};

Records recordsIn(const QByteArray &bytes)
{
    constexpr qsizetype head = 5;
    Records records;
    qsizetype at = 0;
    while (at + head <= bytes.size() && bytes.at(at) == '\x1c') {
        auto size = qsizetype(qFromBigEndian<quint16>(bytes.constData() + at + 3));
        qsizetype dataAt = at + head;
        if (size & 0x8000) {
            const qsizetype count = size & 0x7fff;
            if (count > 4 || dataAt + count > bytes.size())
                break;
            size = 0;
            for (qsizetype i = 0; i < count; ++i)
                size = size << 8 | uchar(bytes.at(dataAt + i));
            dataAt += count;
        }
        if (size > bytes.size() - dataAt)
            break;
        records.sets.append({quint8(bytes.at(at + 1)), quint8(bytes.at(at + 2)), bytes.mid(dataAt, size),
                             bytes.mid(at, dataAt + size - at)});
        at = dataAt + size;
    }
    records.isSound = std::all_of(bytes.begin() + at, bytes.end(), [](char byte) { return byte == '\0'; });
    return records;
}

bool isUtf8(const Records &records)
{
    return std::any_of(records.sets.begin(), records.sets.end(), [](const DataSet &set) {
        return set.record == envelope && set.number == characterSet &&
               (set.data == utf8Mark || set.data == QByteArray("\x1b%/I", 4));
    });
}

/** Latin 1 with the additions of Windows. */
QString fromWindowsLatin(const QByteArray &bytes)
{
    static constexpr std::array<char16_t, 32> gap = {0x20ac, 0x81,   0x201a, 0x0192, 0x201e, 0x2026, 0x2020, 0x2021,
                                                     0x02c6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8d,   0x017d, 0x8f,
                                                     0x90,   0x2018, 0x2019, 0x201c, 0x201d, 0x2022, 0x2013, 0x2014,
                                                     0x02dc, 0x2122, 0x0161, 0x203a, 0x0153, 0x9d,   0x017e, 0x0178};
    QString text;
    for (const char byte : bytes) {
        const auto code = uchar(byte);
        text += QChar(code >= 0x80 && code < 0xa0 ? gap[code - 0x80] : char16_t(code));
    }
    return text;
}

QString textOf(const QByteArray &data, bool marked)
{
    const QString text = QString::fromUtf8(data);
    return marked || !text.contains(QChar::ReplacementCharacter) ? text : fromWindowsLatin(data);
}

/** Those of the application record; the others are numbers, or belong to programs. */
bool isText(const DataSet &set)
{
    constexpr quint8 rasterCaption = 125;
    constexpr quint8 lastText = 135;
    return set.record == application && set.number != 0 && set.number != rasterCaption && set.number <= lastText;
}

QByteArray dataSet(quint8 record, quint8 number, const QByteArray &data)
{
    constexpr qsizetype longestShort = 0x7fff;
    QByteArray bytes("\x1c", 1);
    bytes.append(char(record)).append(char(number));
    if (data.size() <= longestShort)
        return bytes + bigEndian(quint16(data.size())) + data;
    return bytes + bigEndian(quint16(0x8004)) + bigEndian(quint32(data.size())) + data;
}

struct Resource
{
    quint16 number = 0;
    qsizetype at = 0;
    qsizetype size = 0; ///< all of it
    QByteArray data;
};

/** One after the other, up to the first invalid one. */
QList<Resource> resourcesIn(const QByteArray &bytes, qsizetype *end = nullptr)
{
    static const QList<QByteArray> marks = {"8BIM", "MeSa", "PHUT", "AgHg", "DCSR"};
    QList<Resource> found;
    qsizetype at = 0;
    while (at + 12 <= bytes.size() && marks.contains(bytes.mid(at, 4))) {
        const qsizetype nameSize = uchar(bytes.at(at + 6)) | 1;
        const qsizetype sizeAt = at + 7 + nameSize;
        const qsizetype dataAt = sizeAt + 4;
        if (dataAt > bytes.size())
            break;
        const auto size = qsizetype(bigEndian32At(bytes, sizeAt));
        if (size > bytes.size() - dataAt)
            break;
        const qsizetype next = std::min(bytes.size(), dataAt + size + size % 2);
        found.append({qFromBigEndian<quint16>(bytes.constData() + at + 4), at, next - at, bytes.mid(dataAt, size)});
        at = next;
    }
    if (end)
        *end = at;
    return found;
}

QByteArray resourceBytes(quint16 number, const QByteArray &data)
{
    return "8BIM" + bigEndian(number) + QByteArray(2, '\0') + bigEndian(quint32(data.size())) + data +
           QByteArray(data.size() % 2, '\0');
}

} // namespace

QStringList iptcTexts(const QByteArray &bytes, quint8 number)
{
    const Records records = recordsIn(bytes);
    const bool marked = isUtf8(records);
    QStringList texts;
    for (const DataSet &set : records.sets)
        if (set.record == application && set.number == number)
            texts += textOf(set.data, marked);
    return texts;
}

std::optional<QByteArray> changedIptc(const QByteArray &bytes, const QList<IptcChange> &changes)
{
    const Records records = recordsIn(bytes);
    if (!records.isSound)
        return std::nullopt;
    const bool marked = isUtf8(records);
    QByteArray before;
    QByteArray own;
    QByteArray after;
    bool hasVersion = false;
    bool isTakenOut = false;
    for (const DataSet &set : records.sets) {
        const bool isMark = set.record == envelope && set.number == characterSet;
        const bool isChanged = set.record == application &&
                               std::any_of(changes.begin(), changes.end(),
                                           [&](const IptcChange &change) { return change.dataSet == set.number; });
        isTakenOut = isTakenOut || isChanged;
        if (isMark || isChanged)
            continue;
        hasVersion = hasVersion || (set.record == application && set.number == 0);
        QByteArray &part = set.record < application ? before : set.record == application ? own : after;
        part += isText(set) && !marked ? dataSet(set.record, set.number, textOf(set.data, false).toUtf8()) : set.bytes;
    }
    QByteArray added;
    for (const IptcChange &change : changes)
        for (const QString &text : change.texts)
            added += dataSet(application, change.dataSet, text.toUtf8());
    if (added.isEmpty() && !isTakenOut)
        return bytes;
    if (own.isEmpty() && added.isEmpty() && before.isEmpty() && after.isEmpty())
        return QByteArray();
    const QByteArray version = hasVersion || (own.isEmpty() && added.isEmpty())
                                   ? QByteArray()
                                   : dataSet(application, 0, QByteArray("\0\4", 2));
    return before + dataSet(envelope, characterSet, utf8Mark) + version + own + added + after;
}

std::optional<QByteArray> resourceOf(const QByteArray &resources, quint16 number)
{
    for (const Resource &each : resourcesIn(resources))
        if (each.number == number)
            return each.data;
    return std::nullopt;
}

QByteArray withResource(const QByteArray &resources, quint16 number, const QByteArray &data)
{
    QByteArray result;
    bool isDone = data.isEmpty();
    qsizetype end = 0;
    for (const Resource &each : resourcesIn(resources, &end)) {
        if (each.number != number) {
            result += resources.mid(each.at, each.size);
            result += QByteArray(result.size() % 2, '\0');
        } else if (!isDone) {
            result += resourceBytes(number, data);
            isDone = true;
        }
    }
    if (!isDone)
        result += resourceBytes(number, data);
    return result + resources.mid(end);
}

std::optional<QByteArray> changedResources(const QByteArray &resources, const MetadataChange &change)
{
    QByteArray result = resources;
    if (!change.iptc.isEmpty()) {
        const bool sets = std::any_of(change.iptc.begin(), change.iptc.end(),
                                      [](const IptcChange &each) { return !each.texts.isEmpty(); });
        const auto old = resourceOf(resources, resource::iptc);
        if (sets || old) {
            const auto records = changedIptc(old.value_or(QByteArray()), change.iptc);
            if (!records)
                return std::nullopt;
            if (*records != old.value_or(QByteArray())) {
                result = withResource(result, resource::iptc, *records);
                result =
                    withResource(result, resource::digest, records->isEmpty() ? QByteArray() : iptcDigest(*records));
            }
        }
    }
    if (change.dropsThumbnails)
        result = withResource(withResource(result, resource::thumbnail, {}), resource::oldThumbnail, {});
    return result;
}

QByteArray iptcDigest(const QByteArray &records)
{
    return QCryptographicHash::hash(records, QCryptographicHash::Md5);
}

} // namespace platform
