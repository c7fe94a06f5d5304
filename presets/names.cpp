#include "presets/names.h"

#include <algorithm>

namespace presets {
namespace {

bool startsName(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || c == u'_' || c.unicode() >= 0x80;
}

bool continuesName(QChar c)
{
    return startsName(c) || (c >= u'0' && c <= u'9') || c == u'$';
}

bool isSpace(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r' || c == u'\f';
}

QStringView withoutSpace(QStringView text)
{
    while (!text.isEmpty() && isSpace(text.front()))
        text = text.mid(1);
    while (!text.isEmpty() && isSpace(text.back()))
        text.chop(1);
    return text;
}

/** Takes a quoted part off the front of @p rest; a doubled closing quote represents itself. */
std::optional<QString> takeQuoted(QStringView &rest)
{
    const QChar close = rest.front() == u'[' ? QChar(u']') : rest.front();
    QString name;
    for (qsizetype i = 1; i < rest.size(); ++i) {
        if (rest[i].isNull())
            return std::nullopt;
        if (rest[i] != close) {
            name += rest[i];
        } else if (close != u']' && i + 1 < rest.size() && rest[i + 1] == close) {
            name += rest[i++];
        } else {
            rest = rest.mid(i + 1);
            return name;
        }
    }
    return std::nullopt;
}

std::optional<QString> takePart(QStringView &rest)
{
    if (rest.isEmpty())
        return std::nullopt;
    const QChar first = rest.front();
    if (first == u'"' || first == u'[' || first == u'`')
        return takeQuoted(rest);
    if (!startsName(first))
        return std::nullopt;
    const auto *const end = std::find_if_not(rest.begin(), rest.end(), continuesName);
    const QString name = rest.left(end - rest.begin()).toString();
    rest = rest.mid(end - rest.begin());
    return name;
}

/** Takes a dotted name off the front of @p rest. */
std::optional<QString> takeName(QStringView &rest, int mostParts)
{
    std::optional<QString> name = takePart(rest);
    for (int parts = 1; name && rest.startsWith(u'.'); ++parts) {
        if (parts == mostParts)
            return std::nullopt;
        rest = rest.mid(1);
        name = takePart(rest);
    }
    return name;
}

} // namespace

std::optional<QString> oneName(const QString &text, int mostParts)
{
    QStringView rest = withoutSpace(text);
    const std::optional<QString> name = text.isValidUtf16() ? takeName(rest, mostParts) : std::nullopt;
    return rest.isEmpty() ? name : std::nullopt;
}

std::optional<QStringList> columnList(const QString &text)
{
    QStringList names;
    QStringView rest = withoutSpace(text);
    for (;;) {
        const bool isStar = rest.startsWith(u'*');
        const std::optional<QString> name = isStar ? QStringLiteral("*") : takeName(rest, 3);
        if (!name)
            return std::nullopt;
        names.append(*name);
        rest = withoutSpace(isStar ? rest.mid(1) : rest);
        if (rest.isEmpty())
            return names;
        if (!rest.startsWith(u','))
            return std::nullopt;
        rest = withoutSpace(rest.mid(1));
    }
}

bool staysInsideQuotes(const QString &text)
{
    return !text.contains(u'\'') && !text.contains(QChar(u'\0')) && text.isValidUtf16();
}

bool isSameName(const QString &a, const QString &b)
{
    const auto folded = [](QChar c) { return c >= u'A' && c <= u'Z' ? QChar(c.unicode() + 32) : c; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [&](QChar x, QChar y) { return folded(x) == folded(y); });
}

} // namespace presets
