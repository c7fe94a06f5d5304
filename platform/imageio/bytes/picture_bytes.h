#pragma once

// Private to the platform.

#include <QByteArray>
#include <QFile>
#include <QIODevice>
#include <QString>

#include <memory>

namespace platform {

class LentFile;

/** The source of a picture's bytes: a file at its path, one that was lent, or memory. */
struct PictureBytes
{
    QString path; ///< the name of a lent file for messages
    QByteArray bytes;
    std::shared_ptr<const LentFile> lent = {};

    bool isInMemory() const { return path.isEmpty() && !lent; }
    /** Of the file; 0 for bytes in memory. */
    qint64 fileBytes() const;

    /** A device over the bytes, open for reading; null if the file cannot be opened. */
    std::unique_ptr<QIODevice> device() const;
    /** The file, open to be mapped; null if there is none. */
    std::unique_ptr<QFile> openedFile() const;
    /** Like device(), but throws vips::VError instead of returning null. */
    std::unique_ptr<QIODevice> openedDevice() const;
    /** All of them. Throws vips::VError if the file cannot be read. */
    QByteArray all() const;
};

/**
 * Throws vips::VError if some of the device could not be read, so that missing bytes do not count as missing
 * statements.
 */
void demandRead(const QIODevice &device);

} // namespace platform
