#pragma once

#include "app/models/listed_values.h"

#include <QList>

namespace window {

/** How what a picture says is compared with what a user wrote. */
enum class Comparison { Is, IsNot, Contains, Above, Below, Empty, Stated };

/** "is", "isNot", "contains", "above", "below", "empty", "stated"; none for any other word. */
std::optional<Comparison> comparisonNamed(const QString &word);

/** One line of a filter. */
struct PropertyRule
{
    QString property;
    Comparison comparison = Comparison::Is;
    QString value; ///< as it was written; of no use for Empty and Stated

    /** Whether the rule is fulfilled; numbers are compared as such where both are, dates and all else as text. */
    bool fits(const ListedValues &values) const;
};

enum class Join { All, Any };

/** Which pictures of the list are wanted. Rules are joined by all or any; a typed text has to be found besides. */
struct PropertyFilter
{
    Join join = Join::All;
    QList<PropertyRule> rules;
    QString text; ///< parts of it, between blanks, are each in the name or in a value

    bool isEmpty() const { return rules.isEmpty() && text.isEmpty(); }
    bool takes(const QString &name, const ListedValues &values) const;
};

} // namespace window
