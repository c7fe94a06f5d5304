#include "jobs/result_mark.h"

#include "platform/disk/disk_file_system.h"
#include "platform/file/file_note.h"

namespace jobs {
namespace {

/** What changes when somebody writes to a file. */
QByteArray contentMark(const QString &path)
{
    const auto state = platform::DiskFileSystem().look(path);
    return state ? QByteArray::number(state->bytes) + ' ' + QByteArray::number(state->changedNs) : QByteArray();
}

QByteArray noteFor(const QString &result, const QString &source, const QString &settings)
{
    return settings.toUtf8() + '\n' + contentMark(source) + '\n' + contentMark(result);
}

} // namespace

void markResult(const QString &result, const QString &source, const QString &settings)
{
    platform::attachNote(result, noteFor(result, source, settings));
}

void unmarkResult(const QString &result)
{
    platform::attachNote(result, {});
}

bool isCurrentResult(const QString &path, const QString &source, const QString &settings)
{
    const QByteArray note = platform::attachedNote(path);
    return !note.isEmpty() && note == noteFor(path, source, settings);
}

bool isResultOf(const QString &path, const QString &recipeName)
{
    constexpr int parts = 3;
    const QByteArrayList lines = platform::attachedNote(path).split('\n');
    return lines.size() == parts && lines[0].startsWith(recipeName.toUtf8()) && lines[2] == contentMark(path);
}

bool isResult(const QString &path)
{
    return isResultOf(path, QString());
}

} // namespace jobs
