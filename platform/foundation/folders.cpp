#include "platform/foundation/folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUuid>

#include <cerrno>
#include <cstdio>
#include <filesystem>

#include <fcntl.h>

namespace platform {
namespace {

namespace fs = std::filesystem;

fs::path native(const QString &path)
{
    return fs::path(QFile::encodeName(path).toStdString());
}

QString because(const std::error_code &error)
{
    return QString::fromLocal8Bit(error.message().c_str());
}

/** A name beside @p target that nobody uses, hidden while the copy grows. */
fs::path besideOf(const fs::path &target)
{
    const std::string tag = QUuid::createUuid().toString(QUuid::Id128).left(12).toStdString();
    return target.parent_path() / ("." + target.filename().string() + "." + tag);
}

/** Renames without ever replacing; file systems that cannot promise it are asked first. */
bool renameToNew(const fs::path &from, const fs::path &to, std::error_code &error)
{
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS) {
        error = std::error_code(errno, std::generic_category());
        return false;
    }
    if (fs::exists(fs::symlink_status(to, error))) {
        error = std::make_error_code(std::errc::file_exists);
        return false;
    }
    fs::rename(from, to, error);
    return !error;
}

} // namespace

QString applicationSupportFolder()
{
    const QString said = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::cleanPath(said.startsWith(u'/') ? said : QDir::homePath() + QStringLiteral("/.local/share"));
}

bool itemExists(const QString &path)
{
    return QFileInfo::exists(path);
}

bool folderExists(const QString &path)
{
    return QFileInfo(path).isDir();
}

Result<void> makeFolder(const QString &path)
{
    std::error_code error;
    fs::create_directories(native(path), error);
    // Some libraries report an error for a path that ends in "/" although the folder was made.
    if (!folderExists(path))
        return failure(ErrorCode::WriteFailed,
                       QStringLiteral("Cannot make the folder %1: %2").arg(path, because(error)));
    return {};
}

Result<void> removeItem(const QString &path)
{
    std::error_code error;
    const std::uintmax_t count = fs::remove_all(native(path), error);
    if (error)
        return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot remove %1: %2").arg(path, because(error)));
    if (count == 0)
        return failure(ErrorCode::NotFound, QStringLiteral("Cannot remove %1: there is nothing").arg(path));
    return {};
}

Result<void> copyItem(const QString &from, const QString &to)
{
    const fs::path source = native(from);
    const fs::path target = native(to);
    const fs::path beside = besideOf(target);
    std::error_code error;
    if (!fs::exists(fs::symlink_status(source, error)))
        return failure(ErrorCode::NotFound, QStringLiteral("Cannot copy %1: there is nothing").arg(from));
    if (fs::exists(fs::symlink_status(target, error)))
        return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot copy to %1: something is there").arg(to));
    fs::copy(source, beside, fs::copy_options::recursive | fs::copy_options::copy_symlinks, error);
    if (!error && renameToNew(beside, target, error))
        return {};
    const QString reason = because(error);
    std::error_code ignored;
    fs::remove_all(beside, ignored);
    return failure(ErrorCode::WriteFailed, QStringLiteral("Cannot copy %1 to %2: %3").arg(from, to, reason));
}

} // namespace platform
