#include "text/tokens.h"

#include "text/token_table.h"

#include <QCoreApplication>

#include <algorithm>

namespace text {
namespace {

QString words(const char *english)
{
    return QCoreApplication::translate("text", english);
}

TokenPart tokenOf(QStringView inside)
{
    const qsizetype colon = inside.indexOf(u':');
    TokenPart part;
    part.token = withoutBlanksAround(colon < 0 ? inside : inside.left(colon));
    part.form = colon < 0 ? QString() : inside.mid(colon + 1).toString();
    part.isToken = true;
    return part;
}

void appendText(QList<TokenPart> &parts, const QString &text)
{
    if (!text.isEmpty())
        parts.append({text, {}, {}, false});
}

QString formHint(const TokenRow &row, const QString &form)
{
    switch (row.forms) {
    case TokenForms::Date:
        return QCoreApplication::translate(
                   "text", "“%1” is not a valid date format; use yyyy, yy, MM, MMM, dd, EEE, HH, mm, ss")
            .arg(form);
    case TokenForms::Counter:
        return QCoreApplication::translate("text", "“%1” is not a valid start number").arg(form);
    case TokenForms::Name:
        return QCoreApplication::translate("text", "“%1” does not select part of a name; use a number of characters, "
                                                   "“word”, or “~” and words separated by commas")
            .arg(form);
    case TokenForms::Size:
        return QCoreApplication::translate("text", "“%1” is not a valid size format; use “class” or “MB”").arg(form);
    case TokenForms::None:
        break;
    }
    return QCoreApplication::translate("text", "{%1} takes no format; remove the colon and what follows it")
        .arg(QLatin1String(row.name));
}

/** What is wrong with one token; empty if nothing is. */
QString problemOf(const TokenPart &part)
{
    if (const TokenRow *row = tokenRow(part.token); row != nullptr)
        return isTokenForm(row->forms, part.form) ? QString() : formHint(*row, part.form);
    return part.token.isEmpty()
               ? QCoreApplication::translate("text", "There is no token between the braces; to write a brace, type {{")
               : QCoreApplication::translate("text", "There is no token {%1}").arg(part.token);
}

/** Whether a brace is text although it was not doubled. */
bool hasOpenBrace(const QString &pattern, const QList<TokenPart> &parts)
{
    const QString written = QString(pattern).remove(QStringLiteral("{{"));
    return written.lastIndexOf(u'{') > written.lastIndexOf(u'}') &&
           std::any_of(parts.begin(), parts.end(), [](const TokenPart &part) { return part.text.contains(u'{'); });
}

QStringList offeredForms(TokenForms forms)
{
    switch (forms) {
    case TokenForms::Date:
        return {QStringLiteral("yyyy-MM-dd"), QStringLiteral("yyyy"), QStringLiteral("yyyy-MM"),
                QStringLiteral("yyyyMMdd"),   QStringLiteral("MM"),   QStringLiteral("MMM"),
                QStringLiteral("dd"),         QStringLiteral("EEE"),  QStringLiteral("HH-mm-ss"),
                QStringLiteral("HHmmss")};
    case TokenForms::Counter:
        return {QStringLiteral("1"), QStringLiteral("001"), QStringLiteral("0001")};
    case TokenForms::Name:
        return {QString(), QStringLiteral("3"), QStringLiteral("word")};
    case TokenForms::Size:
        return {QString(), QStringLiteral("class"), QStringLiteral("MB")};
    case TokenForms::None:
        break;
    }
    return {QString()};
}

} // namespace

QList<TokenPart> tokenParts(const QString &pattern)
{
    QList<TokenPart> parts;
    QString text;
    for (qsizetype at = 0; at < pattern.size();) {
        const bool isBrace = pattern[at] == u'{';
        const bool isTwo = isBrace && at + 1 < pattern.size() && pattern[at + 1] == u'{';
        const qsizetype end = isBrace && !isTwo ? pattern.indexOf(u'}', at) : -1;
        if (end < 0) {
            text += pattern[at];
            at += isTwo ? 2 : 1;
            continue;
        }
        appendText(parts, text);
        text.clear();
        parts.append(tokenOf(QStringView(pattern).mid(at + 1, end - at - 1)));
        at = end + 1;
    }
    appendText(parts, text);
    return parts;
}

QString tokenPattern(const QList<TokenPart> &parts)
{
    QString pattern;
    for (const TokenPart &part : parts) {
        if (!part.isToken)
            pattern += QString(part.text).replace(QStringLiteral("{"), QStringLiteral("{{"));
        else
            pattern += u'{' + part.token + (part.form.isEmpty() ? QString() : u':' + part.form) + u'}';
    }
    return pattern;
}

QList<QList<TokenPart>> tokenLevels(const QList<TokenPart> &parts)
{
    QList<QList<TokenPart>> levels(1);
    for (const TokenPart &part : parts) {
        if (part.isToken) {
            levels.last().append(part);
            continue;
        }
        const QStringList texts = part.text.split(u'/');
        appendText(levels.last(), texts.first());
        for (qsizetype i = 1; i < texts.size(); ++i) {
            levels.append(QList<TokenPart>());
            appendText(levels.last(), texts[i]);
        }
    }
    levels.removeIf([](const QList<TokenPart> &level) { return level.isEmpty(); });
    return levels;
}

QStringList tokenProblems(const QString &pattern)
{
    const QList<TokenPart> parts = tokenParts(pattern);
    QStringList found;
    for (const TokenPart &part : parts) {
        if (const QString problem = part.isToken ? problemOf(part) : QString(); !problem.isEmpty())
            found.append(problem);
    }
    if (hasOpenBrace(pattern, parts))
        found.append(QCoreApplication::translate("text", "A brace is not closed; to write a brace, type {{"));
    found.removeDuplicates();
    return found;
}

bool needsFacts(const QList<TokenPart> &parts)
{
    return std::any_of(parts.begin(), parts.end(), [](const TokenPart &part) {
        const TokenRow *row = part.isToken ? tokenRow(part.token) : nullptr;
        return part.isToken && (row == nullptr || row->source == TokenSource::Facts);
    });
}

QString tokenWords(const QString &name)
{
    const TokenRow *row = tokenRow(name);
    return row == nullptr ? name : words(row->words);
}

QList<OfferedToken> offeredTokens()
{
    QList<OfferedToken> offered;
    for (const TokenRow &row : tokenTable())
        offered.append({QString::fromLatin1(row.name), words(row.words), words(row.example), offeredForms(row.forms)});
    return offered;
}

} // namespace text
