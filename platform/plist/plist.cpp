#include "platform/plist/plist.h"

#include "platform/plist/plist_check.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QStringList>

#include <plist/plist.h>

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <memory>

namespace platform {
namespace {

constexpr int deepestValue = 60;
constexpr qint64 epoch = 978307200; // 2001-01-01T00:00:00Z
constexpr qint64 msPerSecond = 1000;

struct FreeNode
{
    void operator()(void *node) const { plist_free(node); }
};
struct FreeMemory
{
    void operator()(void *memory) const { std::free(memory); }
};
using Node = std::unique_ptr<void, FreeNode>;
using Memory = std::unique_ptr<char, FreeMemory>;

QVariant valueOf(plist_t node);

/** The text between the tags of a scalar in XML: the library's own numbers and dates are narrower than its storage. */
QByteArray xmlText(plist_t node)
{
    char *memory = nullptr;
    uint32_t size = 0;
    plist_to_xml(node, &memory, &size);
    const Memory owner(memory);
    const QByteArray xml(memory, memory ? qsizetype(size) : 0);
    const qsizetype end = xml.lastIndexOf("</", xml.lastIndexOf("</plist") - 1);
    const qsizetype begin = end < 0 ? -1 : xml.lastIndexOf('>', end) + 1;
    return end < 0 ? QByteArray() : xml.mid(begin, end - begin);
}

QVariant wholeNumber(plist_t node)
{
    uint64_t value = 0;
    plist_get_uint_val(node, &value);
    const bool isSmall = value <= uint64_t(std::numeric_limits<qint64>::max());
    const bool isNegative = !isSmall && xmlText(node).startsWith('-');
    return isSmall || isNegative ? QVariant(qlonglong(value)) : QVariant(qulonglong(value));
}

QVariant list(plist_t node)
{
    QVariantList values;
    for (uint32_t i = 0; i < plist_array_get_size(node); ++i)
        values.append(valueOf(plist_array_get_item(node, i)));
    return values;
}

QVariant dictionary(plist_t node)
{
    QVariantMap values;
    plist_dict_iter memory = nullptr;
    plist_dict_new_iter(node, &memory);
    const std::unique_ptr<void, FreeMemory> iterator(memory);
    for (;;) {
        char *key = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, memory, &key, &item);
        const Memory owner(key);
        if (!item)
            return values;
        values.insert(QString::fromUtf8(key), valueOf(item));
    }
}

QVariant text(plist_t node)
{
    char *memory = nullptr;
    plist_get_string_val(node, &memory);
    const Memory owner(memory);
    return memory ? QString::fromUtf8(memory) : QStringLiteral("");
}

QVariant data(plist_t node)
{
    char *memory = nullptr;
    uint64_t size = 0;
    plist_get_data_val(node, &memory, &size);
    const Memory owner(memory);
    return size == 0 ? QByteArray("") : QByteArray(memory, qsizetype(size));
}

QVariant valueOf(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        uint8_t value = 0;
        plist_get_bool_val(node, &value);
        return value != 0;
    }
    case PLIST_UINT:
        return wholeNumber(node);
    case PLIST_REAL: {
        double value = 0;
        plist_get_real_val(node, &value);
        return value;
    }
    case PLIST_DATE:
        return QDateTime::fromString(QString::fromLatin1(xmlText(node)), Qt::ISODate);
    case PLIST_UID: {
        uint64_t value = 0;
        plist_get_uid_val(node, &value);
        return QVariantMap{{QStringLiteral("CF$UID"), qulonglong(value)}};
    }
    case PLIST_STRING:
        return text(node);
    case PLIST_DATA:
        return data(node);
    case PLIST_ARRAY:
        return list(node);
    case PLIST_DICT:
        return dictionary(node);
    case PLIST_KEY:
    case PLIST_NONE:
        break;
    }
    return QVariant();
}

bool isAllowedInXml(const QString &text)
{
    const bool hasControls = std::any_of(text.begin(), text.end(), [](QChar c) {
        const bool isControl = c < u' ' && c != u'\t' && c != u'\n' && c != u'\r';
        return isControl || c == QChar(0xFFFE) || c == QChar(0xFFFF);
    });
    return !hasControls && text.isValidUtf16();
}

Node nodeFor(const QVariant &value, int depth);

Node nodeForList(const QVariantList &values, int depth)
{
    Node result(plist_new_array());
    for (const QVariant &value : values) {
        Node item = nodeFor(value, depth + 1);
        if (!item)
            return nullptr;
        plist_array_append_item(result.get(), item.release());
    }
    return result;
}

Node nodeForDictionary(const QVariantMap &values, int depth)
{
    Node result(plist_new_dict());
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        Node item = isAllowedInXml(entry.key()) ? nodeFor(entry.value(), depth + 1) : nullptr;
        if (!item)
            return nullptr;
        plist_dict_set_item(result.get(), entry.key().toUtf8().constData(), item.release());
    }
    return result;
}

Node nodeForDate(const QDateTime &date)
{
    const qint64 ms = date.isValid() ? date.toMSecsSinceEpoch() - epoch * msPerSecond : 0;
    const qint64 seconds = ms >= 0 ? ms / msPerSecond : -((msPerSecond - 1 - ms) / msPerSecond);
    const bool isWithin =
        seconds >= std::numeric_limits<qint32>::min() && seconds <= std::numeric_limits<qint32>::max();
    if (!date.isValid() || !isWithin)
        return nullptr;
    return Node(plist_new_date(int32_t(seconds), int32_t((ms - seconds * msPerSecond) * 1000)));
}

/** A node with @p value; none if a property list cannot hold it. */
Node nodeFor(const QVariant &value, int depth)
{
    if (depth > deepestValue)
        return nullptr;
    switch (value.typeId()) {
    case QMetaType::QString:
        return isAllowedInXml(value.toString()) ? Node(plist_new_string(value.toString().toUtf8().constData()))
                                                : nullptr;
    case QMetaType::Bool:
        return Node(plist_new_bool(value.toBool()));
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return Node(plist_new_uint(uint64_t(value.toLongLong())));
    case QMetaType::Double:
    case QMetaType::Float:
        return Node(plist_new_real(value.toDouble()));
    case QMetaType::QByteArray: {
        const QByteArray bytes = value.toByteArray();
        return Node(plist_new_data(bytes.constData(), uint64_t(bytes.size())));
    }
    case QMetaType::QDateTime:
        return nodeForDate(value.toDateTime());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return nodeForList(value.toList(), depth);
    case QMetaType::QVariantMap:
        return nodeForDictionary(value.toMap(), depth);
    default:
        return nullptr;
    }
}

Result<Node> rootOf(const QByteArray &file)
{
    const bool isBinary = isBinaryPropertyList(file);
    plist_t root = nullptr;
    if (isSoundPropertyList(file)) {
        const QByteArray body = file.startsWith("\xEF\xBB\xBF") ? file.mid(3) : file;
        if (isBinary)
            plist_from_bin(body.constData(), uint32_t(body.size()), &root);
        else
            plist_from_xml(body.constData(), uint32_t(body.size()), &root);
    }
    Node owner(root);
    if (!root || plist_get_node_type(root) != PLIST_DICT)
        return failure(ErrorCode::Unreadable,
                       QCoreApplication::translate("platform", "This is not a property list with a dictionary"));
    return owner;
}

QByteArray written(plist_t root, bool isBinary)
{
    char *memory = nullptr;
    uint32_t size = 0;
    if (isBinary)
        plist_to_bin(root, &memory, &size);
    else
        plist_to_xml(root, &memory, &size);
    const Memory owner(memory);
    QByteArray bytes = memory ? QByteArray(memory, qsizetype(size)) : QByteArray();
    // Unescaped, every XML parser would read a carriage return as a line feed, or drop it before one.
    return isBinary ? bytes : bytes.replace('\r', "&#13;");
}

} // namespace

Result<QVariant> propertyListValue(const QByteArray &file, const QString &key)
{
    const Result<Node> root = rootOf(file);
    if (!root)
        return tl::make_unexpected(root.error());
    plist_t item = isAllowedInXml(key) ? plist_dict_get_item(root->get(), key.toUtf8().constData()) : nullptr;
    return item ? valueOf(item) : QVariant();
}

Result<QByteArray> withPropertyListValue(const QByteArray &file, const QString &key, const QVariant &value)
{
    const Result<Node> root = rootOf(file);
    if (!root)
        return tl::make_unexpected(root.error());
    const auto refused = [&key] {
        return failure(ErrorCode::InvalidValue,
                       QCoreApplication::translate("platform", "A property list cannot hold the value of %1").arg(key));
    };
    const QByteArray name = key.toUtf8();
    Node item = value.isValid() ? nodeFor(value, 0) : nullptr;
    if (!isAllowedInXml(key) || (value.isValid() && !item))
        return refused();
    if (item)
        plist_dict_set_item(root->get(), name.constData(), item.release());
    else
        plist_dict_remove_item(root->get(), name.constData());
    const QByteArray result = written(root->get(), isBinaryPropertyList(file));
    // The library writes some damaged files in a way that it cannot read again.
    const Result<Node> again = rootOf(result);
    if (!again || dictionary(again->get()) != dictionary(root->get()))
        return refused();
    return result;
}

} // namespace platform
