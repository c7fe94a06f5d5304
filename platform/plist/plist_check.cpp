#include "platform/plist/plist_check.h"

#include "platform/foundation/utf8.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace platform {
namespace {

constexpr qsizetype largestFile = 16 * 1024 * 1024;
constexpr int deepestNesting = 64;
constexpr quint64 largestExpansion = 128 * 1024 * 1024;
constexpr quint64 costOfNode = 64;

/** The binary form: a header, objects that refer to one another by number, a table of their offsets, a trailer. */
class BinaryCheck
{
public:
    explicit BinaryCheck(const QByteArray &bytes) : m_bytes(bytes) {}

    bool isSound()
    {
        constexpr qsizetype trailerSize = 32;
        constexpr qsizetype headSize = 8;
        if (m_bytes.size() < headSize + trailerSize)
            return false;
        const qsizetype trailer = m_bytes.size() - trailerSize;
        m_offsetSize = quint8(m_bytes[trailer + 6]);
        m_referenceSize = quint8(m_bytes[trailer + 7]);
        m_count = number(trailer + 8, 8);
        const quint64 root = number(trailer + 16, 8);
        m_table = number(trailer + 24, 8);
        if (m_offsetSize < 1 || m_offsetSize > 8 || m_referenceSize < 1 || m_referenceSize > 8)
            return false;
        m_end = quint64(trailer);
        if (m_table > m_end || m_count > (m_end - m_table) / m_offsetSize)
            return false;
        return measure(root, 0).has_value();
    }

private:
    /** The totals of an object with everything below it. */
    struct Measure
    {
        int height = 0;
        quint64 cost = costOfNode;
    };
    struct Object
    {
        int kind = 0;
        quint64 begin = 0;
        quint64 count = 0;
    };

    quint64 number(qsizetype position, int size) const
    {
        quint64 value = 0;
        for (int i = 0; i < size; ++i)
            value = value << 8 | quint8(m_bytes[position + i]);
        return value;
    }

    std::optional<quint64> numberWithin(quint64 position, int size) const
    {
        if (position > m_end || m_end - position < quint64(size))
            return std::nullopt;
        return number(qsizetype(position), size);
    }

    std::optional<Object> object(quint64 index) const
    {
        if (index >= m_count)
            return std::nullopt;
        const quint64 position = number(qsizetype(m_table + index * m_offsetSize), m_offsetSize);
        const auto marker = numberWithin(position, 1);
        if (!marker)
            return std::nullopt;
        Object result{int(*marker >> 4), position + 1, *marker & 0xF};
        const bool hasLongCount = result.kind >= 4 && result.kind != 8 && result.count == 0xF;
        if (!hasLongCount)
            return result;
        const auto sizeMarker = numberWithin(position + 1, 1);
        if (!sizeMarker || *sizeMarker >> 4 != 1 || (*sizeMarker & 0xF) > 3)
            return std::nullopt;
        const int size = 1 << (*sizeMarker & 0xF);
        const auto count = numberWithin(position + 2, size);
        if (!count)
            return std::nullopt;
        result.begin = position + 2 + quint64(size);
        result.count = *count;
        return result;
    }

    bool isPayloadThere(const Object &object, quint64 unit) const
    {
        return object.begin <= m_end && object.count <= (m_end - object.begin) / unit;
    }

    bool isTextWhole(const Object &object, int unit) const
    {
        if (!isPayloadThere(object, quint64(unit)))
            return false;
        for (quint64 i = 0; i < object.count; ++i)
            if (number(qsizetype(object.begin + i * quint64(unit)), unit) == 0)
                return false;
        return true;
    }

    std::optional<Measure> leaf(const Object &object) const
    {
        const Object sized{object.kind, object.begin, object.count > 4 ? m_end : quint64(1) << object.count};
        Measure result;
        result.cost += object.kind == 1 ? 0 : 2 * object.count;
        switch (object.kind) {
        case 0: // true and false
            return object.count == 8 || object.count == 9 ? std::optional(result) : std::nullopt;
        case 1: // whole numbers
            return isPayloadThere(sized, 1) ? std::optional(result) : std::nullopt;
        case 2: // real numbers, of 4 or 8 bytes
            return object.count >= 2 && object.count <= 3 && isPayloadThere(sized, 1) ? std::optional(result)
                                                                                      : std::nullopt;
        case 3: // dates
            return object.count == 3 && isPayloadThere(sized, 1) ? std::optional(result) : std::nullopt;
        case 4: // data
            return isPayloadThere(object, 1) ? std::optional(result) : std::nullopt;
        case 5: // text in ASCII
            return isTextWhole(object, 1) ? std::optional(result) : std::nullopt;
        case 6: // text in UTF-16
            return isTextWhole(object, 2) ? std::optional(result) : std::nullopt;
        case 8: { // numbers of keyed archives
            const Object bytes{object.kind, object.begin, object.count + 1};
            return object.count < 8 && isPayloadThere(bytes, 1) ? std::optional(result) : std::nullopt;
        }
        default:
            return std::nullopt;
        }
    }

    bool isKey(quint64 index) const
    {
        const auto key = object(index);
        return key && (key->kind == 5 || key->kind == 6);
    }

    std::optional<Measure> container(const Object &object, int depth)
    {
        const bool isDictionary = object.kind == 13;
        const quint64 unit = quint64(m_referenceSize) * (isDictionary ? 2 : 1);
        if (!isPayloadThere(object, unit))
            return std::nullopt;
        Measure result;
        const quint64 references = object.count * (isDictionary ? 2 : 1);
        for (quint64 i = 0; i < references; ++i) {
            const quint64 index = number(qsizetype(object.begin + i * quint64(m_referenceSize)), m_referenceSize);
            if (isDictionary && i < object.count && !isKey(index))
                return std::nullopt;
            const auto child = measure(index, depth + 1);
            if (!child)
                return std::nullopt;
            result.height = std::max(result.height, child->height + 1);
            result.cost += child->cost;
            if (result.cost > largestExpansion)
                return std::nullopt;
        }
        return result;
    }

    std::optional<Measure> measure(quint64 index, int depth)
    {
        const auto known = m_known.constFind(index);
        if (known != m_known.constEnd())
            return depth + known->height <= deepestNesting ? std::optional(*known) : std::nullopt;
        const auto found = object(index);
        if (depth > deepestNesting || !found)
            return std::nullopt;
        const bool isContainer = found->kind == 10 || found->kind == 13;
        const auto result = isContainer ? container(*found, depth) : leaf(*found);
        if (result)
            m_known.insert(index, *result);
        return result;
    }

    const QByteArray &m_bytes;
    int m_offsetSize = 0;
    int m_referenceSize = 0;
    quint64 m_count = 0;
    quint64 m_table = 0;
    quint64 m_end = 0;
    QHash<quint64, Measure> m_known;
};

/** The XML form. Anything that a parser which only looks for brackets would read differently is refused. */
class XmlCheck
{
public:
    explicit XmlCheck(const QByteArray &bytes) : m_reader(bytes) { m_reader.setNamespaceProcessing(false); }

    bool isSound()
    {
        while (!m_reader.atEnd())
            if (!isTokenSound(m_reader.readNext()))
                return false;
        return !m_reader.hasError();
    }

private:
    bool isTokenSound(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartDocument:
            return isEncodingKnown(m_reader.documentEncoding().toString());
        case QXmlStreamReader::DTD:
            return !m_reader.text().contains(u'[');
        case QXmlStreamReader::StartElement:
            return isStartSound();
        case QXmlStreamReader::EndElement:
            m_open.removeLast();
            return true;
        case QXmlStreamReader::Characters:
            return !isAmongElements() || (m_reader.isWhitespace() && !m_reader.isCDATA());
        case QXmlStreamReader::Comment:
        case QXmlStreamReader::EndDocument:
            return true;
        default:
            return false;
        }
    }

    static bool isEncodingKnown(const QString &encoding)
    {
        return encoding.isEmpty() || encoding.compare(QStringLiteral("UTF-8"), Qt::CaseInsensitive) == 0;
    }

    static bool isContainer(const QString &name)
    {
        return name == QStringLiteral("array") || name == QStringLiteral("dict");
    }

    bool isAmongElements() const { return m_open.isEmpty() || m_open.size() == 1 || isContainer(m_open.last()); }

    bool isStartSound()
    {
        static const QSet<QString> names = {QStringLiteral("array"), QStringLiteral("dict"),    QStringLiteral("key"),
                                            QStringLiteral("data"),  QStringLiteral("string"),  QStringLiteral("real"),
                                            QStringLiteral("date"),  QStringLiteral("integer"), QStringLiteral("true"),
                                            QStringLiteral("false")};
        const QString name = m_reader.name().toString();
        const bool isRoot = m_open.isEmpty();
        if (isRoot ? name != QStringLiteral("plist") : !names.contains(name) || !isAmongElements())
            return false;
        for (const QXmlStreamAttribute &attribute : m_reader.attributes())
            if (!isRoot || attribute.value() != QStringLiteral("1.0"))
                return false;
        m_open.append(name);
        return m_open.size() <= deepestNesting + 2;
    }

    QXmlStreamReader m_reader;
    QStringList m_open;
};

} // namespace

bool isBinaryPropertyList(const QByteArray &bytes)
{
    return bytes.startsWith("bplist00");
}

bool isSoundPropertyList(const QByteArray &bytes)
{
    if (bytes.size() > largestFile)
        return false;
    if (isBinaryPropertyList(bytes))
        return BinaryCheck(bytes).isSound();
    return textFromUtf8(bytes) && XmlCheck(bytes).isSound();
}

} // namespace platform
