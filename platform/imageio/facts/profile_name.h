#pragma once

#include <QByteArray>
#include <QLocale>
#include <QStringList>

namespace platform {

/**
 * The description of an ICC profile, "Display P3"; empty where it has none that can be read.
 *
 * @param languages  the reader's, the best first, such as "de-CH"; a profile that has none of them speaks English, or whatever
 *                   it has first
 */
QString profileName(const QByteArray &iccProfile, const QStringList &languages = QLocale().uiLanguages());

} // namespace platform
