#include "app/models/property_filter.h"

#include "platform/foundation/natural_order.h"

#include <QCollator>

#include <algorithm>

namespace window {
namespace {

bool hasText(const ListedValue &value, const QString &text)
{
    return value.words.contains(text, Qt::CaseInsensitive) || value.stated.contains(text, Qt::CaseInsensitive);
}

bool isSame(const ListedValue &value, const QString &text)
{
    if (value.words.compare(text, Qt::CaseInsensitive) == 0 || value.stated.compare(text, Qt::CaseInsensitive) == 0)
        return true;
    const auto number = numberIn(text);
    // Fractions of a second are stored as decimals.
    constexpr double tolerance = 1e-6;
    return number && value.number && std::abs(*number - *value.number) <= tolerance * std::abs(*number);
}

/** Below 0 if the picture's value is less, above if it is more. */
int compared(const ListedValue &value, const QString &text)
{
    if (const auto number = numberIn(text); number && value.number)
        return *value.number < *number ? -1 : *value.number > *number ? 1 : 0;
    static const QCollator order = platform::naturalOrder();
    return order.compare(value.stated.isEmpty() ? value.words : value.stated, text);
}

} // namespace

std::optional<Comparison> comparisonNamed(const QString &word)
{
    static const QHash<QString, Comparison> named = {{QStringLiteral("is"), Comparison::Is},
                                                     {QStringLiteral("isNot"), Comparison::IsNot},
                                                     {QStringLiteral("contains"), Comparison::Contains},
                                                     {QStringLiteral("above"), Comparison::Above},
                                                     {QStringLiteral("below"), Comparison::Below},
                                                     {QStringLiteral("empty"), Comparison::Empty},
                                                     {QStringLiteral("stated"), Comparison::Stated}};
    const auto found = named.constFind(word);
    return found == named.constEnd() ? std::nullopt : std::optional(*found);
}

bool PropertyRule::fits(const ListedValues &values) const
{
    const ListedValue stated = values.value(property);
    const bool isEmpty = stated.words.trimmed().isEmpty();
    switch (comparison) {
    case Comparison::Is:
        return !isEmpty && isSame(stated, value.trimmed());
    case Comparison::IsNot:
        return isEmpty || !isSame(stated, value.trimmed());
    case Comparison::Contains:
        return !isEmpty && hasText(stated, value.trimmed());
    case Comparison::Above:
        return !isEmpty && compared(stated, value.trimmed()) > 0;
    case Comparison::Below:
        return !isEmpty && compared(stated, value.trimmed()) < 0;
    case Comparison::Empty:
        return isEmpty;
    case Comparison::Stated:
        return !isEmpty;
    }
    return false;
}

bool PropertyFilter::takes(const QString &name, const ListedValues &values) const
{
    const auto fits = [&values](const PropertyRule &rule) { return rule.fits(values); };
    const bool isJoined = rules.isEmpty() || (join == Join::All ? std::all_of(rules.begin(), rules.end(), fits)
                                                                : std::any_of(rules.begin(), rules.end(), fits));
    const QStringList words = text.split(u' ', Qt::SkipEmptyParts);
    return isJoined && std::all_of(words.begin(), words.end(), [&](const QString &word) {
               return name.contains(word, Qt::CaseInsensitive) ||
                      std::any_of(values.begin(), values.end(),
                                  [&word](const ListedValue &value) { return hasText(value, word); });
           });
}

} // namespace window
