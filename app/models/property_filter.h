#pragma once

#include "app/models/listed_values.h"

#include <QList>

namespace window {

/** How the value of a picture is compared with the text of a user. */
enum class Comparison { Is, IsNot, Contains, Above, Below, Empty, Stated };

/** "is", "isNot", "contains", "above", "below", "empty", "stated"; none for any other word. */
std::optional<Comparison> comparisonNamed(const QString &word);

/** One line of a filter. */
struct PropertyRule
{
    QString property;
    Comparison comparison = Comparison::Is;
    QString value; ///< as typed; unused for Empty and Stated

    /** Whether the rule is met; numbers are compared as such if both are, dates and everything else as text. */
    bool fits(const ListedValues &values) const;
};

enum class Join { All, Any };

/** Which pictures of the list are wanted. Rules are combined by all or any; a typed text must also be found. */
struct PropertyFilter
{
    Join join = Join::All;
    QList<PropertyRule> rules;
    QString text; ///< its parts, separated by spaces, must each be in the name or in a value

    bool isEmpty() const { return rules.isEmpty() && text.isEmpty(); }
    bool takes(const QString &name, const ListedValues &values) const;
};

} // namespace window
