#include "platform/workers/plain_value.h"

#include <limits>

namespace platform {
namespace {

enum class ValueKind { Nothing, Truth, Whole, LongWhole, Real, Text, Bytes, Texts, List, Fields };

constexpr int deepest = 16;

void writeKind(MessageWriter &writer, ValueKind kind)
{
    writer.number(int(kind));
}

QVariantList readList(MessageReader &reader, int depth);
QVariantMap readFieldsAt(MessageReader &reader, int depth);

QVariant readValueAt(MessageReader &reader, int depth)
{
    if (depth > deepest) {
        reader.refuse();
        return {};
    }
    switch (ValueKind(reader.number(int(ValueKind::Nothing), int(ValueKind::Fields)))) {
    case ValueKind::Nothing:
        return {};
    case ValueKind::Truth:
        return reader.flag();
    case ValueKind::Whole:
        return reader.integer();
    case ValueKind::LongWhole:
        return reader.number();
    case ValueKind::Real:
        return reader.real();
    case ValueKind::Text:
        return reader.text();
    case ValueKind::Bytes:
        return reader.bytes();
    case ValueKind::Texts:
        return reader.texts();
    case ValueKind::List:
        return readList(reader, depth);
    case ValueKind::Fields:
        return readFieldsAt(reader, depth);
    }
    return {};
}

/** How many values are said to follow; each takes at least the size of its kind. */
qint64 readCount(MessageReader &reader)
{
    const qint64 most = reader.bytesLeft() / qint64(sizeof(qint64));
    return reader.number(0, most);
}

QVariantList readList(MessageReader &reader, int depth)
{
    QVariantList list;
    for (qint64 count = readCount(reader); count > 0 && reader.isGood(); --count)
        list.append(readValueAt(reader, depth + 1));
    return list;
}

QVariantMap readFieldsAt(MessageReader &reader, int depth)
{
    QVariantMap fields;
    for (qint64 count = readCount(reader); count > 0 && reader.isGood(); --count) {
        const QString key = reader.text();
        fields.insert(key, readValueAt(reader, depth + 1));
    }
    return fields;
}

void writeList(MessageWriter &writer, const QVariantList &list)
{
    writeKind(writer, ValueKind::List);
    writer.number(list.size());
    for (const QVariant &each : list)
        writeValue(writer, each);
}

void writeFields(MessageWriter &writer, const QVariantMap &fields)
{
    writeKind(writer, ValueKind::Fields);
    writer.number(fields.size());
    for (auto field = fields.cbegin(); field != fields.cend(); ++field) {
        writer.text(field.key());
        writeValue(writer, field.value());
    }
}

void writeNumber(MessageWriter &writer, const QVariant &value)
{
    const bool isReal = value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
    if (isReal) {
        writeKind(writer, ValueKind::Real);
        writer.real(value.toDouble());
        return;
    }
    const qint64 whole = value.toLongLong();
    const bool isShort = value.typeId() != QMetaType::LongLong && value.typeId() != QMetaType::ULongLong &&
                         whole >= std::numeric_limits<int>::min() && whole <= std::numeric_limits<int>::max();
    writeKind(writer, isShort ? ValueKind::Whole : ValueKind::LongWhole);
    writer.number(whole);
}

bool isNumber(int type)
{
    switch (type) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

} // namespace

void writeValue(MessageWriter &writer, const QVariant &value)
{
    if (!value.isValid() || value.typeId() == QMetaType::Nullptr)
        return writeKind(writer, ValueKind::Nothing);
    if (isNumber(value.typeId()))
        return writeNumber(writer, value);
    switch (value.typeId()) {
    case QMetaType::Bool:
        writeKind(writer, ValueKind::Truth);
        return writer.flag(value.toBool());
    case QMetaType::QByteArray:
        writeKind(writer, ValueKind::Bytes);
        return writer.bytes(value.toByteArray());
    case QMetaType::QStringList:
        writeKind(writer, ValueKind::Texts);
        return writer.texts(value.toStringList());
    case QMetaType::QVariantList:
        return writeList(writer, value.toList());
    case QMetaType::QVariantMap:
        return writeFields(writer, value.toMap());
    default:
        writeKind(writer, ValueKind::Text);
        writer.text(value.toString());
    }
}

QVariant readValue(MessageReader &reader)
{
    return readValueAt(reader, 0);
}

QVariantMap readFields(MessageReader &reader)
{
    const QVariant value = readValue(reader);
    if (value.typeId() != QMetaType::QVariantMap)
        reader.refuse();
    return value.toMap();
}

} // namespace platform
