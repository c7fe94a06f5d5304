#pragma once

// Private to the platform.

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QString>

#include <memory>

namespace platform {

class LentFile;

/** Where a picture's bytes come from: a file that is there under its path, one that was lent, or memory. */
struct PictureBytes
{
    QString path; ///< of a file that was lent, what messages call it
    QByteArray bytes;
    std::shared_ptr<const LentFile> lent = {};

    bool isInMemory() const { return path.isEmpty() && !lent; }
    /** Of the file; 0 for bytes in memory. */
    qint64 fileBytes() const;

    /** A device over the bytes, open for reading; null if the file cannot be opened. */
    std::unique_ptr<QIODevice> device() const;
    /** The file, open to be mapped; null where there is none. */
    std::unique_ptr<QFile> openedFile() const;
    /** The same as device(); throws vips::VError where that is null. */
    std::unique_ptr<QIODevice> openedDevice() const;
    /** All of them. Throws vips::VError where the file cannot be read. */
    QByteArray all() const;
};

/** Throws vips::VError where some of the device could not be read, so that what is missing does not count as not stated. */
void demandRead(const QIODevice &device);

} // namespace platform
