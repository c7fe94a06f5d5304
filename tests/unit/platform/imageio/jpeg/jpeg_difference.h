#pragma once

// Made-up photographs as JPEGs, and how far two of them are apart.

#include "platform/imageio/encode/image_destination.h"
#include "platform/imageio/source/image_source.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImage>
#include <QRandomGenerator>

#include <algorithm>
#include <array>
#include <cmath>

namespace tests {

/** Slow colour, texture and hard edges, like a photograph. */
inline QImage photograph(QSize size, quint32 seed)
{
    QRandomGenerator random(seed);
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const double light = 120 + 50 * std::sin(x / 37.0) * std::cos(y / 23.0) + 12 * std::sin(x * 0.9 + y * 0.4);
            const int edge = (x / 70 + y / 90) % 3 == 0 ? 45 : 0;
            const auto level = [&](double shade) {
                return std::clamp(int(light * shade) + edge + int(random.bounded(9)) - 4, 0, 255);
            };
            image.setPixel(x, y, qRgb(level(1), level(0.8 + 0.2 * std::sin(x / 150.0)), level(0.7)));
        }
    return image;
}

inline QByteArray jpegOf(const platform::Bitmap &bitmap, int quality)
{
    platform::EncodeOptions options;
    options.quality = quality;
    return platform::encodeImage(bitmap, platform::FileFormat::Jpeg, options).value_or(QByteArray());
}

/** With the profile of a colour space, as another program writes it. */
inline QByteArray profiledJpegOf(QImage image, const QColorSpace &space)
{
    image.setColorSpace(space);
    QBuffer file;
    return file.open(QIODevice::WriteOnly) && image.save(&file, "JPEG", 90) ? file.data() : QByteArray();
}

inline QImage pixelsOf(const QByteArray &file)
{
    const auto source = platform::ImageSource::fromData(file);
    const auto bitmap = source ? source->decode() : platform::Result<platform::Bitmap>(platform::Bitmap());
    return bitmap && !bitmap->isNull() ? bitmap->toRawImage().convertToFormat(QImage::Format_RGB888) : QImage();
}

struct Difference
{
    double decibels = 0; ///< how far the mean square is below 255
    std::array<double, 3> shift = {};
    int largest = 0;
};

inline Difference differenceOf(const QImage &one, const QImage &other)
{
    Difference difference;
    double squares = 0;
    const double count = double(one.width()) * one.height();
    for (int y = 0; y < one.height(); ++y)
        for (int i = 0; i < 3 * one.width(); ++i) {
            const int apart = int(one.constScanLine(y)[i]) - int(other.constScanLine(y)[i]);
            difference.shift[size_t(i % 3)] += apart / count;
            squares += apart * apart;
            difference.largest = std::max(difference.largest, std::abs(apart));
        }
    difference.decibels = 10 * std::log10(255.0 * 255.0 / std::max(squares / (3 * count), 1e-9));
    return difference;
}

} // namespace tests
