#include "files/rename_by_location.h"

#include "platform/foundation/folders.h"
#include "platform/foundation/paths.h"

#include <QRegularExpression>
#include <QUrl>

namespace files {

std::optional<QString> pathOfLocationText(const QString &text)
{
    static const QRegularExpression allowed(
        QStringLiteral("\\A(?:[A-Za-z0-9._~!$&'()*+,;=:@/?-]|%[0-9A-Fa-f]{2})*(?:#(?:[A-Za-z0-9._~!$&'()*+,;=:@/"
                       "?-]|%[0-9A-Fa-f]{2})*)?\\z"));
    if (text.isEmpty() || !allowed.match(text).hasMatch())
        return std::nullopt;
    const QUrl location(text, QUrl::StrictMode);
    const bool isOfFile = location.scheme().isEmpty() || location.isLocalFile();
    const QString path = location.path(QUrl::FullyDecoded);
    if (!location.isValid() || !isOfFile || !location.host().isEmpty() || path.isEmpty())
        return std::nullopt;
    return path;
}

void renameByLocation(const QString &path, const QString &name)
{
    const auto from = pathOfLocationText(path);
    const auto to = pathOfLocationText(platform::joinedPath(platform::parentFolder(path), name));
    if (from && to)
        (void)platform::moveItem(*from, *to);
}

} // namespace files
