#pragma once

#include <QFile>
#include <QImage>
#include <QString>

/** Small pictures that tests make themselves. */
namespace pictures {

/** Every pixel encodes its position: red is x, green is y, blue their sum, modulo 256. */
inline QImage gradient(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x & 255, y & 255, (x + y) & 255));
    return image;
}

inline QImage plain(int width, int height, const QColor &color, QImage::Format format = QImage::Format_RGBA8888)
{
    QImage image(width, height, format);
    image.fill(color);
    return image;
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace pictures
