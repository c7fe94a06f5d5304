#pragma once

#include "platform/descriptors/descriptor.h"

#include <QByteArray>

namespace platform {

/**
 * Bytes in memory that a library can open as a file by name, as long as this object lives. Nothing is written to disk.
 */
class NamedBytes
{
public:
    explicit NamedBytes(const QByteArray &bytes);
    /** False if the system has no memory for them. */
    bool isThere() const { return !m_path.isEmpty(); }
    const char *path() const { return m_path.constData(); }

private:
    Descriptor m_file;
    QByteArray m_path;
};

} // namespace platform
