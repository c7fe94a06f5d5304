#pragma once

#include "presets/statements.h"

#include <QByteArray>
#include <QMetaType>

#include <memory>
#include <utility>

struct sqlite3;
struct sqlite3_stmt;

namespace presets {

class Prepared;

/**
 * One connection to the presets database. Copies share it; it is closed by close(), or with the last copy.
 *
 * It runs a statement only if it is what was intended: one statement, of its verb, on its table, reading its columns,
 * with no function, view, trigger, pragma or second table (see docs/decisions/0014). The database rejects anything else
 * while it compiles the statement, as it does any invalid statement. Every change is on the disk when the statement
 * ends, or did not happen. If somebody else is writing to the database, it waits up to two seconds.
 */
class Connection
{
public:
    /** No connection. */
    Connection() = default;

    /** Opens the file, which is created if it is missing. No connection if that fails; a damaged file opens. */
    static Connection open(const QString &path);

    bool isOpen() const;
    bool isNull() const { return !isOpen(); } ///< for the seam
    void close();

    /** Compiles the statement; the result is not valid if that fails or nothing is open. */
    Prepared prepare(const Statement &statement) const;

    /** Compiles and runs a statement to its end. */
    bool execute(const Statement &statement) const;

private:
    struct Private;

    std::shared_ptr<Private> d;
};

/** A compiled statement, released with the object. Must not outlive its connection. */
class Prepared
{
public:
    explicit Prepared(sqlite3_stmt *statement = nullptr) : m_statement(statement) {}
    ~Prepared();
    Prepared(Prepared &&other) noexcept : m_statement(std::exchange(other.m_statement, nullptr)) {}
    Prepared(const Prepared &) = delete;
    Prepared &operator=(const Prepared &) = delete;
    Prepared &operator=(Prepared &&) = delete;

    bool isValid() const { return m_statement != nullptr; }

    /** Sets placeholder @p number, from 1; null is NULL. */
    void bind(int number, const QString &text);
    void bind(int number, const QByteArray &data);

    /** Moves to the next row; false at the end, and if the statement fails or was invalid. */
    bool step();

    /** Result column @p index, from 0; empty for NULL and if there is no such column. */
    QString text(int index) const;
    /** The column's bytes; never null. */
    QByteArray data(int index) const;

private:
    sqlite3_stmt *m_statement;
};

} // namespace presets

Q_DECLARE_METATYPE(presets::Connection)
