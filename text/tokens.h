#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/**
 * Texts with tokens in them, such as "{taken:yyyy-MM-dd} {name}", for names, folders, comments and watermarks.
 *
 * Date formats consist of yyyy yy MM MMM dd EEE HH mm ss and any separators; the default is yyyy-MM-dd. The format of a
 * counter is its first number, with as many digits as the others get. The formats of a name: a number, for so many
 * letters of its beginning; "word", for what precedes the first digit, space, hyphen, underscore or dot; "~a,b", for
 * the first of these words that it contains. Formats of a size: "class", "MB".
 */
namespace text {

/** A piece of such a text: a token and its format, or the text between two tokens. */
struct TokenPart
{
    QString text;
    QString token;
    QString form;
    bool isToken = false;

    bool operator==(const TokenPart &) const = default;
};

/**
 * Parses a text, in order. "{{" is a brace; an unclosed brace is text. Anything in braces counts as a token, even an
 * unknown one; tokenProblems() reports that. Two texts never follow each other, and none is empty.
 */
QList<TokenPart> tokenParts(const QString &pattern);

/** The parts as a pattern again, which parses into the same parts. */
QString tokenPattern(const QList<TokenPart> &parts);

/** The parts of each level of a folder pattern; a "/" in a text separates levels, empty ones are dropped. */
QList<QList<TokenPart>> tokenLevels(const QList<TokenPart> &parts);

/** What is wrong with a text, as sentences for the reader, each once; empty if nothing is. */
QStringList tokenProblems(const QString &pattern);

/** True if more than the path of a file is needed for these parts. */
bool needsFacts(const QList<TokenPart> &parts);

/**
 * A token on offer: its name, its meaning in the reader's words, formats to choose from ("" is none), an example
 * without one.
 */
struct OfferedToken
{
    QString name;
    QString words;
    QString example;
    QStringList forms;
};

/** The meaning of a token in the reader's language; its name if there is no such token. */
QString tokenWords(const QString &name);

/** All tokens, in the order in which they are offered. */
QList<OfferedToken> offeredTokens();

} // namespace text
