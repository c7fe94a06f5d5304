#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <span>

/** What tokens there are; tokens.h has what others ask. */
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

/** What the text behind the colon of a token can be. */
enum class TokenForms { None, Date, Counter, Name, Size };

/** Whether the path of a file is all that a token needs. */
enum class TokenSource { Path, Facts };

struct TokenRow
{
    Token token;
    const char *name;
    TokenForms forms;
    TokenSource source;
    /** In English; translated where a reader sees them. */
    const char *words;
    const char *example;
};

std::span<const TokenRow> tokenTable();

/** The row of the token of that name, by case; null where there is none. */
const TokenRow *tokenRow(QStringView name);

/** Whether a form is one of those. */
bool isTokenForm(TokenForms forms, const QString &form);

/** The parts of dates, the longer ones before those that they begin with. */
inline constexpr std::initializer_list<const char *> datePartNames = {"yyyy", "MMM", "EEE", "yy", "MM",
                                                                      "dd",   "HH",  "mm",  "ss"};

/** The part of a date that begins at @p at of a form; empty where that is a sign between two. */
QStringView datePartAt(const QString &form, qsizetype at);

/** The words of the form "~a,b" of a name. */
QStringList wordsOfForm(const QString &form);

/** White space as users of names mean it: also a byte-order mark. */
bool isBlank(QChar c);

/** Without such signs at both ends. */
QString withoutBlanksAround(QStringView text);

} // namespace text
