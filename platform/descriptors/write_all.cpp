#include "platform/descriptors/write_all.h"

#include <unistd.h>

#include <cerrno>

namespace platform {

int writeAll(const Descriptor &file, const QByteArray &bytes)
{
    for (qsizetype written = 0; written < bytes.size();) {
        const ssize_t count = ::write(file.number(), bytes.constData() + written, size_t(bytes.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return errno;
        written += count;
    }
    return ::fsync(file.number()) == 0 ? 0 : errno;
}

} // namespace platform
