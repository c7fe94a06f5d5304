#include "jobs/watch_lock.h"

#include "jobs/path_hash.h"
#include "platform/disk/item_identity.h"
#include "platform/file/sign_of_life.h"
#include "platform/foundation/paths.h"

#include <QDir>

#include <fcntl.h>
#include <unistd.h>

namespace jobs {
namespace {

/** A hidden name in a folder; for a folder that cannot be written, a substitute among temporary files. */
QByteArray lockNames(const QString &folder, const QString &work, bool isInFolder)
{
    const QByteArray name = QByteArray::number(pathHash(work.toUtf8()), 16);
    if (isInFolder)
        return platform::encodedPath(platform::joinedPath(folder, QStringLiteral(".quorlin-watch-"))) + name;
    const QString place = platform::folderIdentity(folder).replace(u':', u'-');
    return platform::encodedPath(platform::joinedPath(QDir::tempPath(), QStringLiteral(".quorlin-watch-") + place)) +
           '-' + name;
}

} // namespace

WatchLock::~WatchLock()
{
    for (const Held &held : m_held)
        if (platform::isStillNamed(held.file.number(), held.path))
            ::unlink(held.path.constData());
}

bool WatchLock::take(const QString &folder, const QString &work)
{
    for (const bool isInFolder : {true, false}) {
        const QByteArray path = lockNames(folder, work, isInFolder);
        constexpr int tries = 100;
        for (int i = 0; i < tries; ++i) {
            platform::Descriptor file(::open(path.constData(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
            if (!file.isOpen())
                break;
            if (platform::showLife(file.number()) == platform::Life::Others)
                return false;
            if (!platform::isStillNamed(file.number(), path))
                continue; // its last owner has removed it in between
            m_held.push_back({path, std::move(file)});
            return true;
        }
    }
    return true; // if nothing can be written, nobody can lock anybody out
}

} // namespace jobs
