#include "text/safe_names.h"

#include "text/code_points.h"
#include "text/token_table.h"

#include "platform/foundation/file_names.h"

namespace text {
namespace {

bool isControl(QChar c)
{
    constexpr char16_t del = 0x7f;
    return c < u' ' || c == del;
}

bool isRefused(QChar c)
{
    return QStringView(u"/\\:*?\"<>|").contains(c);
}

/** Half a surrogate pair cannot be part of a file name. */
QString withoutHalves(const QString &value)
{
    QString whole;
    for (qsizetype at = 0; at < value.size();) {
        const char32_t c = characterAt(value, at);
        whole += QChar::isSurrogate(c) ? QStringLiteral("-") : textOf(c);
        at += unitsOf(c);
    }
    return whole;
}

/** Each run of such characters becomes one @p sign. */
template<typename Is> QString withRunsReplaced(const QString &text, Is is, QChar sign)
{
    QString made;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!is(text[at]))
            made += text[at];
        else if (at == 0 || !is(text[at - 1]))
            made += sign;
    }
    return made;
}

QString withoutDotsAround(QStringView text)
{
    const auto goes = [](QChar c) { return c == u'.' || isBlank(c); };
    while (!text.isEmpty() && goes(text.front()))
        text = text.mid(1);
    while (!text.isEmpty() && goes(text.back()))
        text.chop(1);
    return text.toString();
}

} // namespace

QString asPartOfName(const QString &value)
{
    return QString(value).replace(u'/', u'-').replace(QChar(u'\0'), u'-');
}

QString asFolderName(const QString &value)
{
    // Room for a number, and for what programs append when they copy the folder.
    constexpr qsizetype longestBytes = 180;
    const QString text = withRunsReplaced(withRunsReplaced(withoutHalves(value), isControl, u' '), isRefused, u'-');
    return withoutBlanksAround(platform::shortened(withoutDotsAround(text), longestBytes));
}

} // namespace text
