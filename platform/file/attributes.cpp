#include "platform/file/attributes.h"

#include <QByteArray>
#include <QList>

#include <sys/xattr.h>

namespace platform {
namespace {

ssize_t readNames(const AttributedItem &item, char *names, size_t size)
{
    return item.path ? ::llistxattr(item.path, names, size) : ::flistxattr(item.descriptor, names, size);
}

ssize_t readValue(const AttributedItem &item, const char *name, char *value, size_t size)
{
    return item.path ? ::lgetxattr(item.path, name, value, size) : ::fgetxattr(item.descriptor, name, value, size);
}

void copyAttribute(const AttributedItem &source, const AttributedItem &target, const char *name)
{
    const ssize_t size = readValue(source, name, nullptr, 0);
    if (size < 0)
        return;
    QByteArray value(size, '\0');
    if (readValue(source, name, value.data(), size_t(size)) != size)
        return;
    if (target.path)
        ::lsetxattr(target.path, name, value.constData(), size_t(size), 0);
    else
        ::fsetxattr(target.descriptor, name, value.constData(), size_t(size), 0);
}

} // namespace

void copyAttributes(const AttributedItem &source, const AttributedItem &target)
{
    const ssize_t size = readNames(source, nullptr, 0);
    if (size <= 0)
        return;
    QByteArray names(size, '\0');
    const ssize_t read = readNames(source, names.data(), size_t(size));
    if (read <= 0)
        return;
    const QList<QByteArray> all = names.left(read).split('\0');
    // An access list can remove write permission, so these come last.
    for (const char *kind : {"user.", "system.posix_acl_"})
        for (const QByteArray &name : all)
            if (name.startsWith(kind))
                copyAttribute(source, target, name.constData());
}

void copyAccessList(const AttributedItem &source, const AttributedItem &target)
{
    constexpr const char *list = "system.posix_acl_access";
    if (readValue(source, list, nullptr, 0) > 0)
        copyAttribute(source, target, list);
    else if (target.path)
        ::lremovexattr(target.path, list);
    else
        ::fremovexattr(target.descriptor, list);
}

} // namespace platform
