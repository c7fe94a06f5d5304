#pragma once

#include <QVariant>

#include <functional>

namespace platform {

/**
 * The user's settings that outlive a run: one settings file in the user's configuration folder
 * ($XDG_CONFIG_HOME, default .config). What cannot be written there stays in force until the end of the process.
 */
QVariant userDefault(const QString &key); ///< invalid where the key was never set
void setUserDefault(const QString &key, const QVariant &value);
void removeUserDefault(const QString &key);

/** False if a change could not be written. */
bool areUserDefaultsKept();
/** @p tell is called once, when a change cannot be written for the first time. */
void tellOfUnkeptUserDefaults(std::function<void()> tell);

} // namespace platform
