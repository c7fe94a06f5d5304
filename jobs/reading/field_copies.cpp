#include "jobs/reading/field_copies.h"

#include "jobs/names.h"
#include "jobs/reading/undo_text.h"
#include "meta/metadata_file.h"
#include "platform/imageio/source/picture_facts.h"
#include "text/token_values.h"

namespace jobs {
namespace {

using platform::LentFile;
using platform::Result;
using File = std::shared_ptr<const LentFile>;

QString key(const char *name)
{
    return QString::fromLatin1(name);
}

AnswerMessage failed(const QString &problem)
{
    AnswerMessage answer;
    answer.problem = problem;
    return answer;
}

QVariantMap fieldValues(const File &picture, const QByteArray &packet)
{
    const auto read = meta::readFields(picture, packet);
    return read ? read->value(key("fields")).toMap() : QVariantMap();
}

AnswerMessage reverted(const File &picture, const File &copy, const File &copyToRead, const QString &text)
{
    const auto undo = pictureUndo(text);
    if (!undo)
        return failed(QStringLiteral("revert"));
    if (!undo->before.isEmpty() && platform::digestOf(*picture) == undo->before)
        return {}; // the edit never took its place, or was reverted already
    const auto done = platform::revertMetadata(picture, copy->descriptor(), copyToRead, undo->splices, undo->digest);
    AnswerMessage answer = failed(done ? QString() : done.error().message);
    answer.values.insert(key("changes"), bool(done));
    return answer;
}

AnswerMessage editedCopy(const File &picture, const File &copy, const File &copyToRead, const meta::MetadataWork &work)
{
    const auto edited = platform::editMetadata(picture, copy->descriptor(), copyToRead, meta::editFor(work));
    if (!edited)
        return failed(edited.error().message);
    AnswerMessage answer;
    answer.values = {{key("changes"), edited->isChanged}};
    if (edited->isChanged) {
        answer.values.insert(key("undo"), undoText(PictureUndo{edited->undo, platform::digestOf(*copyToRead),
                                                               platform::digestOf(*picture)}));
        answer.values.insert(key("after"), fieldValues(copyToRead, {}));
    }
    return answer;
}

AnswerMessage editedPacket(const File &picture, const QByteArray &packet, const meta::MetadataWork &work)
{
    const auto edited = platform::editedSidecar(picture, packet, meta::editFor(work));
    if (!edited)
        return failed(edited.error().message);
    AnswerMessage answer;
    answer.values = {{key("changes"), *edited != packet}, {key("packet"), *edited}};
    answer.values.insert(key("after"), fieldValues(picture, *edited));
    return answer;
}

} // namespace

AnswerMessage fieldsOf(const File &picture, const QVariantMap &values)
{
    const auto read = meta::readFields(picture, values.value(key("packet")).toByteArray());
    AnswerMessage answer = failed(read ? QString() : read.error().message);
    answer.values = read.value_or(QVariantMap());
    return answer;
}

AnswerMessage fieldsCopy(const File &picture, const File &copy, const File &copyToRead, const QVariantMap &values)
{
    if (!copy || !copyToRead)
        return failed(QStringLiteral("copy"));
    const QVariantMap map = values.value(key("work")).toMap();
    if (map.contains(key("revert")))
        return reverted(picture, copy, copyToRead, map.value(key("revert")).toString());
    const auto work = meta::workFrom(map);
    const auto inPlace = platform::hasMetadataInPlace(*picture);
    if (!work || !inPlace)
        return failed(work ? inPlace.error().message : work.error().message);
    const QByteArray packet = values.value(key("packet")).toByteArray();
    const QVariantMap before = fieldValues(picture, packet);
    AnswerMessage answer =
        *inPlace ? editedCopy(picture, copy, copyToRead, *work) : editedPacket(picture, packet, *work);
    answer.values.insert(key("before"), before);
    return answer;
}

} // namespace jobs
