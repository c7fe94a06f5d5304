#include "presets/statements.h"

#include "presets/layout.h"
#include "presets/names.h"

#include <algorithm>

namespace presets {
namespace {

constexpr int partsOfTable = 2;
constexpr int partsOfColumn = 3;

/** How a null text is formatted. */
QString written(const QString &text)
{
    return text.isNull() ? QStringLiteral("(null)") : text;
}

QString quoted(const QString &text)
{
    return u'\'' + written(text) + u'\'';
}

bool allStayInsideQuotes(const QStringList &texts)
{
    return std::all_of(texts.begin(), texts.end(), staysInsideQuotes);
}

/** 'a','b', 'c','d','e': the space after the second comma is part of the fixed text. */
QString quotedList(const QStringList &texts)
{
    QString list;
    for (qsizetype i = 0; i < texts.size(); ++i) {
        if (i > 0)
            list += i == 2 ? QStringLiteral(", ") : QStringLiteral(",");
        list += quoted(texts.at(i));
    }
    return list;
}

/** A statement on an unquoted table; not sound if that is no name. */
Statement onTable(Verb verb, const QString &table)
{
    const std::optional<QString> name = oneName(table, partsOfTable);
    Statement statement;
    statement.verb = verb;
    statement.table = name.value_or(QString());
    statement.isSound = name.has_value();
    return statement;
}

/** Adds one condition to @p statement, and returns its text. */
QString withCondition(Statement &statement, const Condition &condition)
{
    const std::optional<QString> name = oneName(condition.column, partsOfColumn);
    statement.columns.append(name.value_or(QString()));
    statement.isSound = statement.isSound && name && staysInsideQuotes(condition.value);
    return written(condition.column) + QStringLiteral(" = ") + quoted(condition.value);
}

} // namespace

Statement createTable(const QString &table, const QStringList &columns)
{
    QStringList items;
    for (qsizetype i = 0; i < columns.size(); ++i)
        items.append(quoted(columns.at(i)) + u' ' + declaredType(int(i)));
    Statement statement;
    statement.verb = Verb::CreateTable;
    statement.table = written(table);
    statement.isSound = staysInsideQuotes(table) && allStayInsideQuotes(columns);
    statement.text = QStringLiteral("Create table if not exists ") + quoted(table) +
                     QStringLiteral(" (ID INTEGER PRIMARY KEY AUTOINCREMENT,") + items.join(QStringLiteral(", ")) +
                     QStringLiteral(");");
    return statement;
}

Statement insertRecord(const QString &table, const QStringList &columns, const QStringList &values)
{
    Statement statement;
    statement.verb = Verb::Insert;
    statement.table = written(table);
    statement.isSound = staysInsideQuotes(table) && allStayInsideQuotes(columns) && allStayInsideQuotes(values);
    statement.text = QStringLiteral("Insert or replace into ") + quoted(table) + QStringLiteral(" (") +
                     quotedList(columns) + QStringLiteral(") values (") + quotedList(values) + u')';
    return statement;
}

Statement selectAll(const QString &table)
{
    Statement statement = onTable(Verb::Select, table);
    statement.text = QStringLiteral("SELECT * FROM ") + written(table);
    return statement;
}

Statement selectWhere(const QString &table, const QString &column, const QString &value)
{
    Statement statement = selectAll(table);
    statement.text += QStringLiteral(" WHERE ") + withCondition(statement, {column, value});
    return statement;
}

Statement deleteWhere(const QString &table, const QString &column, const QString &value)
{
    Statement statement = onTable(Verb::Delete, table);
    statement.text = QStringLiteral("DELETE FROM ") + written(table) + QStringLiteral(" WHERE ") +
                     withCondition(statement, {column, value});
    return statement;
}

Statement selectColumns(const QString &selected, const QString &table, const Condition &a, const Condition &b)
{
    Statement statement = onTable(Verb::Select, table);
    const std::optional<QStringList> columns = columnList(selected);
    statement.isSound = statement.isSound && columns;
    statement.columns = columns.value_or(QStringList());
    statement.columns.removeAll(QStringLiteral("*"));
    const QString first = withCondition(statement, a);
    const QString second = withCondition(statement, b);
    statement.text = QStringLiteral("SELECT ") + written(selected) + QStringLiteral(" FROM ") + written(table) +
                     QStringLiteral(" WHERE ") + first + QStringLiteral(" AND ") + second;
    return statement;
}

Statement insertImage()
{
    Statement statement = onTable(Verb::Insert, QStringLiteral("Image"));
    statement.text = QStringLiteral("insert into Image(Image)values(?)");
    return statement;
}

Statement insertImageOfUrl()
{
    Statement statement = onTable(Verb::Insert, QStringLiteral("IMAGES"));
    statement.text = QStringLiteral("INSERT INTO IMAGES (URL, IMAGE) VALUES (?, ?)");
    return statement;
}

Statement selectImageOfUrl(const QString &url)
{
    Statement statement = onTable(Verb::Select, QStringLiteral("IMAGES"));
    statement.text =
        QStringLiteral("SELECT IMAGE FROM IMAGES WHERE ") + withCondition(statement, {QStringLiteral("URL"), url});
    return statement;
}

} // namespace presets
