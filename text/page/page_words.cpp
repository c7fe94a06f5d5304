#include "text/page/page_words.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace text {

namespace {

struct Row
{
    const char *language;
    const char *pictures;
    const char *picture;
    const char *close;
    const char *next;
    const char *previous;
    const char *download;
};

// Of the page, not of the program: they follow the language of the page, whatever language the user of this program
// reads.
constexpr std::array rows = {
    Row{"en", "Pictures", "Picture %1 of %2", "Close", "Next", "Previous", "Download"},
    Row{"de", "Bilder", "Bild %1 von %2", "Schließen", "Weiter", "Zurück", "Herunterladen"},
    Row{"fr", "Images", "Image %1 sur %2", "Fermer", "Suivante", "Précédente", "Télécharger"},
    Row{"nl", "Foto’s", "Foto %1 van %2", "Sluiten", "Volgende", "Vorige", "Downloaden"},
};

QString mainCode(const QString &language)
{
    return language.section(u'-', 0, 0).toLower();
}

} // namespace

PageWords pageWords(const QString &language)
{
    const QString code = mainCode(language);
    const auto *found =
        std::find_if(rows.begin(), rows.end(), [&](const Row &row) { return code == QLatin1String(row.language); });
    const Row &row = found == rows.end() ? rows.front() : *found;
    return {QString::fromUtf8(row.language), QString::fromUtf8(row.pictures), QString::fromUtf8(row.picture),
            QString::fromUtf8(row.close),    QString::fromUtf8(row.next),     QString::fromUtf8(row.previous),
            QString::fromUtf8(row.download)};
}

bool isLanguageCode(const QString &language)
{
    const QStringList pieces = language.split(u'-');
    const auto isPiece = [](const QString &piece) {
        constexpr int longest = 8;
        return !piece.isEmpty() && piece.size() <= longest && std::all_of(piece.begin(), piece.end(), [](QChar c) {
            return c.unicode() < 0x80 && c.isLetterOrNumber();
        });
    };
    const QString &first = pieces.first();
    const bool areLetters = std::all_of(first.begin(), first.end(), [](QChar c) { return c.isLetter(); });
    return areLetters && first.size() >= 2 && first.size() <= 3 && std::all_of(pieces.begin(), pieces.end(), isPiece);
}

bool isWrittenFromTheRight(const QString &language)
{
    const QStringList script = language.toLower().split(u'-');
    if (script.contains(QStringLiteral("latn")) || script.contains(QStringLiteral("cyrl")))
        return false;
    constexpr std::array codes = {"ar", "he", "iw", "fa", "ur", "yi", "ps", "sd", "ug", "dv", "ckb", "syr"};
    return script.contains(QStringLiteral("arab")) || script.contains(QStringLiteral("hebr")) ||
           std::any_of(codes.begin(), codes.end(),
                       [&](const char *code) { return script.first() == QLatin1String(code); });
}

} // namespace text
