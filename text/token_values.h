#pragma once

#include "text/tokens.h"

#include <QSize>

#include <functional>

namespace text {

/** What is known of a file; what is not is empty, -1 bytes, or no pixels. */
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
    /** The size in words; where it is empty it is worded from the bytes, in the language that is asked for. */
    QString size;
    qint64 bytes = -1;
    /** Upright. */
    QSize pixels;
    /** 1 to 5; 0 for none. */
    int rating = 0;
    /** How much a counter has gone on from its first number: how many files came before this one. */
    qint64 index = 0;
};

/** The language of names of months and days, of words such as "Landscape", and of sizes: English, or that of the program. */
enum class TokenLanguage { English, Reader };

/** The text for one file, and the names of tokens that it has no value for, in order. */
struct Expanded
{
    QString text;
    QStringList missing;
};

/** The text for a missing value. */
using StandIn = std::function<QString(const TokenPart &)>;
/** What becomes of each value, and of what stands in for one, before it is put in. */
using Clean = std::function<QString(const QString &)>;

/**
 * The text for one file.
 *
 * @param standIn  none: nothing stands for a missing value
 * @param clean    none: values are put in as they are; texts between tokens always are
 *
 * A token that there is none of has no value. Forms that tokenProblems() refuses do no harm: a date keeps their letters, a
 * counter has no value.
 */
Expanded expandTokens(const QList<TokenPart> &parts, const TokenFacts &facts, TokenLanguage language,
                      const StandIn &standIn = {}, const Clean &clean = {});

/** A date "2026-08-14T10:20:30" in a form, where "" is yyyy-MM-dd; months and days that there are none of are left out. */
QString dateText(const QString &date, const QString &form, TokenLanguage language);

/** The part of a name (without extension) that a form of {name} names; empty where there is none. */
QString namePart(const QString &name, const QString &form);

/** The class of file sizes that a count of bytes, from 0, is in: "Under 1 MB", "1 to 5 MB", "5 to 20 MB", "20 MB and more". */
QString sizeClassText(qint64 bytes, TokenLanguage language);

/** "Landscape", "Portrait" or "Square"; empty for no picture. */
QString orientationText(QSize pixels, TokenLanguage language);

} // namespace text
