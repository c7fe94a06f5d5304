#pragma once

// Private to the platform.

#include "platform/file/descriptor.h"

#include <QByteArray>

namespace platform {

/** Bytes in memory that a library which takes them from a file finds under a name, for as long as this lives. No disk is written to. */
class NamedBytes
{
public:
    /** Throws vips::VError where the system has no memory for them. */
    explicit NamedBytes(const QByteArray &bytes);
    const char *path() const { return m_path.constData(); }

private:
    Descriptor m_file;
    QByteArray m_path;
};

} // namespace platform
