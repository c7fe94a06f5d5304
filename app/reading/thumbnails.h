#pragma once

#include "jobs/reading/read_errand.h"
#include "platform/desktop/shared_thumbnails.h"

#include <QImage>

namespace window {

/** A thumbnail that a worker is asked for. */
struct ThumbnailAsk
{
    QString path; ///< of the picture
    QSize pixels; ///< that it has, upright; empty if unknown
    QSize wanted; ///< in pixels of the screen
    /** That of the desktop, which is tried first and made if it is missing; none if none is shared. */
    std::optional<platform::SharedThumbnail> shared;

    jobs::ReadRequest request() const;
    /** The middle of what arrived, as large as requested; null if nothing arrived. */
    QImage thumbnailFrom(const jobs::ReadResult &result) const;
    /** Whether other programs could use what arrived. Reads the disk. */
    bool isWorthKeeping(const jobs::ReadResult &result) const;
};

/** @param isShared  whether the thumbnails of the desktop are used */
ThumbnailAsk thumbnailAsk(const QString &path, QSize pixels, QSize wanted, bool isShared);

} // namespace window
