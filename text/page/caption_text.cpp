#include "text/page/caption_text.h"

#include "text/token_table.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace text {

namespace {

struct CaptionRow
{
    const char *name;
    bool isPlace;
    const char *words;
};

constexpr std::array rows = {
    CaptionRow{"title", false, QT_TRANSLATE_NOOP("text", "Title")},
    CaptionRow{"headline", false, QT_TRANSLATE_NOOP("text", "Headline")},
    CaptionRow{"caption", false, QT_TRANSLATE_NOOP("text", "Caption")},
    CaptionRow{"creator", false, QT_TRANSLATE_NOOP("text", "Creator")},
    CaptionRow{"copyright", false, QT_TRANSLATE_NOOP("text", "Copyright notice")},
    CaptionRow{"keywords", false, QT_TRANSLATE_NOOP("text", "Keywords")},
    CaptionRow{"sublocation", true, QT_TRANSLATE_NOOP("text", "Sublocation")},
    CaptionRow{"city", true, QT_TRANSLATE_NOOP("text", "City")},
    CaptionRow{"state", true, QT_TRANSLATE_NOOP("text", "State or province")},
    CaptionRow{"country", true, QT_TRANSLATE_NOOP("text", "Country")},
    CaptionRow{"coordinates", true, QT_TRANSLATE_NOOP("text", "Coordinates")},
};

const CaptionRow *rowOf(const QString &name)
{
    const auto *found =
        std::find_if(rows.begin(), rows.end(), [&](const CaptionRow &row) { return name == QLatin1String(row.name); });
    return found == rows.end() ? nullptr : found;
}

bool isCaptionToken(const TokenPart &part)
{
    return part.isToken && part.form.isEmpty() && rowOf(part.token) != nullptr;
}

QStringList namesWhere(bool arePlaces)
{
    QStringList names;
    for (const CaptionRow &row : rows)
        if (!arePlaces || row.isPlace)
            names.append(QString::fromLatin1(row.name));
    return names;
}

/** Lines with only separators around missing values say nothing. */
bool saysSomething(const QString &line)
{
    return std::any_of(line.begin(), line.end(), [](QChar c) { return c.isLetterOrNumber() || c.isSurrogate(); });
}

} // namespace

QStringList captionTokens()
{
    return namesWhere(false);
}

QStringList placeTokens()
{
    return namesWhere(true);
}

QString captionTokenWords(const QString &name)
{
    const CaptionRow *row = rowOf(name);
    return row == nullptr ? name : QCoreApplication::translate("text", row->words);
}

QStringList captionProblems(const QString &pattern, Places places)
{
    QStringList problems;
    QStringList known; // tokens that only captions have, with their descriptions
    for (const TokenPart &part : tokenParts(pattern)) {
        if (!isCaptionToken(part))
            continue;
        known += tokenProblems(tokenPattern({part}));
        if (rowOf(part.token)->isPlace && places == Places::AreKeptBack)
            problems.append(QCoreApplication::translate(
                                "text", "{%1} contains the location. Include the location first, or remove the token.")
                                .arg(part.token));
    }
    for (const QString &problem : tokenProblems(pattern))
        if (!known.contains(problem))
            problems.append(problem);
    problems.removeDuplicates();
    return problems;
}

bool needsPictureTexts(const QString &pattern)
{
    const QList<TokenPart> parts = tokenParts(pattern);
    return std::any_of(parts.begin(), parts.end(), isCaptionToken);
}

QString captionFor(const QString &pattern, const TokenFacts &facts, const QHash<QString, QString> &texts)
{
    QList<TokenPart> parts = tokenParts(pattern);
    for (TokenPart &part : parts)
        if (isCaptionToken(part))
            part = {texts.value(part.token), {}, {}, false};
    QStringList kept;
    for (const QString &line : expandTokens(parts, facts, TokenLanguage::Reader).text.split(u'\n'))
        if (saysSomething(line))
            kept.append(withoutBlanksAround(line));
    return kept.join(u'\n');
}

} // namespace text
