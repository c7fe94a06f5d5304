#include "presets/seeding.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace presets {

Seeding::Seeding(const QString &folder)
    : m_folder(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    constexpr int tries = 1000;
    constexpr useconds_t betweenTries = 2000;
    for (int i = 0; i < tries && m_folder.isOpen(); ++i) {
        if (::flock(m_folder.number(), LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR))
            return;
        ::usleep(betweenTries);
    }
}

} // namespace presets
