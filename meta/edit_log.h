#pragma once

#include <QVariantMap>

namespace meta {

/**
 * A row of the edit log for one file that was edited in place at this moment: LogDate (a date), LogProcess, LogAction,
 * LogStatus, LogI and LogO (its name), LogIpath and LogOpath (its path).
 */
QVariantMap editLogRow(const QString &path, const QString &status);

} // namespace meta
