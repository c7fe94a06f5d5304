#pragma once

#include <QString>

/** Reading a text by characters. An unpaired surrogate counts as a character. */
namespace text {

/** How many UTF-16 code units a character takes. */
inline qsizetype unitsOf(char32_t c)
{
    return QChar::requiresSurrogates(c) ? 2 : 1;
}

/** The character that begins at @p index, which is below the length. */
inline char32_t characterAt(QStringView text, qsizetype index)
{
    const QChar first = text[index];
    if (first.isHighSurrogate() && index + 1 < text.size() && text[index + 1].isLowSurrogate())
        return QChar::surrogateToUcs4(first, text[index + 1]);
    return first.unicode();
}

/** The character that ends before @p index, which is above 0. */
inline char32_t characterBefore(QStringView text, qsizetype index)
{
    const QChar last = text[index - 1];
    if (last.isLowSurrogate() && index > 1 && text[index - 2].isHighSurrogate())
        return QChar::surrogateToUcs4(text[index - 2], last);
    return last.unicode();
}

/** One character as text. QString::fromUcs4() would take U+FEFF for a byte-order mark and drop it. */
inline QString textOf(char32_t c)
{
    QString text;
    return text += QChar::fromUcs4(c);
}

} // namespace text
