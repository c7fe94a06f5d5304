#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

/** Becomes a user who owns nothing for as long as it lives, since nothing is forbidden to root. */
class Nobody
{
public:
    Nobody() : m_wasRoot(geteuid() == 0) { m_ready = !m_wasRoot || seteuid(65534) == 0; }
    ~Nobody()
    {
        if (m_wasRoot && seteuid(0) != 0)
            qFatal("cannot become root again");
    }
    Q_DISABLE_COPY_MOVE(Nobody)
    bool ready() const { return m_ready; }

private:
    bool m_wasRoot;
    bool m_ready = false;
};

/** A folder of a test's own with short ways to fill it and to look into it. Names are relative to it. */
class ScratchFolder
{
public:
    ScratchFolder() = default;
    /** In another place than that of temporary files, such as "/dev/shm". */
    explicit ScratchFolder(const QString &place) : m_folder(place + QStringLiteral("/test-XXXXXX")) {}

    QString path(const QString &name = QString()) const
    {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }
    QString path(const char *name) const { return path(QString::fromUtf8(name)); }
    bool isThere(const char *name) const
    {
        const QFileInfo info(path(name));
        return info.exists() || info.isSymLink();
    }
    bool write(const QString &name, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }
    bool write(const char *name, const QByteArray &bytes) const { return write(QString::fromUtf8(name), bytes); }
    QByteArray read(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("nothing to read");
    }
    QByteArray read(const char *name) const { return read(QString::fromUtf8(name)); }
    /** What a link says, letter for letter. */
    QByteArray linkText(const char *name) const
    {
        QByteArray text(4096, '\0');
        const auto size = ::readlink(QFile::encodeName(path(name)).constData(), text.data(), size_t(text.size()));
        return size < 0 ? QByteArray("no link") : text.left(size);
    }
    bool link(const QByteArray &target, const char *name) const
    {
        return ::symlink(target.constData(), QFile::encodeName(path(name)).constData()) == 0;
    }
    bool allow(const char *name, mode_t mode) const
    {
        return ::chmod(QFile::encodeName(path(name)).constData(), mode) == 0;
    }
    /** Every name in a folder, hidden ones too. */
    QStringList names(const char *folder = "") const
    {
        return QDir(path(folder)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

private:
    QTemporaryDir m_folder;
};

/** True where two folders are on different file systems. */
inline bool areApart(const QString &a, const QString &b)
{
    struct stat one = {};
    struct stat other = {};
    return ::stat(QFile::encodeName(a).constData(), &one) == 0 &&
           ::stat(QFile::encodeName(b).constData(), &other) == 0 && one.st_dev != other.st_dev;
}
