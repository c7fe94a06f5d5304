#pragma once

#include "platform/imageio/source/picture.h"

#include <QObject>
#include <QVariantList>

namespace script {

/** An in-memory picture as scripts hold it, there called Picture. */
class PictureObject : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("ClassOperations", "open")
    /** The size in points. */
    Q_PROPERTY(double width READ width)
    Q_PROPERTY(double height READ height)
    /** The size in pixels. */
    Q_PROPERTY(int pixelsWide READ pixelsWide)
    Q_PROPERTY(int pixelsHigh READ pixelsHigh)

public:
    explicit PictureObject(platform::Picture picture = {}) : m_picture(std::move(picture)) {}

    platform::Picture picture() const { return m_picture; }
    double width() const { return m_picture.isNull() ? 0 : m_picture.size().width(); }
    double height() const { return m_picture.isNull() ? 0 : m_picture.size().height(); }
    int pixelsWide() const { return m_picture.pixelSize().width(); }
    int pixelsHigh() const { return m_picture.pixelSize().height(); }

    /** Reads the file at @p path, upright; null if that cannot be done. */
    Q_INVOKABLE platform::Picture open(const QString &path) const;
    /** Red, green, blue, alpha, 0 to 255, not premultiplied; origin top left; all 0 outside the picture. */
    Q_INVOKABLE QVariantList pixel(int x, int y) const;
    /** Writes the picture as PNG to the absolute @p path, atomically; false if that fails. */
    Q_INVOKABLE bool save(const QString &path) const;
    /** The pixels as a bitmap handle; null after release(). */
    Q_INVOKABLE platform::BitmapHandle bitmap() const;
    /** Lets go of the pixels at once; from then on the picture is empty. */
    Q_INVOKABLE void release();

private:
    platform::Picture m_picture;
};

} // namespace script
