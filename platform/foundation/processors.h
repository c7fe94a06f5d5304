#pragma once

#include <QString>

namespace platform {

/**
 * How many processors this process may use: those that it may run on, or fewer if its control groups limit its
 * processor time. At least 1.
 *
 * @param root  where the system's own files "proc" and "sys" are found
 */
int usableProcessors(const QString &root = QStringLiteral("/"));

} // namespace platform
