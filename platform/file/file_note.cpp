#include "platform/file/file_note.h"
#include "platform/foundation/paths.h"

#include <sys/xattr.h>

namespace platform {
namespace {

constexpr const char *attribute = "user.quorlin.result";

} // namespace

bool attachNote(const QString &path, const QByteArray &note)
{
    return ::lsetxattr(encodedPath(path).constData(), attribute, note.constData(), size_t(note.size()), 0) == 0;
}

QByteArray attachedNote(const QString &path)
{
    constexpr qsizetype longest = 4096;
    QByteArray note(longest, '\0');
    const ssize_t length = ::lgetxattr(encodedPath(path).constData(), attribute, note.data(), size_t(note.size()));
    note.resize(qMax<qsizetype>(length, 0));
    return note;
}

} // namespace platform
