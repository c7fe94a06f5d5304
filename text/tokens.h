#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/**
 * Texts with tokens in them, such as "{taken:yyyy-MM-dd} {name}", for names, folders, comments and watermarks.
 *
 * Forms of a date are made of yyyy yy MM MMM dd EEE HH mm ss and any signs between them; without one it is yyyy-MM-dd. The form
 * of a counter is its first number, with as many figures as the others get. The forms of a name: a number, for so many letters
 * of its beginning; "word", for what stands before the first figure, blank, hyphen, underscore or dot; "~a,b", for the first of
 * these words that stands in it. Forms of a size: "class", "MB".
 */
namespace text {

/** A piece of such a text: a token and its form, or what stands between two tokens. */
struct TokenPart
{
    QString text;
    QString token;
    QString form;
    bool isToken = false;

    bool operator==(const TokenPart &) const = default;
};

/**
 * Takes a text apart, in order. "{{" is a brace; a brace that is not closed is text. What stands in braces is a token whether
 * there is one of that name or not; tokenProblems() tells. Two texts never follow each other, and none is empty.
 */
QList<TokenPart> tokenParts(const QString &pattern);

/** The parts as a pattern again, that is taken apart into the same. */
QString tokenPattern(const QList<TokenPart> &parts);

/** The parts of each level of a pattern of folders; a "/" in a text parts levels, empty ones are passed over. */
QList<QList<TokenPart>> tokenLevels(const QList<TokenPart> &parts);

/** What is wrong with a text, as sentences for the reader, each once; empty where nothing is. */
QStringList tokenProblems(const QString &pattern);

/** True if more than the path of a file is needed for these parts. */
bool needsFacts(const QList<TokenPart> &parts);

/** A token as it is offered: its name, what it stands for in the reader's words, forms to choose from ("" is none), an example without one. */
struct OfferedToken
{
    QString name;
    QString words;
    QString example;
    QStringList forms;
};

/** What a token stands for, in the reader's words; its name where there is none of that name. */
QString tokenWords(const QString &name);

/** All tokens, in the order in which they are offered. */
QList<OfferedToken> offeredTokens();

} // namespace text
