#pragma once

#include "platform/descriptors/descriptor.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace jobs {

/** Keeps others from watching the same folders for the same: a locked file in each, or in the folder of temporary files. */
class WatchLock
{
public:
    WatchLock() = default;
    WatchLock(WatchLock &&) = default;
    WatchLock &operator=(WatchLock &&) = delete;
    ~WatchLock();

    /** @return false if somebody has locked it already. @param work  the same text for the same work */
    bool take(const QString &folder, const QString &work);

private:
    struct Held
    {
        QByteArray path;
        platform::Descriptor file;
    };
    std::vector<Held> m_held; ///< in the order in which they were taken
};

} // namespace jobs
