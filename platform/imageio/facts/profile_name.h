#pragma once

#include <QByteArray>
#include <QLocale>
#include <QStringList>

namespace platform {

/**
 * The description of an ICC profile, "Display P3"; empty if it has none that can be read.
 *
 * @param languages  the reader's, best first, such as "de-CH"; for a profile that has none of them, English or whatever
 *                   it has it has first
 */
QString profileName(const QByteArray &iccProfile, const QStringList &languages = QLocale().uiLanguages());

} // namespace platform
