#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>
#include <QTemporaryDir>

#include <sqlite3.h>

/** A separate data folder for the presets database, and a look at the file past the services. */
class PresetStore
{
public:
    PresetStore() { qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path())); }

    QString home() const { return m_home.path(); }
    QString folder() const { return m_home.filePath(QStringLiteral("BrelmarkCom")); }
    QString path() const { return m_home.filePath(QStringLiteral("BrelmarkCom/QuorlinPS.sql")); }

    QByteArray bytes() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void write(const QByteArray &bytes) const
    {
        QDir().mkpath(folder());
        QFile file(path());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("The database file cannot be written");
    }

    /** All fields of all rows, row by row, with "NULL" for NULL; "error: ..." when the statement fails. */
    QStringList sql(const QByteArray &statement) const { return sqlIn(path(), statement); }

    static QStringList sqlIn(const QString &path, const QByteArray &statement)
    {
        QStringList fields;
        sqlite3 *db = nullptr;
        sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_busy_timeout(db, 5000);
        const auto add = [](void *list, int count, char **values, char **) {
            for (int i = 0; i < count; ++i)
                static_cast<QStringList *>(list)->append(values[i] ? QString::fromUtf8(values[i])
                                                                   : QStringLiteral("NULL"));
            return 0;
        };
        if (sqlite3_exec(db, statement.constData(), add, &fields, nullptr) != SQLITE_OK)
            fields.append(QStringLiteral("error: ") + QString::fromUtf8(sqlite3_errmsg(db)));
        sqlite3_close(db);
        return fields;
    }

    /** Everything that is in the file, as statements that would make it again: for "nothing has changed". */
    QStringList everything() const
    {
        QStringList all = sql("SELECT type, name, tbl_name, sql FROM sqlite_schema ORDER BY name");
        for (const QString &table : sql("SELECT name FROM sqlite_schema WHERE type = 'table' ORDER BY name"))
            all += QStringList{table} + sql("SELECT rowid, * FROM \"" + table.toUtf8() + "\" ORDER BY rowid");
        return all;
    }

private:
    QTemporaryDir m_home;
};

/** 62 values of which the first three are given; the rest are "value 3" to "value 61". */
inline QStringList presetRow(const QString &name, const QString &process, const QString &action)
{
    QStringList row = {name, process, action};
    for (int i = 3; i < 62; ++i)
        row.append(QStringLiteral("value %1").arg(i));
    return row;
}
