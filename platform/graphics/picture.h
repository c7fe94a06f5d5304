#pragma once

#include "platform/graphics/bitmap.h"

#include <QSizeF>

namespace platform {

/**
 * A picture in memory: upright pixels and a size in points of its own.
 *
 * A cheap value that shares its pixels. Opened from a file its size in points is pixels x 72 / dots per inch.
 */
class Picture
{
public:
    Picture() = default;
    /** A picture whose size in points is that of the bitmap. */
    explicit Picture(Bitmap bitmap) : m_bitmap(std::move(bitmap)), m_size(m_bitmap.pointSize()) {}
    Picture(Bitmap bitmap, QSizeF sizeInPoints) : m_bitmap(std::move(bitmap)), m_size(sizeInPoints) {}

    /** Reads a file, upright. A null picture if it cannot be read. */
    static Picture fromFile(const QString &path);

    bool isNull() const { return m_bitmap.isNull(); }
    bool operator==(const Picture &other) const = default;
    /** In points. */
    QSizeF size() const { return m_size; }
    Bitmap bitmap() const { return m_bitmap; }

private:
    Bitmap m_bitmap;
    QSizeF m_size;
};

} // namespace platform

Q_DECLARE_METATYPE(platform::Picture)
