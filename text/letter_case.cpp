#include "text/letter_case.h"

#include "text/code_points.h"

namespace text {
namespace {

constexpr char32_t capitalSigma = 0x3A3;
constexpr char32_t finalSigma = 0x3C2;
constexpr char32_t capitalDottedI = 0x130;

/** Characters within words: apostrophes, full stops, colons, middle dots. */
bool isInsideWords(char32_t c)
{
    static const QString signs =
        QStringLiteral("'.:\u00B7\u0387\u055F\u05F4\u2018\u2019\u2024\u2027\uFE13\uFE52\uFE55\uFF07\uFF0E\uFF1A");
    return c <= 0xFFFF && signs.contains(QChar(char16_t(c)));
}

/** What is skipped when searching for the letters around a sigma. */
bool isCaseIgnorable(char32_t c)
{
    switch (QChar::category(c)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
    case QChar::Letter_Modifier:
    case QChar::Symbol_Modifier:
        return true;
    default:
        return isInsideWords(c);
    }
}

bool isCased(char32_t c)
{
    return QChar::isUpper(c) || QChar::isLower(c) || QChar::isTitleCase(c) || QChar::toUpper(c) != c ||
           QChar::toLower(c) != c;
}

/** Whether the sigma at @p index has a letter before it and none after it. */
bool isFinalSigma(const QString &text, qsizetype index)
{
    qsizetype before = index;
    while (before > 0 && isCaseIgnorable(characterBefore(text, before)))
        before -= unitsOf(characterBefore(text, before));
    if (before == 0 || !isCased(characterBefore(text, before)))
        return false;
    qsizetype behind = index + 1;
    while (behind < text.size() && isCaseIgnorable(characterAt(text, behind)))
        behind += unitsOf(characterAt(text, behind));
    return behind == text.size() || !isCased(characterAt(text, behind));
}

/** Appends the lower case of the character at @p index. */
void appendLower(QString &result, const QString &text, qsizetype index)
{
    const char32_t c = characterAt(text, index);
    if (c == capitalDottedI)
        result += QStringLiteral("i\u0307");
    else if (c == capitalSigma && isFinalSigma(text, index))
        result += QChar(char16_t(finalSigma));
    else
        result += QChar::fromUcs4(QChar::toLower(c));
}

QString lowerCase(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); i += unitsOf(characterAt(text, i)))
        appendLower(result, text, i);
    return result;
}

/** Up to the first letter in title case, the rest in lower case: "ß" gives "Ss", "ŉ" gives "ʼN". */
QString titleCase(char32_t c)
{
    const char32_t title = QChar::toTitleCase(c);
    const QString upper = textOf(c).toUpper();
    if (title != c || upper.size() <= 1)
        return textOf(title);
    qsizetype letter = 0;
    while (letter < upper.size() - 1 && !upper[letter].isUpper())
        ++letter;
    return upper.left(letter + 1) + lowerCase(upper.mid(letter + 1));
}

QString capitalised(const QString &text)
{
    QString result;
    result.reserve(text.size());
    bool isBetweenWords = true;
    for (qsizetype i = 0; i < text.size(); i += unitsOf(characterAt(text, i))) {
        const char32_t c = characterAt(text, i);
        // Only the very first character of a word counts: "1st", not "1St".
        if (isBetweenWords && QChar::isLetter(c))
            result += titleCase(c);
        else
            appendLower(result, text, i);
        isBetweenWords = QChar::isSpace(c);
    }
    return result;
}

} // namespace

QString changedCase(const QString &text, CaseChange change)
{
    switch (change) {
    case CaseChange::None:
        return text;
    case CaseChange::Lower:
        return lowerCase(text);
    case CaseChange::Upper:
        return text.toUpper();
    case CaseChange::Capitalised:
        return capitalised(text);
    }
    return text;
}

} // namespace text
