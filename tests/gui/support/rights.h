#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

/** Who may do what with files, and folders that are shared by means of access lists. */
namespace rights {

/** Of one file: mode, owner, group, and the access list if it has one. */
inline QString of(const QString &path)
{
    struct stat item = {};
    const QByteArray name = QFile::encodeName(path);
    if (::lstat(name.constData(), &item) != 0)
        return QStringLiteral("not there");
    QByteArray list(1024, '\0');
    list.resize(std::max<ssize_t>(
        0, ::getxattr(name.constData(), "system.posix_acl_access", list.data(), size_t(list.size()))));
    return QStringLiteral("%1 %2:%3 %4")
        .arg(item.st_mode, 0, 8)
        .arg(item.st_uid)
        .arg(item.st_gid)
        .arg(QString::fromLatin1(list.toHex()));
}

/** What any program gets that makes a new file in @p folder. */
inline QString ofNewFileIn(const QString &folder)
{
    const QString probe = folder + QStringLiteral("/.probe");
    const int file = ::open(QFile::encodeName(probe).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    ::close(file);
    const QString found = of(probe);
    ::unlink(QFile::encodeName(probe).constData());
    return found;
}

/**
 * Gives a folder a default list: its owner and one more user may do all, its group may read and write, others nothing.
 * @return false where the file system keeps none
 */
inline bool shareByList(const QString &folder)
{
    const QByteArray list = QByteArray::fromHex("02000000"
                                                "01000700ffffffff"
                                                "02000700d2040000"
                                                "04000600ffffffff"
                                                "10000700ffffffff"
                                                "20000000ffffffff");
    return ::setxattr(QFile::encodeName(folder).constData(), "system.posix_acl_default", list.constData(),
                      size_t(list.size()), 0) == 0;
}

/** Gives new files in a folder the group of the folder. */
inline bool shareByGroup(const QString &folder, gid_t group)
{
    const QByteArray name = QFile::encodeName(folder);
    return ::chown(name.constData(), uid_t(-1), group) == 0 && ::chmod(name.constData(), 02775) == 0;
}

/** What new files are not to have, for as long as it lives. */
class Mask
{
public:
    explicit Mask(mode_t mask) : m_before(::umask(mask)) {}
    ~Mask() { ::umask(m_before); }
    Q_DISABLE_COPY_MOVE(Mask)

private:
    mode_t m_before;
};

} // namespace rights
