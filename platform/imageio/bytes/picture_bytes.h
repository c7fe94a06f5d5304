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
    /** All of them; empty if the file cannot be read. */
    QByteArray all() const;
};

} // namespace platform
