#pragma once

#include <QVariant>

namespace platform {

/**
 * The user's settings that outlive a run: one settings file in the user's configuration folder
 * ($XDG_CONFIG_HOME, default .config).
 */
QVariant userDefault(const QString &key); ///< invalid where the key was never set
void setUserDefault(const QString &key, const QVariant &value);
void removeUserDefault(const QString &key);

} // namespace platform
