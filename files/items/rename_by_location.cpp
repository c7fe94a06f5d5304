#include "files/items/rename_by_location.h"

#include "platform/disk/folders.h"
#include "platform/foundation/paths.h"

#include <QRegularExpression>

namespace files {

std::optional<QUrl> locationFromText(const QString &text)
{
    static const QString unit = QStringLiteral("(?:[A-Za-z0-9._~!$&'()*+,;=:@/?-]|%[0-9A-Fa-f]{2})*");
    static const QRegularExpression allowed(QStringLiteral("\\A%1(?:#%1)?\\z").arg(unit));
    const QUrl location(text, QUrl::StrictMode);
    const bool isOne = !text.isEmpty() && allowed.match(text).hasMatch() && location.isValid();
    return isOne ? std::optional(location) : std::nullopt;
}

std::optional<QString> pathOfLocationText(const QString &text)
{
    const auto location = locationFromText(text);
    if (!location || !location->host().isEmpty() || !(location->scheme().isEmpty() || location->isLocalFile()))
        return std::nullopt;
    const QString path = location->path(QUrl::FullyDecoded);
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

void renameByLocation(const QString &path, const QString &name)
{
    const auto from = pathOfLocationText(path);
    const auto to = pathOfLocationText(platform::joinedPath(platform::parentFolder(path), name));
    if (from && to)
        (void)platform::moveItem(*from, *to);
}

} // namespace files
