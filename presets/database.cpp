#include "presets/database.h"

#include "presets/guard.h"

#include <QFile>

#include <sqlite3.h>

#include <utility>

namespace presets {

struct Connection::Private
{
    ~Private() { close(); }
    Private() = default;
    Private(const Private &) = delete;
    Private &operator=(const Private &) = delete;

    void close()
    {
        sqlite3_close(handle);
        handle = nullptr;
    }

    sqlite3 *handle = nullptr;
    Guard guard;
};

namespace {

constexpr int longestWaitMs = 1000;

int ask(void *guard, int action, const char *first, const char *second, const char *database, const char *trigger)
{
    const bool isAllowed = static_cast<Guard *>(guard)->allows({action, first, second, database, trigger});
    return isAllowed ? SQLITE_OK : SQLITE_DENY;
}

void switchOff(sqlite3 *handle, std::initializer_list<int> features)
{
    for (const int feature : features)
        sqlite3_db_config(handle, feature, 0, nullptr);
}

/** What a file from elsewhere may bring along is switched off, and a name that is no column is never taken for a text. */
void restrict(sqlite3 *handle, Guard &guard)
{
    switchOff(handle, {SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_TRUSTED_SCHEMA,
                       SQLITE_DBCONFIG_DQS_DML, SQLITE_DBCONFIG_DQS_DDL, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION});
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_busy_timeout(handle, longestWaitMs);
    sqlite3_set_authorizer(handle, ask, &guard);
}

bool hasMore(const char *tail)
{
    return tail && !QByteArray(tail).trimmed().isEmpty();
}

} // namespace

Connection Connection::open(const QString &path)
{
    Connection connection;
    connection.d = std::make_shared<Private>();
    if (sqlite3_open(QFile::encodeName(path).constData(), &connection.d->handle) != SQLITE_OK)
        connection.d->close();
    else
        restrict(connection.d->handle, connection.d->guard);
    return connection;
}

bool Connection::isOpen() const
{
    return d && d->handle;
}

void Connection::close()
{
    if (d)
        d->close();
}

Prepared Connection::prepare(const Statement &statement) const
{
    if (!isOpen() || !statement.isSound)
        return Prepared();
    sqlite3_stmt *compiled = nullptr;
    const char *tail = nullptr;
    const QByteArray text = statement.text.toUtf8();
    d->guard.expect(statement);
    sqlite3_prepare_v2(d->handle, text.constData(), -1, &compiled, &tail);
    d->guard.endCompiling();
    Prepared prepared(compiled);
    if (hasMore(tail) || !d->guard.sawItsColumns())
        return Prepared();
    return prepared;
}

bool Connection::execute(const Statement &statement) const
{
    // Compiled once to be judged as a whole, and again to be run.
    if (!prepare(statement).isValid())
        return false;
    d->guard.expect(statement);
    return sqlite3_exec(d->handle, statement.text.toUtf8().constData(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

Prepared::~Prepared()
{
    sqlite3_finalize(m_statement);
}

void Prepared::bind(int number, const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    if (text.isNull())
        sqlite3_bind_null(m_statement, number);
    else
        sqlite3_bind_text64(m_statement, number, bytes.constData(), sqlite3_uint64(bytes.size()), SQLITE_TRANSIENT,
                            SQLITE_UTF8);
}

void Prepared::bind(int number, const QByteArray &data)
{
    if (data.isNull())
        sqlite3_bind_null(m_statement, number);
    else
        sqlite3_bind_blob64(m_statement, number, data.constData(), sqlite3_uint64(data.size()), SQLITE_TRANSIENT);
}

bool Prepared::step()
{
    return m_statement && sqlite3_step(m_statement) == SQLITE_ROW;
}

QString Prepared::text(int index) const
{
    const auto *bytes = reinterpret_cast<const char *>(sqlite3_column_text(m_statement, index));
    const QString text = QString::fromUtf8(bytes, sqlite3_column_bytes(m_statement, index));
    return text.isNull() ? QStringLiteral("") : text;
}

QByteArray Prepared::data(int index) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(m_statement, index));
    const QByteArray data(bytes, sqlite3_column_bytes(m_statement, index));
    return data.isNull() ? QByteArray("") : data;
}

} // namespace presets
