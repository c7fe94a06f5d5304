#include "text/letters.h"

#include "text/code_points.h"

namespace text {
namespace {

bool isKept(char32_t c, Kept kept)
{
    return QChar::isLetter(c) || QChar::isMark(c) || (kept == Kept::LettersAndNumbers && QChar::isNumber(c));
}

} // namespace

QString onlyLetters(const QString &text, Kept kept)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        const char32_t c = characterAt(text, i);
        if (isKept(c, kept))
            result += QChar::fromUcs4(c);
        i += unitsOf(c);
    }
    return result;
}

} // namespace text
