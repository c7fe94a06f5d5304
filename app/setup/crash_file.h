#pragma once

#include <QString>

namespace app {

/** Where a window leaves its report if it crashes, in the data folder of this program, which is created. */
QString crashFile();

/** Lets this process write crash reports, which begin with the versions of the program and its libraries. */
void keepCrashReports();

} // namespace app
