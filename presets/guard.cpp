#include "presets/guard.h"

#include "presets/names.h"

#include <sqlite3.h>

#include <algorithm>

namespace presets {
namespace {

bool isInternal(const QString &table)
{
    return isSameName(table.left(7), QStringLiteral("sqlite_"));
}

bool isRowNumber(const QString &column)
{
    return isSameName(column, QStringLiteral("rowid")) || isSameName(column, QStringLiteral("oid")) ||
           isSameName(column, QStringLiteral("_rowid_"));
}

} // namespace

void Guard::expect(const Statement &statement)
{
    m_statement = statement;
    m_columnsRead.clear();
    m_sawVerb = false;
    m_isCompiling = true;
}

bool Guard::isOnTable(const Access &access) const
{
    return qstrcmp(access.database, "main") == 0 && isSameName(QString::fromUtf8(access.first), m_statement.table);
}

bool Guard::allowsReading(const Access &access)
{
    if (!isOnTable(access))
        return false;
    m_columnsRead.insert(QString::fromUtf8(access.second));
    return true;
}

bool Guard::isTheVerb(const Access &access) const
{
    switch (m_statement.verb) {
    case Verb::CreateTable:
        return access.action == SQLITE_CREATE_TABLE && isOnTable(access);
    case Verb::Insert:
        return access.action == SQLITE_INSERT && isOnTable(access) && !isInternal(m_statement.table);
    case Verb::Delete:
        return access.action == SQLITE_DELETE && isOnTable(access) && !isInternal(m_statement.table);
    case Verb::Select:
        return access.action == SQLITE_SELECT && (!m_sawVerb || !m_isCompiling); // one, and none inside it
    }
    return false;
}

/** A new table is recorded in the list of tables, and the first one with counted keys creates the list of counters. */
bool Guard::allowsListKeeping(const Access &access) const
{
    if (qstrcmp(access.database, "main") != 0)
        return false;
    if (access.action == SQLITE_CREATE_TABLE)
        return qstrcmp(access.first, "sqlite_sequence") == 0;
    const bool isKeeping =
        access.action == SQLITE_INSERT || access.action == SQLITE_UPDATE || access.action == SQLITE_READ;
    return isKeeping && qstrcmp(access.first, "sqlite_master") == 0;
}

bool Guard::allows(const Access &access)
{
    if (access.trigger)
        return false;
    if (isTheVerb(access)) {
        m_sawVerb = true;
        return true;
    }
    if (m_statement.verb == Verb::CreateTable)
        return allowsListKeeping(access);
    const bool mayRead = m_statement.verb == Verb::Select || m_statement.verb == Verb::Delete;
    return mayRead && access.action == SQLITE_READ && allowsReading(access);
}

bool Guard::sawItsStatement() const
{
    // A query that reads no table is not one of ours.
    if (!m_sawVerb || (m_statement.verb == Verb::Select && m_columnsRead.isEmpty()))
        return false;
    return std::all_of(m_statement.columns.begin(), m_statement.columns.end(), [this](const QString &column) {
        return isRowNumber(column) || std::any_of(m_columnsRead.begin(), m_columnsRead.end(),
                                                  [&](const QString &read) { return isSameName(read, column); });
    });
}

} // namespace presets
