#pragma once

#include <QString>
#include <QStringList>

/**
 * The texts that users read, kept by key in tables: below a folder there is one folder for each language, named by its code
 * ("en", "nl"), and in it each table is a file TABLE.json, one object of texts. Main thread only.
 */
namespace platform {

/**
 * Says where the tables are and which languages the user would like, best first, as "nl" or "nl-BE". Before the first call there is
 * no table. A table is read at its first use and kept.
 */
void setStringsTables(const QString &folder, const QStringList &languages);

/** The code of the first of the user's languages that has a folder; "en" where none has. */
QString languageOfTexts();

/**
 * The text of @p key in the language of the texts.
 *
 * @param fallback  the answer where the table, or the key in it, is missing; where it is null or empty, the key
 * @param table     letters, digits, "-" and "_"; null or empty for the main table, "Localizable"
 */
QString localizedText(const QString &key, const QString &fallback, const QString &table = {});

} // namespace platform
