#include "platform/file/living_process.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include <unistd.h>

namespace platform {
namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().trimmed() : QByteArray();
}

/**
 * Empty if there is no such process. The name before it is in brackets and may contain anything, including brackets.
 */
QString startOf(const QString &number)
{
    constexpr qsizetype startAfterName = 19;
    const QByteArray status = contentOf(QStringLiteral("/proc/%1/stat").arg(number));
    const QList<QByteArray> values = status.mid(status.lastIndexOf(')') + 2).split(' ');
    return values.size() > startAfterName ? QString::fromLatin1(values[startAfterName]) : QString();
}

QString namespaceOfProcesses()
{
    QString name = QFile::symLinkTarget(QStringLiteral("/proc/self/ns/pid"));
    name = QFileInfo(name).fileName();
    return name.remove(QStringLiteral("pid:[")).remove(u']');
}

} // namespace

QString processMark()
{
    const QString number = QString::number(::getpid());
    const QString boot = QString::fromLatin1(contentOf(QStringLiteral("/proc/sys/kernel/random/boot_id")));
    return QStringList({boot, namespaceOfProcesses(), number, startOf(number)}).join(u'/');
}

bool mayBeLiving(const QString &mark)
{
    const QStringList one = mark.split(u'/');
    const QStringList own = processMark().split(u'/');
    if (one.size() != own.size() || one[0] != own[0])
        return false;
    return one[1] != own[1] || (!one[3].isEmpty() && startOf(one[2]) == one[3]);
}

} // namespace platform
