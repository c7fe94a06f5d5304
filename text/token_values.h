#pragma once

#include "text/tokens.h"

#include <QSize>

#include <functional>

namespace text {

/** What is known about a file; unknown values are empty, -1 bytes, or no pixels. */
struct TokenFacts
{
    /** Absolute; names, extension and folder come from it. */
    QString path;
    /** "2026-08-14T10:20:30". */
    QString taken;
    QString created;
    QString changed;
    QString camera;
    QString lens;
    QString type;
    /** The size in words; if it is empty it is formatted from the bytes, in the requested language. */
    QString size;
    qint64 bytes = -1;
    /** Upright. */
    QSize pixels;
    /** 1 to 5; 0 for none. */
    int rating = 0;
    /** How far a counter has advanced from its first number: how many files come before this one. */
    qint64 index = 0;
};

/** The language of names of months and days, of words such as "Landscape", and of sizes: English, or that of the program. */
enum class TokenLanguage { English, Reader };

/** The text for one file, and the names of tokens for which it has no value, in order. */
struct Expanded
{
    QString text;
    QStringList missing;
};

/** The replacement of a missing value. */
using StandIn = std::function<QString(const TokenPart &)>;
/** What is done to each value, and to replacements, before it is inserted. */
using Clean = std::function<QString(const QString &)>;

/**
 * The text for one file.
 *
 * @param standIn  none: missing values are not replaced
 * @param clean    none: values are inserted unchanged; texts between tokens always are
 *
 * An unknown token has no value. Formats that tokenProblems() rejects are harmless: a date keeps their letters, a
 * counter has no value.
 */
Expanded expandTokens(const QList<TokenPart> &parts, const TokenFacts &facts, TokenLanguage language,
                      const StandIn &standIn = {}, const Clean &clean = {});

/** A date "2026-08-14T10:20:30" in a format, where "" is yyyy-MM-dd; impossible months and days are left out. */
QString dateText(const QString &date, const QString &form, TokenLanguage language);

/** The part of a name (without extension) selected by a format of {name}; empty if there is none. */
QString namePart(const QString &name, const QString &form);

/** The class of file sizes that a count of bytes, from 0, is in: "Under 1 MB", "1 to 5 MB", "5 to 20 MB", "20 MB and more". */
QString sizeClassText(qint64 bytes, TokenLanguage language);

/** "Landscape", "Portrait" or "Square"; empty for no picture. */
QString orientationText(QSize pixels, TokenLanguage language);

} // namespace text
