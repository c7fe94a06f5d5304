#include "text/ascii_folding.h"

#include "text/code_points.h"

#include <array>

namespace text {
namespace {

constexpr char32_t lastAscii = 0x7F;

/** Accented letters that Unicode does not decompose. */
struct Stroked
{
    char32_t letter;
    char base;
};

constexpr std::array strokedLetters = {
    Stroked{0x110, 'D'}, Stroked{0x111, 'd'}, Stroked{0x126, 'H'}, Stroked{0x127, 'h'}, Stroked{0x131, 'i'},
    Stroked{0x141, 'L'}, Stroked{0x142, 'l'}, Stroked{0xD8, 'O'},  Stroked{0xF8, 'o'},  Stroked{0x166, 'T'},
    Stroked{0x167, 't'}, Stroked{0x180, 'b'}, Stroked{0x243, 'B'}, Stroked{0x197, 'I'}, Stroked{0x268, 'i'},
    Stroked{0x1B5, 'Z'}, Stroked{0x1B6, 'z'}, Stroked{0x1E4, 'G'}, Stroked{0x1E5, 'g'},
};

bool isAsciiLetter(char32_t c)
{
    return (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
}

QChar folded(char32_t c)
{
    if (c <= lastAscii)
        return QChar(char16_t(c));
    const QString parts = textOf(c).normalized(QString::NormalizationForm_D);
    const char32_t base = parts[0].unicode();
    if (isAsciiLetter(base))
        return parts[0];
    for (const Stroked &stroked : strokedLetters)
        if (stroked.letter == base)
            return QLatin1Char(stroked.base);
    return u'?';
}

} // namespace

QString foldedToAscii(const QString &text)
{
    const QString composed = text.normalized(QString::NormalizationForm_C);
    QString result;
    result.reserve(composed.size());
    for (qsizetype i = 0; i < composed.size();) {
        const char32_t c = characterAt(composed, i);
        i += unitsOf(c);
        const QChar::Category category = QChar::category(c);
        const bool belongsToPrevious = category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing;
        if (!belongsToPrevious || result.isEmpty())
            result += folded(c);
    }
    return result;
}

} // namespace text
