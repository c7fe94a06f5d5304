#include "text/searching.h"

namespace text {

QStringList pieces(const QString &text, const QString &separator)
{
    return separator.isEmpty() ? QStringList{text} : text.split(separator);
}

QString replaced(const QString &text, const QString &search, const QString &replacement)
{
    QString result = text;
    return search.isEmpty() ? result : result.replace(search, replacement);
}

bool containsInAnyCase(const QString &text, const QString &search)
{
    return text.contains(search, Qt::CaseInsensitive);
}

QString withoutSpaces(const QString &text)
{
    QString result = text;
    return result.remove(u' ');
}

} // namespace text
