#include "text/encodings.h"

#include "platform/foundation/utf8.h"

#include <algorithm>

namespace text {
namespace {

bool isAscii(QChar c)
{
    return c.unicode() < 0x80;
}

bool isOfBase64(QChar c)
{
    return isAscii(c) && (c.isLetterOrNumber() || c == u'+' || c == u'/' || c == u'=');
}

} // namespace

std::optional<QByteArray> asciiBytes(const QString &text)
{
    if (!std::all_of(text.begin(), text.end(), isAscii))
        return std::nullopt;
    return text.isEmpty() ? QByteArray("") : text.toLatin1();
}

std::optional<QByteArray> dataFromBase64(const QString &text)
{
    constexpr qsizetype group = 4;
    QByteArray digits;
    digits.reserve(text.size());
    for (const QChar c : text)
        if (isOfBase64(c))
            digits.append(c.toLatin1());
    const qsizetype padding = digits.indexOf('=');
    const bool isPaddedRightly =
        padding < 0 || padding == digits.size() - 1 || (padding == digits.size() - 2 && digits.endsWith('='));
    if (digits.size() % group != 0 || !isPaddedRightly)
        return std::nullopt;
    const QByteArray data = QByteArray::fromBase64(digits);
    return data.isNull() ? QByteArray("") : data;
}

QString throughUtf8(const QString &text)
{
    // QString::fromUtf8() would drop a byte-order mark.
    return platform::textFromUtf8(text.toUtf8()).value_or(QString());
}

} // namespace text
