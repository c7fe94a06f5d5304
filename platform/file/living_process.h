#pragma once

#include <QString>

namespace platform {

/**
 * What tells this process from every other: the start of the system, the namespace of processes, the number and the moment of its
 * start. One word, the same for as long as the process lives.
 */
QString processMark();

/**
 * False where the process with that mark has ended for certain. One in another namespace, such as that of a container, cannot be
 * seen from here and counts as living until the system starts again. For places where files cannot be locked; a lock says more.
 */
bool mayBeLiving(const QString &mark);

} // namespace platform
