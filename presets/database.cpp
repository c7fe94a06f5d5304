#include "presets/database.h"

#include "platform/foundation/utf8.h"
#include "presets/guard.h"

#include <QFile>
#include <QtEndian>

#include <sqlite3.h>

#include <array>
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

constexpr int longestWaitMs = 2000;
constexpr int betweenTriesMs = 2;
constexpr qsizetype headerSize = 100;

int ask(void *guard, int action, const char *first, const char *second, const char *database, const char *trigger)
{
    const bool isAllowed = static_cast<Guard *>(guard)->allows({action, first, second, database, trigger});
    return isAllowed ? SQLITE_OK : SQLITE_DENY;
}

/** Retries soon, so that of two processes that write at the same time neither waits for long. */
int waitForOthers(void *, int tries)
{
    if (tries * betweenTriesMs >= longestWaitMs)
        return 0;
    sqlite3_sleep(betweenTriesMs);
    return 1;
}

void switchOff(sqlite3 *handle, std::initializer_list<int> features)
{
    for (const int feature : features)
        sqlite3_db_config(handle, feature, 0, nullptr);
}

/**
 * Features that a file from elsewhere could abuse are switched off, and an unknown column name is never taken for a
 * text.
 */
void restrict(sqlite3 *handle, Guard &guard)
{
    switchOff(handle, {SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW, SQLITE_DBCONFIG_TRUSTED_SCHEMA,
                       SQLITE_DBCONFIG_DQS_DML, SQLITE_DBCONFIG_DQS_DDL, SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION});
    sqlite3_db_config(handle, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_busy_handler(handle, waitForOthers, nullptr);
    sqlite3_set_authorizer(handle, ask, &guard);
}

/**
 * Whether the file is shorter than its own header says. The database notices that for whole pages only; if part of the
 * last page is missing it would write to a page that it read as half zeros. Read through the database's own handle,
 * since closing another one would drop its locks.
 */
bool isShorterThanItSays(sqlite3 *handle)
{
    sqlite3_file *file = nullptr;
    sqlite3_int64 size = 0;
    std::array<uchar, headerSize> header = {};
    if (sqlite3_file_control(handle, "main", SQLITE_FCNTL_FILE_POINTER, &file) != SQLITE_OK || !file->pMethods ||
        file->pMethods->xFileSize(file, &size) != SQLITE_OK ||
        file->pMethods->xRead(file, header.data(), int(header.size()), 0) != SQLITE_OK)
        return false;
    const auto number = [&header](size_t offset) { return qFromBigEndian<quint32>(header.data() + offset); };
    const quint32 pageSize = qFromBigEndian<quint16>(header.data() + 16);
    const bool isPageCountKept = number(24) == number(92);
    return isPageCountKept && size < qint64(number(28)) * (pageSize == 1 ? 65536 : pageSize);
}

/**
 * A write in progress, or an interrupted one that will be rolled back, also leaves a file that is too short for a
 * while.
 */
bool isCutShort(sqlite3 *handle)
{
    const QString path = QFile::decodeName(sqlite3_db_filename(handle, "main"));
    const auto isBeingWritten = [&path] {
        return QFile::exists(path + QStringLiteral("-journal")) || QFile::exists(path + QStringLiteral("-wal"));
    };
    return isShorterThanItSays(handle) && !isBeingWritten() && isShorterThanItSays(handle);
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
    if (!isOpen() || !statement.isSound || (statement.verb != Verb::Select && isCutShort(d->handle)))
        return Prepared();
    sqlite3_stmt *compiled = nullptr;
    const char *tail = nullptr;
    const QByteArray text = statement.text.toUtf8();
    d->guard.expect(statement);
    sqlite3_prepare_v2(d->handle, text.constData(), -1, &compiled, &tail);
    d->guard.endCompiling();
    Prepared prepared(compiled);
    if (hasMore(tail) || !d->guard.sawItsStatement())
        return Prepared();
    return prepared;
}

bool Connection::execute(const Statement &statement) const
{
    // Compiled once for inspection, and again for execution.
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
    const QByteArray column(bytes, sqlite3_column_bytes(m_statement, index));
    // Invalid UTF-8 is read as well as possible; the toolkit's reader would drop U+FEFF at the start of a text.
    const QString text = platform::textFromUtf8(column).value_or(QString::fromUtf8(column));
    return text.isNull() ? QStringLiteral("") : text;
}

QByteArray Prepared::data(int index) const
{
    const auto *bytes = static_cast<const char *>(sqlite3_column_blob(m_statement, index));
    const QByteArray data(bytes, sqlite3_column_bytes(m_statement, index));
    return data.isNull() ? QByteArray("") : data;
}

} // namespace presets
