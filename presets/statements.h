#pragma once

#include <QString>
#include <QStringList>

/**
 * The statements of the presets store, letter for letter: arguments are pasted in unchanged. Nothing is escaped, so
 * each statement also records its intention, and the connection runs it only as that.
 */
namespace presets {

enum class Verb { CreateTable, Insert, Select, Delete };

/** A statement's text, and the one change that it was intended for. */
struct Statement
{
    QString text;
    Verb verb = Verb::Select;
    /** The one table that it creates, reads or changes. */
    QString table;
    /** The columns that it names and that the table must therefore have; "*" is not one of them. */
    QStringList columns;
    /** False if a name is invalid, or a quoted name or value would end its quotes: such a statement never runs. */
    bool isSound = true;
};

/** "Create table if not exists '...' (ID INTEGER PRIMARY KEY AUTOINCREMENT, ...);" with the 62 @p columns. */
Statement createTable(const QString &table, const QStringList &columns);

/**
 * "Insert or replace into '...' (...) values (...)", with a space after the second comma of each list and nowhere else.
 */
Statement insertRecord(const QString &table, const QStringList &columns, const QStringList &values);

/** "SELECT * FROM ..." */
Statement selectAll(const QString &table);

/** "SELECT * FROM ... WHERE ... = '...'" */
Statement selectWhere(const QString &table, const QString &column, const QString &value);

/** "DELETE FROM ... WHERE ... = '...'" */
Statement deleteWhere(const QString &table, const QString &column, const QString &value);

/** A column and the value that it must have. */
struct Condition
{
    QString column;
    QString value;
};

/** "SELECT ... FROM ... WHERE ... = '...' AND ... = '...'"; @p selected is one column, several with commas, or "*". */
Statement selectColumns(const QString &selected, const QString &table, const Condition &a, const Condition &b);

/** "insert into Image(Image)values(?)" */
Statement insertImage();

/** "INSERT INTO IMAGES (URL, IMAGE) VALUES (?, ?)" */
Statement insertImageOfUrl();

/** "SELECT IMAGE FROM IMAGES WHERE URL = '...'" */
Statement selectImageOfUrl(const QString &url);

} // namespace presets
