#pragma once

#include <QString>

namespace platform {

/**
 * How many processors this process may use: those it may run on, or fewer where the control groups it is in give it less of their time.
 * At least 1.
 *
 * @param root  where the system's own files "proc" and "sys" are found
 */
int usableProcessors(const QString &root = QStringLiteral("/"));

} // namespace platform
