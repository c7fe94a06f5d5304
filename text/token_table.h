#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <span>

/** The list of tokens; tokens.h has what others need. */
namespace text {

enum class Token {
    Name,
    Extension,
    Date,
    Taken,
    Created,
    Changed,
    Counter,
    Camera,
    Lens,
    Width,
    Height,
    Size,
    Type,
    Orientation,
    Rating,
    Folder,
};

/** What may follow the colon of a token. */
enum class TokenForms { None, Date, Counter, Name, Size };

/** Whether a token needs only the path of a file. */
enum class TokenSource { Path, Facts };

struct TokenRow
{
    Token token;
    const char *name;
    TokenForms forms;
    TokenSource source;
    /** In English; translated when a reader sees them. */
    const char *words;
    const char *example;
};

std::span<const TokenRow> tokenTable();

/** The row of the token of that name, case-sensitively; null if there is none. */
const TokenRow *tokenRow(QStringView name);

/** Whether a format is valid. */
bool isTokenForm(TokenForms forms, const QString &form);

/** The parts of dates, longer ones before their own prefixes. */
inline constexpr std::initializer_list<const char *> datePartNames = {"yyyy", "MMM", "EEE", "yy", "MM",
                                                                      "dd",   "HH",  "mm",  "ss"};

/** The date part that begins at @p at of a format; empty for a separator. */
QStringView datePartAt(const QString &form, qsizetype at);

/** The words of the format "~a,b" of a name. */
QStringList wordsOfForm(const QString &form);

/** White space as users of names understand it: including a byte-order mark. */
bool isBlank(QChar c);

/** Trimmed of such characters. */
QString withoutBlanksAround(QStringView text);

} // namespace text
