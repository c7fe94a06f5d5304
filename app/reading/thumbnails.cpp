#include "app/reading/thumbnails.h"

namespace window {

ThumbnailAsk thumbnailAsk(const QString &path, QSize pixels, QSize wanted, bool isShared)
{
    return {path, pixels, wanted, isShared ? platform::sharedThumbnail(path, pixels, wanted) : std::nullopt};
}

jobs::ReadRequest ThumbnailAsk::request() const
{
    QVariantMap values = {{QStringLiteral("width"), wanted.width()}, {QStringLiteral("height"), wanted.height()}};
    if (!shared)
        return {jobs::Reading::Thumbnail, path, values};
    values.insert(QStringLiteral("side"), shared->side);
    values.insert(QStringLiteral("uri"), QString::fromLatin1(shared->uri));
    values.insert(QStringLiteral("modified"), double(shared->modified));
    const QStringList kept = shared->isThere() ? QStringList{shared->path} : QStringList();
    return {jobs::Reading::Thumbnail, path, values, kept};
}

QImage ThumbnailAsk::thumbnailFrom(const jobs::ReadResult &result) const
{
    if (!shared || result.image.isNull())
        return result.image;
    const QImage covering = result.image.scaled(wanted, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((covering.width() - wanted.width()) / 2, (covering.height() - wanted.height()) / 2);
    return covering.copy(QRect(corner, wanted));
}

bool ThumbnailAsk::isWorthKeeping(const jobs::ReadResult &result) const
{
    return shared && !result.image.isNull() && !result.value("isKept").toBool() && platform::mayBeThumbnailed(path);
}

} // namespace window
