#pragma once

// Private to the platform.

#include <QByteArray>
#include <QIODevice>
#include <QString>

#include <memory>

namespace platform {

/** Where a picture's bytes come from: a file, or memory when the path is empty. */
struct PictureBytes
{
    QString path;
    QByteArray bytes;

    /** A device over the bytes, open for reading; null if the file cannot be opened. */
    std::unique_ptr<QIODevice> device() const;
    /** The same; throws vips::VError where device() is null. */
    std::unique_ptr<QIODevice> openedDevice() const;
    /** All of them. Throws vips::VError where the file cannot be read. */
    QByteArray all() const;
};

/** Throws vips::VError where some of the device could not be read, so that what is missing does not count as not stated. */
void demandRead(const QIODevice &device);

} // namespace platform
