#include "platform/foundation/paths.h"

#include <QDir>

namespace platform {
namespace {

/** Where the dot of the extension stands in @p name, or -1. A name that begins with its only dot has no extension. */
qsizetype extensionDot(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 ? dot : -1;
}

} // namespace

QString lastPathComponent(const QString &path)
{
    qsizetype end = path.size();
    while (end > 1 && path[end - 1] == u'/')
        --end;
    if (end == 1 && path[0] == u'/')
        return path.left(1);
    const qsizetype slash = path.lastIndexOf(u'/', end - path.size() - 1);
    return path.mid(slash + 1, end - slash - 1);
}

QString pathExtension(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = extensionDot(name);
    return dot < 0 ? QString() : name.mid(dot + 1);
}

QString baseName(const QString &path)
{
    const QString name = lastPathComponent(path);
    const qsizetype dot = extensionDot(name);
    return dot < 0 ? name : name.left(dot);
}

QString withoutTrailingSlashes(const QString &path)
{
    qsizetype end = path.size();
    while (end > 1 && path[end - 1] == u'/')
        --end;
    return path.left(end);
}

bool canBeAPath(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar(u'\0')) && path.isValidUtf16();
}

QString parentFolder(const QString &path)
{
    const QString item = withoutTrailingSlashes(path);
    const qsizetype slash = item.lastIndexOf(u'/');
    return slash < 0 ? QString() : withoutTrailingSlashes(item.left(slash + 1));
}

QString joinedPath(const QString &folder, const QString &name)
{
    if (folder.isEmpty() || name.isEmpty())
        return folder + name;
    qsizetype start = 0;
    while (start < name.size() && name[start] == u'/')
        ++start;
    const QString front = withoutTrailingSlashes(folder);
    return (front == QStringLiteral("/") ? front : front + u'/') + name.mid(start);
}

QString applicationSupportFolder()
{
    const QString said = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::cleanPath(said.startsWith(u'/') ? said : QDir::homePath() + QStringLiteral("/.local/share"));
}

} // namespace platform
