#include "presets/Ztbookmarks.h"

#include "platform/desktop/bookmarks.h"

Ztbookmarks::Ztbookmarks(QObject *parent) : QObject(parent) {}

QByteArray Ztbookmarks::bookmarkForURL(const QUrl &url) const
{
    if (!url.isLocalFile())
        return {};
    return platform::makeBookmark(url.toLocalFile()).value_or(QByteArray());
}

QUrl Ztbookmarks::urlForBookmark(const QByteArray &bookmark) const
{
    const auto path = platform::resolveBookmark(bookmark);
    return path ? QUrl::fromLocalFile(*path) : QUrl();
}
