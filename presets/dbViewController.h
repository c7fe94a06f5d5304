#pragma once

#include "platform/values/shared_texts.h"
#include "presets/database.h"

#include <QObject>
#include <QVariant>

#include <deque>

/**
 * The user's presets: one database file, its tables, and what scripts read from it and write to it.
 *
 * Every operation that needs the file opens it again and, as a rule, closes it before it returns; the ones that do not say so.
 * An object keeps its last results in its fields and answers with them when there is no new one. Main thread only.
 *
 * Names and values are pasted into statements as they stand. A value with a single quote or a NUL makes its statement invalid,
 * and so does any name or value that would turn the statement into something else than it was meant to be. Every change is
 * atomic: after a crash at any moment it happened or it did not.
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
    /** The rows of the last query, and the list that was handed out for them. */
    Q_PROPERTY(platform::SharedTexts myPresetsArray READ presetsArray)
    Q_PROPERTY(platform::SharedTexts myPresetsArrayToPass READ presetsArrayToPass)
    /** Not used. */
    Q_PROPERTY(QVariant myEmptyArray MEMBER m_emptyArray)
    /** The last value that hGetBookMarkedFolders read; null before the first. */
    Q_PROPERTY(QByteArray mySearchValue4 MEMBER m_searchValue)

public:
    Q_INVOKABLE explicit dbViewController(QObject *parent = nullptr);

    Q_INVOKABLE void setMyPresetValueStr(const QString &value) { m_presetValue = value; }

    /** The path of the database file, BrelmarkCom/QuorlinPS.sql in the user's data folder. Makes the folder; says no error. */
    Q_INVOKABLE QString dbFilePath() const;

    /** Opens the file, which is made empty if it is missing, and leaves it open. */
    Q_INVOKABLE void openmyPresetsDb();

    /** Makes a table on the connection that is open and leaves it open. A table that is there stays as it is. */
    Q_INVOKABLE void createTableNamed(const QString &table, const QStringList &names);

    /** Adds a row, also where the same is there already, and leaves the file open. */
    Q_INVOKABLE void insertRecordIntoTableNamed(const QString &table, const QStringList &names,
                                                const QStringList &values);

    /** Does nothing. */
    Q_INVOKABLE void creatTableIfNotExist() {}

    /**
     * Makes the file with its three tables, Presets, AppResource and AppBookmarks, and one row in each of the last two.
     * A file that is there is left as it is, whatever is in it.
     */
    Q_INVOKABLE void linkToPresetsDB();

    /** Adds a row to Presets: its name, process, action and 59 more values. The three are the same but for their callers. */
    Q_INVOKABLE void insertSortingPresetToDB01(const QStringList &values);
    Q_INVOKABLE void insertHTMLPresetToDB01(const QStringList &values);
    Q_INVOKABLE void insertSortingPresetToDB02(const QStringList &values);

    /** Adds the sample row to Presets and leaves the file open. */
    Q_INVOKABLE void insertSortingPresetToDB();

    /** Reads a table to its end and keeps nothing of it. */
    Q_INVOKABLE void getAllRowsFromTableNamed(const QString &table);

    /** Field 0 of the last row that matches; else myPresetExist as it was. */
    Q_INVOKABLE QString checkPresetNameFromTableNamed(const QString &table, const QString &column,
                                                      const QString &value);

    /**
     * The rows that match, each as its 62 fields with "|" between them, in the order of their IDs.
     *
     * @return a new list where rows match. Where none does, the list of the last query that found rows, emptied for whoever
     *         still has it; where the query fails, that list as it is. Null if no query found rows yet.
     */
    Q_INVOKABLE platform::SharedTexts checkForActionType(const QString &table, const QString &column,
                                                         const QString &value);

    /** Removes the rows that match. "preset not found" for an invalid statement; else, also where the file cannot be opened, myPresetExist
     * as it was. */
    Q_INVOKABLE QString removePresetFromDatabase(const QString &table, const QString &column, const QString &value);

    /** Adds two rows to Image where there is such a table, one with the data and one with NULL. Leaves the file open. */
    Q_INVOKABLE void hSaveSecurityScopedBookmarks(const QByteArray &data);

    /**
     * The second of the selected columns, in the last row that meets both conditions; else mySearchValue4 as it was.
     *
     * @param selected  a column, several with commas between them, or "*"; one column alone gives empty data
     *
     * Logs "SQL: " and the statement, then "check 1" once it is valid, and for every row "check 2" and "check 4: " with
     * the data in hexadecimal digits, in groups of four bytes.
     */
    Q_INVOKABLE QByteArray hGetBookMarkedFolders(const QString &table, const QString &columnA, const QString &valueA,
                                                 const QString &columnB, const QString &valueB,
                                                 const QString &selected);

    /** Adds a picture to IMAGES, on the connection that is open. Nothing happens without one, or without the table. */
    Q_INVOKABLE void SaveImagesToSql(const QByteArray &image, const QString &url);

    /** The first picture of IMAGES under that URL, on the connection that is open; null if there is none. */
    Q_INVOKABLE QByteArray LoadImagesFromSql(const QString &url);

    presets::Connection connection() const { return m_db; }
    platform::SharedTexts presetsArray() const { return m_presets; }
    platform::SharedTexts presetsArrayToPass() const { return m_presetsToPass; }

private:
    bool open();
    void insertPreset(const QStringList &values);
    [[noreturn]] void fail(const QString &description);

    presets::Connection m_db;
    /** Connections that a new one took the place of while they were open, the newest last. */
    std::deque<presets::Connection> m_leftOpen;
    QString m_presetExist;
    QString m_presetValue;
    platform::SharedTexts m_presets;
    platform::SharedTexts m_presetsToPass;
    QVariant m_emptyArray;
    QByteArray m_searchValue;
};
