#include "platform/descriptors/named_bytes.h"

#include <sys/mman.h>
#include <unistd.h>

namespace platform {

NamedBytes::NamedBytes(const QByteArray &bytes) : m_file(::memfd_create("quorlin", MFD_CLOEXEC))
{
    if (::write(m_file.number(), bytes.constData(), size_t(bytes.size())) == bytes.size())
        m_path = "/proc/self/fd/" + QByteArray::number(m_file.number());
}

} // namespace platform
