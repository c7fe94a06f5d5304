#pragma once

#include "platform/values/shared_texts.h"
#include "presets/database.h"

#include <QObject>
#include <QVariant>

#include <deque>

/**
 * The user's presets: one database file, its tables, and the operations of scripts on them.
 *
 * Every operation that needs the file opens it again and normally closes it before it returns; the exceptions say so.
 * An object keeps its last results in its fields and returns them if there is no new one. Main thread only.
 *
 * Names and values are pasted into statements unchanged. A value with a single quote or a NUL makes its statement
 * invalid, and so does any name or value that would turn the statement into something other than intended. Every change
 * is atomic: after a crash at any moment it happened or it did not.
 *
 * Operations that write raise an internal inconsistency when they fail, after the connection was closed: "Presets Db failed to
 * open.", "Presets Table failed to create." or "Error updating table.". Operations that read never raise.
 *
 * Lists of names and values have exactly 62 texts, none null; another list is a TypeError and nothing is written.
 */
class dbViewController : public QObject
{
    Q_OBJECT
    /** The connection; null while none is open. */
    Q_PROPERTY(presets::Connection myDb READ connection)
    /** The last result of a name check or a removal; null before the first. */
    Q_PROPERTY(QString myPresetExist MEMBER m_presetExist)
    /** A value that scripts may park here. */
    Q_PROPERTY(QString myPresetValueStr MEMBER m_presetValue)
    /** The rows of the last query, and the list that was returned for them. */
    Q_PROPERTY(platform::SharedTexts myPresetsArray READ presetsArray)
    Q_PROPERTY(platform::SharedTexts myPresetsArrayToPass READ presetsArrayToPass)
    /** Not used. */
    Q_PROPERTY(QVariant myEmptyArray MEMBER m_emptyArray)
    /** The last value that hGetBookMarkedFolders read; null before the first. */
    Q_PROPERTY(QByteArray mySearchValue4 MEMBER m_searchValue)

public:
    Q_INVOKABLE explicit dbViewController(QObject *parent = nullptr);

    Q_INVOKABLE void setMyPresetValueStr(const QString &value) { m_presetValue = value; }

    /**
     * The path of the database file, BrelmarkCom/QuorlinPS.sql in the user's data folder. Creates the folder; reports
     * no error.
     */
    Q_INVOKABLE QString dbFilePath() const;

    /** Opens the file, which is created if it is missing, and leaves it open. */
    Q_INVOKABLE void openmyPresetsDb();

    /** Creates a table on the open connection and leaves it open. An existing table is unchanged. */
    Q_INVOKABLE void createTableNamed(const QString &table, const QStringList &names);

    /** Adds a row, even if an equal one exists, and leaves the file open. */
    Q_INVOKABLE void insertRecordIntoTableNamed(const QString &table, const QStringList &names,
                                                const QStringList &values);

    /** Does nothing. */
    Q_INVOKABLE void creatTableIfNotExist() {}

    /**
     * Creates the file with its three tables, Presets, AppResource and AppBookmarks, and one row in each of the last
     * two. An existing file is left unchanged, whatever it contains.
     */
    Q_INVOKABLE void linkToPresetsDB();

    /** Adds a row to Presets: its name, process, action and 59 more values. The three differ only in their callers. */
    Q_INVOKABLE void insertSortingPresetToDB01(const QStringList &values);
    Q_INVOKABLE void insertHTMLPresetToDB01(const QStringList &values);
    Q_INVOKABLE void insertSortingPresetToDB02(const QStringList &values);

    /** Adds the sample row to Presets and leaves the file open. */
    Q_INVOKABLE void insertSortingPresetToDB();

    /** Reads a table to its end and discards it. */
    Q_INVOKABLE void getAllRowsFromTableNamed(const QString &table);

    /** Field 0 of the last row that matches; else the old myPresetExist. */
    Q_INVOKABLE QString checkPresetNameFromTableNamed(const QString &table, const QString &column,
                                                      const QString &value);

    /**
     * The rows that match, each as its 62 fields with "|" between them, in the order of their IDs.
     *
     * @return a new list if rows match. If none does, the list of the last query that found rows, emptied for everybody
     *         who still has it; if the query fails, that list unchanged. Null if no query has found rows yet.
     */
    Q_INVOKABLE platform::SharedTexts checkForActionType(const QString &table, const QString &column,
                                                         const QString &value);

    /** Removes the rows that match. "preset not found" for an invalid statement; else, also if the file cannot be
     * opened, the old myPresetExist. */
    Q_INVOKABLE QString removePresetFromDatabase(const QString &table, const QString &column, const QString &value);

    /** Adds two rows to Image if there is such a table, one with the data and one with NULL. Leaves the file open. */
    Q_INVOKABLE void hSaveSecurityScopedBookmarks(const QByteArray &data);

    /**
     * The second of the selected columns, in the last row that meets both conditions; else the old mySearchValue4.
     *
     * @param selected  a column, several with commas between them, or "*"; one column alone gives empty data
     *
     * Logs "SQL: " and the statement, then "check 1" once it is valid, and for every row "check 2" and "check 4: " with
     * the data in hexadecimal digits, in groups of four bytes.
     */
    Q_INVOKABLE QByteArray hGetBookMarkedFolders(const QString &table, const QString &columnA, const QString &valueA,
                                                 const QString &columnB, const QString &valueB,
                                                 const QString &selected);

    /** Adds a picture to IMAGES, on the open connection. Does nothing without one, or without the table. */
    Q_INVOKABLE void SaveImagesToSql(const QByteArray &image, const QString &url);

    /** The first picture of IMAGES under that URL, on the open connection; null if there is none. */
    Q_INVOKABLE QByteArray LoadImagesFromSql(const QString &url);

    presets::Connection connection() const { return m_db; }
    platform::SharedTexts presetsArray() const { return m_presets; }
    platform::SharedTexts presetsArrayToPass() const { return m_presetsToPass; }

private:
    bool open();
    void insertPreset(const QStringList &values);
    [[noreturn]] void fail(const QString &description);

    presets::Connection m_db;
    /** Open connections that were replaced by a new one, newest last. */
    std::deque<presets::Connection> m_leftOpen;
    QString m_presetExist;
    QString m_presetValue;
    platform::SharedTexts m_presets;
    platform::SharedTexts m_presetsToPass;
    QVariant m_emptyArray;
    QByteArray m_searchValue;
};
