#include "jobs/pages/page_texts.h"

#include <optional>

namespace jobs {
namespace {

using text::TokenPart;

/** The number that a token of a page stands for; nothing for any other token. */
std::optional<int> numberOf(const TokenPart &part, const PageNumbers &numbers)
{
    if (!part.isToken || !part.form.isEmpty())
        return std::nullopt;
    if (part.token == QLatin1String("page"))
        return numbers.page;
    if (part.token == QLatin1String("pages"))
        return numbers.pages;
    if (part.token == QLatin1String("pictures"))
        return numbers.pictures;
    return std::nullopt;
}

QList<TokenPart> withNumbers(const QString &pattern, const PageNumbers &numbers)
{
    QList<TokenPart> parts = text::tokenParts(pattern);
    for (TokenPart &part : parts)
        if (const auto number = numberOf(part, numbers))
            part = {QString::number(*number), {}, {}, false};
    return parts;
}

QStringList linesOf(const QList<TokenPart> &parts, const text::TokenFacts &facts)
{
    // A value is one line, whatever is in it.
    const auto inOneLine = [](const QString &value) { return value.simplified(); };
    return text::expandTokens(parts, facts, text::TokenLanguage::Reader, {}, inOneLine).text.split(u'\n');
}

} // namespace

QStringList pageTextProblems(const QString &pattern, bool isOfPage)
{
    return text::tokenProblems(isOfPage ? text::tokenPattern(withNumbers(pattern, {})) : pattern);
}

bool pageTextNeedsFacts(const QString &pattern)
{
    return text::needsFacts(withNumbers(pattern, {}));
}

QStringList captionLines(const QString &pattern, const text::TokenFacts &facts)
{
    return pattern.isEmpty() ? QStringList() : linesOf(text::tokenParts(pattern), facts);
}

QStringList pageLines(const QString &pattern, const PageNumbers &numbers, const text::TokenFacts &first)
{
    return pattern.isEmpty() ? QStringList() : linesOf(withNumbers(pattern, numbers), first);
}

} // namespace jobs
