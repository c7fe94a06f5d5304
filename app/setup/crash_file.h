#pragma once

#include <QString>

namespace app {

/** Where a window that ends by a fault leaves its report, in the folder of this program's data, which is made. */
QString crashFile();

/** Lets this process leave reports there that begin with the versions of program and libraries. */
void keepCrashReports();

} // namespace app
