#include "platform/desktop/tags.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <sys/xattr.h>

namespace platform {
namespace {

constexpr const char *attribute = "user.xdg.tags";

/** A comma separates tags, even one inside a tag. */
QStringList plainTags(const QString &text)
{
    QStringList tags;
    for (const QString &tag : text.split(u','))
        if (!tag.trimmed().isEmpty())
            tags.append(tag.trimmed());
    tags.removeDuplicates();
    return tags;
}

} // namespace

Result<void> setTags(const QString &path, const QStringList &tags)
{
    const QByteArray name = QFile::encodeName(path);
    const QByteArray text = plainTags(tags.join(u',')).join(u',').toUtf8();
    const int failed = text.isEmpty()
                           ? ::removexattr(name.constData(), attribute)
                           : ::setxattr(name.constData(), attribute, text.constData(), size_t(text.size()), 0);
    if (failed == 0 || (text.isEmpty() && errno == ENODATA))
        return {};
    return failure(ErrorCode::WriteFailed,
                   QCoreApplication::translate("platform", "The tags of %1 could not be written").arg(path));
}

QStringList tagsOf(const QString &path)
{
    constexpr qsizetype longest = 65536;
    QByteArray text(longest, Qt::Uninitialized);
    const ssize_t size = ::getxattr(QFile::encodeName(path).constData(), attribute, text.data(), size_t(text.size()));
    return size > 0 ? plainTags(QString::fromUtf8(text.constData(), size)) : QStringList();
}

} // namespace platform
