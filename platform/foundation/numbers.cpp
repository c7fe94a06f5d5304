#include "platform/foundation/numbers.h"

#include <cmath>
#include <limits>
#include <locale>
#include <sstream>

namespace platform {
namespace {

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/** Skips digits; answers whether there were any. */
bool skipDigits(const QString &text, qsizetype &position)
{
    const qsizetype start = position;
    while (position < text.size() && isDigit(text[position]))
        ++position;
    return position > start;
}

void skipSign(const QString &text, qsizetype &position)
{
    if (position < text.size() && (text[position] == u'+' || text[position] == u'-'))
        ++position;
}

/** An exponent counts only if complete: the "e" of "12em" is not part of the number. */
void skipExponent(const QString &text, qsizetype &position)
{
    if (position >= text.size() || text[position].toLower() != u'e')
        return;
    qsizetype end = position + 1;
    skipSign(text, end);
    if (skipDigits(text, end))
        position = end;
}

/** Converting a number that is too large would be undefined. */
float toSingle(double number)
{
    constexpr double largest = std::numeric_limits<float>::max();
    constexpr float infinity = std::numeric_limits<float>::infinity();
    if (std::abs(number) > largest)
        return number < 0 ? -infinity : infinity;
    return float(number);
}

} // namespace

float floatValue(const QString &text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace())
        ++start;
    qsizetype end = start;
    skipSign(text, end);
    bool hasDigits = skipDigits(text, end);
    if (end < text.size() && text[end] == u'.') {
        ++end;
        hasDigits = skipDigits(text, end) || hasDigits;
    }
    if (!hasDigits)
        return 0;
    skipExponent(text, end);
    // Unlike Qt, a stream distinguishes numbers that are too large from those that are too small.
    std::istringstream stream(text.mid(start, end - start).toStdString());
    stream.imbue(std::locale::classic());
    double number = 0;
    stream >> number;
    return toSingle(number);
}

float floatValue(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return floatValue(value.toString());
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (!isNumber)
        return 0;
    return toSingle(number);
}

} // namespace platform
