#include "text/ranges.h"

namespace text {
namespace {

bool isPositionIn(const QString &text, qsizetype position)
{
    return position >= 0 && position <= text.size();
}

} // namespace

std::optional<QString> stripped(const QString &text, Side side, int count)
{
    if (text.isEmpty())
        return text;
    if (!isPositionIn(text, count))
        return std::nullopt;
    return side == Side::Left ? text.sliced(count) : text.chopped(count);
}

std::optional<QString> section(const QString &text, int start, int length)
{
    if (!isPositionIn(text, start) || length < 0 || length > text.size() - start)
        return std::nullopt;
    return text.sliced(start, length);
}

std::optional<QString> inserted(const QString &target, const QString &insertion, int position)
{
    if (!isPositionIn(target, position))
        return std::nullopt;
    QString result = target;
    return result.insert(position, insertion);
}

} // namespace text
