#pragma once

#include <QString>

namespace platform {

/**
 * Distinguishes this process from every other: boot, PID namespace, number and start time. One word, constant for the
 * life of the process.
 */
QString processMark();

/**
 * False if the process with that mark has certainly ended. One in another namespace, such as a container's, cannot be
 * seen from here and counts as alive until the system restarts. For disks where files cannot be locked; a lock says
 * more.
 */
bool mayBeLiving(const QString &mark);

} // namespace platform
