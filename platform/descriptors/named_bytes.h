#pragma once

#include "platform/descriptors/descriptor.h"

#include <QByteArray>

namespace platform {

/** Bytes in memory that a library which takes them from a file finds under a name, for as long as this lives. No disk is written to. */
class NamedBytes
{
public:
    explicit NamedBytes(const QByteArray &bytes);
    /** False where the system has no memory for them. */
    bool isThere() const { return !m_path.isEmpty(); }
    const char *path() const { return m_path.constData(); }

private:
    Descriptor m_file;
    QByteArray m_path;
};

} // namespace platform
