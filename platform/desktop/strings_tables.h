#pragma once

#include <QString>
#include <QStringList>

/**
 * The texts that users read, stored by key in tables: a folder contains one folder for each language, named by its code
 * ("en", "nl"), in which each table is a file TABLE.json, one object of texts. Main thread only.
 */
namespace platform {

/**
 * Sets where the tables are and which languages the user prefers, best first, as "nl" or "nl-BE". Before the first call
 * there is no table. A table is read at its first use and cached.
 */
void setStringsTables(const QString &folder, const QStringList &languages);

/** The code of the first of the user's languages that has a folder; "en" if none has. */
QString languageOfTexts();

/**
 * The text of @p key in the language of the texts.
 *
 * @param fallback  the answer if the table, or the key in it, is missing; if it is null or empty, the key
 * @param table     letters, digits, "-" and "_"; null or empty for the main table, "Localizable"
 */
QString localizedText(const QString &key, const QString &fallback, const QString &table = {});

} // namespace platform
