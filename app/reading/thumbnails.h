#pragma once

#include "jobs/reading/read_errand.h"
#include "platform/desktop/shared_thumbnails.h"

#include <QImage>

namespace window {

/** A thumbnail that a worker is asked for. */
struct ThumbnailAsk
{
    QString path; ///< of the picture
    QSize pixels; ///< that it has, upright; empty where that is not known
    QSize wanted; ///< in pixels of the screen
    /** That of the desktop, which is looked at first and made where it is missing; none where none is shared. */
    std::optional<platform::SharedThumbnail> shared;

    jobs::ReadRequest request() const;
    /** The middle of what came, as large as it was wanted; null where nothing came. */
    QImage thumbnailFrom(const jobs::ReadResult &result) const;
    /** Whether other programs would be glad of what came. Asks the disk. */
    bool isWorthKeeping(const jobs::ReadResult &result) const;
};

/** @param isShared  whether the thumbnails of the desktop are used */
ThumbnailAsk thumbnailAsk(const QString &path, QSize pixels, QSize wanted, bool isShared);

} // namespace window
