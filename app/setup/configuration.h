#pragma once

#include <QLocale>
#include <QString>
#include <QStringList>
#include <QUrl>

/** Values that whoever installs the program sets: environment variables, or else the user's defaults. */
namespace app {

/** What $QUORLIN_UPDATE_HOST or the default "UpdateHost" say, scheme and host of the version file; empty where neither does. */
QString updateHost();

/** What $QUORLIN_PRODUCT_PAGE or the default "ProductPage" say; empty where neither does, or it is no address. */
QUrl productPage();

/**
 * The languages that the user would like to read, best first: what $QUORLIN_LANGUAGE says, the default "Language" (a code, or
 * "system"), and those of the system.
 */
QStringList wantedLanguages();

/**
 * How numbers and dates are written: as the system writes them, or, where another language than that of the system was asked for and
 * there are texts in it, as that language does. To be asked after useTexts().
 */
QLocale wantedLocale();

/** Makes the texts of the interface folder, in the language that is wanted now, those of platform::localizedText(). */
void useTexts();

} // namespace app
