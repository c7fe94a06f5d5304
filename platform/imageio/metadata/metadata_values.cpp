#include "platform/imageio/metadata/metadata_values.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

namespace platform {
namespace {

constexpr double largestPart = std::numeric_limits<int32_t>::max();

/** The simplest fraction for a number, with parts of 31 bits: 1/250 for 0.004. */
Exiv2::Rational fraction(double value)
{
    const double size = std::min(std::abs(value), largestPart);
    double rest = size;
    double before[2] = {0, 1};
    double now[2] = {1, 0};
    for (int step = 0; step < 32; ++step) {
        const double whole = std::floor(rest);
        const double next[2] = {whole * now[0] + before[0], whole * now[1] + before[1]};
        if (next[0] > largestPart || next[1] > largestPart)
            break;
        std::copy(now, now + 2, before);
        std::copy(next, next + 2, now);
        if (rest == whole || std::abs(now[0] / now[1] - size) <= 1e-12 * size)
            break;
        rest = 1 / (rest - whole);
    }
    return {int32_t(std::copysign(now[0], value)), int32_t(now[1])};
}

TagValue made(Exiv2::TypeId type)
{
    return TagValue(Exiv2::Value::create(type).release());
}

template<typename Number> TagValue integers(const QVariantList &list)
{
    auto value = std::make_unique<Exiv2::ValueType<Number>>();
    for (const QVariant &each : list) {
        bool ok = false;
        const double number = std::round(each.toDouble(&ok));
        if (!ok || !(number >= double(std::numeric_limits<Number>::min())) ||
            !(number <= double(std::numeric_limits<Number>::max())))
            return {};
        value->value_.push_back(Number(number));
    }
    return value;
}

/** @p Pair is Exiv2's fraction of signed or of unsigned numbers. */
template<typename Pair> TagValue fractionsOf(const QVariantList &list)
{
    auto value = std::make_unique<Exiv2::ValueType<Pair>>();
    for (const QVariant &each : list) {
        bool ok = false;
        const double number = each.toDouble(&ok);
        const bool fits = std::is_signed_v<typename Pair::first_type> || number >= 0;
        if (!ok || !std::isfinite(number) || !fits)
            return {};
        const Exiv2::Rational pair = fraction(number);
        value->value_.push_back({typename Pair::first_type(pair.first), typename Pair::second_type(pair.second)});
    }
    return value;
}

TagValue fractions(const QVariantList &list, Exiv2::TypeId type)
{
    return type == Exiv2::signedRational ? fractionsOf<Exiv2::Rational>(list) : fractionsOf<Exiv2::URational>(list);
}

bool isText(const QVariant &value)
{
    return value.typeId() == QMetaType::QString;
}

TagValue textValue(const QString &name, const QVariant &value)
{
    if (!isText(value) && !value.canConvert<double>())
        return {};
    QByteArray bytes = value.toString().toUtf8();
    if (name == QLatin1String("Copyright")) // photographer and editor share one value
        bytes.replace('\n', '\0');
    return bytesValue(Exiv2::asciiString, bytes + '\0');
}

QByteArray versionDigits(const QVariantList &numbers)
{
    int parts[3] = {0, 0, 0};
    for (qsizetype i = 0; i < std::min<qsizetype>(numbers.size(), 3); ++i)
        parts[i] = std::clamp(numbers.at(i).toInt(), 0, i == 0 ? 99 : 9);
    return QByteArray::number(parts[0]).rightJustified(2, '0') + QByteArray::number(parts[1]) +
           QByteArray::number(parts[2]);
}

std::optional<QByteArray> byteList(const QVariantList &list)
{
    QByteArray bytes;
    for (const QVariant &each : list) {
        bool ok = false;
        const double number = each.toDouble(&ok);
        if (!ok || !(number >= 0 && number <= 255))
            return std::nullopt;
        bytes.append(char(uchar(number)));
    }
    return bytes;
}

TagValue blobValue(Exiv2::TypeId type, const QString &name, const QVariant &value)
{
    if (value.typeId() == QMetaType::QByteArray)
        return bytesValue(type, value.toByteArray());
    if (isText(value))
        return bytesValue(type, value.toString().toUtf8());
    const QVariantList list = listOf(value);
    if (name == QLatin1String("ExifVersion") || name == QLatin1String("FlashPixVersion"))
        return bytesValue(type, versionDigits(list));
    const std::optional<QByteArray> bytes = byteList(list);
    return bytes ? bytesValue(type, *bytes) : nullptr;
}

} // namespace

QVariantList listOf(const QVariant &value)
{
    const bool list = value.typeId() == QMetaType::QVariantList || value.typeId() == QMetaType::QStringList;
    return list ? value.toList() : QVariantList{value};
}

TagValue bytesValue(Exiv2::TypeId type, const QByteArray &bytes)
{
    TagValue value = made(type);
    const auto *data = reinterpret_cast<const Exiv2::byte *>(bytes.constData());
    return value->read(data, long(bytes.size()), madeByteOrder) == 0 ? std::move(value) : nullptr;
}

TagValue coordinateValue(double degrees)
{
    const double size = std::abs(degrees);
    const double whole = std::floor(size);
    // A ten thousandth of a second of arc is 3 millimetres; rounding first avoids 60 seconds.
    const double units = std::round((size - whole) * 3600 * 10000);
    const double minutes = std::floor(units / 600000);
    const double seconds = (units - minutes * 600000) / 10000;
    return fractions({whole, minutes, seconds}, Exiv2::unsignedRational);
}

TagValue timeValue(const QString &text)
{
    const QStringList parts = text.split(u':');
    if (parts.size() != 3)
        return {};
    return fractions({parts.at(0), parts.at(1), parts.at(2)}, Exiv2::unsignedRational);
}

TagValue tagValue(Exiv2::TypeId type, const QString &name, const QVariant &value)
{
    const QVariantList list = listOf(value);
    switch (type) {
    case Exiv2::asciiString:
        return textValue(name, value);
    case Exiv2::unsignedShort:
        return integers<uint16_t>(list);
    case Exiv2::unsignedLong:
        return integers<uint32_t>(list);
    case Exiv2::signedShort:
        return integers<int16_t>(list);
    case Exiv2::signedLong:
        return integers<int32_t>(list);
    case Exiv2::unsignedRational:
    case Exiv2::signedRational:
        return fractions(list, type);
    case Exiv2::unsignedByte:
    case Exiv2::undefined:
        return blobValue(type, name, value);
    default:
        return {};
    }
}

} // namespace platform
