#include "text/services/token_service.h"

#include "text/safe_names.h"
#include "text/tokens.h"

#include <QVariantMap>

namespace text {

QVariantList TokenService::offered() const
{
    QVariantList all;
    for (const OfferedToken &each : offeredTokens())
        all.append(QVariantMap{{QStringLiteral("name"), each.name},
                               {QStringLiteral("words"), each.words},
                               {QStringLiteral("example"), each.example},
                               {QStringLiteral("forms"), each.forms}});
    return all;
}

QVariantList TokenService::parts(const QString &pattern) const
{
    QVariantList all;
    for (const TokenPart &part : tokenParts(pattern))
        all.append(part.isToken
                       ? QVariantMap{{QStringLiteral("token"), part.token}, {QStringLiteral("form"), part.form}}
                       : QVariantMap{{QStringLiteral("text"), part.text}});
    return all;
}

QString TokenService::words(const QString &token) const
{
    return tokenWords(token);
}

QStringList TokenService::levels(const QString &pattern) const
{
    QStringList all;
    for (const QList<TokenPart> &level : tokenLevels(tokenParts(pattern)))
        all.append(tokenPattern(level));
    return all;
}

QStringList TokenService::problems(const QString &pattern) const
{
    return tokenProblems(pattern);
}

QString TokenService::folderName(const QString &value) const
{
    return asFolderName(value);
}

} // namespace text
