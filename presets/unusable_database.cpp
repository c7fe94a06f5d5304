#include "presets/unusable_database.h"

#include "platform/disk/folders.h"

#include <QFile>
#include <QFileInfo>

#include <sqlite3.h>

#include <memory>

namespace presets {
namespace {

using Handle = std::unique_ptr<sqlite3, int (*)(sqlite3 *)>;

/** Opened exclusively, so that nobody is creating its tables at this moment; null if that is impossible. */
Handle openedAlone(const QString &path)
{
    constexpr int waitMs = 2000;
    sqlite3 *opened = nullptr;
    const int result = sqlite3_open_v2(QFile::encodeName(path).constData(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    Handle handle(opened, &sqlite3_close);
    if (result != SQLITE_OK)
        return {nullptr, &sqlite3_close};
    sqlite3_busy_timeout(opened, waitMs);
    const bool isAlone = sqlite3_exec(opened, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_OK;
    return isAlone ? std::move(handle) : Handle(nullptr, &sqlite3_close);
}

/** Whether the database can be read and has none of the tables. */
bool hasNoTable(sqlite3 *database)
{
    sqlite3_stmt *compiled = nullptr;
    sqlite3_prepare_v2(database,
                       "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND lower(name) IN "
                       "('presets', 'appresource', 'appbookmarks')",
                       -1, &compiled, nullptr);
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> statement(compiled, &sqlite3_finalize);
    return compiled && sqlite3_step(compiled) == SQLITE_ROW && sqlite3_column_int(compiled, 0) == 0;
}

} // namespace

QString setAsideUnusableDatabase(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return {};
    const Handle database = openedAlone(path);
    if (!database || !hasNoTable(database.get()))
        return {};
    constexpr int mostNumbers = 1000;
    for (int number = 1; number < mostNumbers; ++number) {
        const QString aside = QStringLiteral("%1.unusable-%2").arg(path).arg(number);
        const std::error_code error = platform::renameToNew(path, aside);
        if (!error)
            return aside;
        if (error != std::errc::file_exists)
            return {};
    }
    return {};
}

} // namespace presets
