#pragma once

#include "platform/imageio/metadata/metadata.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

/** Pictures that state when and with what they were taken. */
namespace pictures {

/** @param date  "2026:08:14 10:20:30"; if it is empty none is stated, and likewise the camera */
inline QByteArray stamped(const QByteArray &jpeg, const QString &date, const QString &model)
{
    QVariantMap exif;
    QVariantMap tiff;
    if (!date.isEmpty())
        exif.insert(QStringLiteral("DateTimeOriginal"), date);
    if (!model.isEmpty())
        tiff.insert(QStringLiteral("Model"), model);
    const auto written =
        platform::Metadata::fromProperties({{QStringLiteral("{Exif}"), exif}, {QStringLiteral("{TIFF}"), tiff}})
            .writtenInto(jpeg);
    return written ? *written : jpeg;
}

/** A JPEG file of that size in a plain colour. */
inline QByteArray datedJpeg(const QString &date, const QString &model = {}, QSize size = {30, 20})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "jpeg");
    return stamped(buffer.data(), date, model);
}

} // namespace pictures
