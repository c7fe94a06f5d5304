#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QUrl>

/** Values set by the administrator: environment variables, or else the user's defaults. */
namespace app {

/**
 * The value of $QUORLIN_UPDATE_HOST or the default "UpdateHost": scheme and host of the version file; empty if neither
 * is set.
 */
QString updateHost();

/** The value of $QUORLIN_PRODUCT_PAGE or the default "ProductPage"; empty if neither is set, or it is no address. */
QUrl productPage();

/**
 * The languages that the user prefers, best first: that of $QUORLIN_LANGUAGE, the default "Language" (a code, or
 * "system"), and those of the system.
 */
QStringList wantedLanguages();

/**
 * How numbers and dates are written: as the system does, or, if another language was chosen and we have texts in it, as
 * that language does. Call after useTexts().
 */
QLocale wantedLocale();

/** Makes the texts of the interface folder, in the language wanted now, those of platform::localizedText(). */
void useTexts();

} // namespace app
