#include "meta/sidecar_metadata.h"

#include "meta/field_values.h"

#include "platform/file/lent_file.h"
#include "platform/imageio/edits/metadata_edit.h"

namespace meta {
namespace {

using Picture = std::shared_ptr<const platform::LentFile>;

/** Only what applies to the sidecar of this picture. */
QMap<QString, QStringList> fieldsOfSidecar(const Picture &picture, const QByteArray &packet)
{
    QMap<QString, QStringList> stated;
    const auto read = platform::readMetadata(picture, packet, [&](const platform::StatedMetadata &metadata) {
        for (const Field &field : fields())
            if (const QStringList texts = fieldValue(field, metadata);
                !metadata.isInPlace() && !metadata.xmp(field.xmp).isEmpty() && !texts.isEmpty())
                stated.insert(field.name, texts);
    });
    return read ? stated : QMap<QString, QStringList>();
}

} // namespace

platform::PictureFacts withSidecar(platform::PictureFacts facts, const Picture &picture, const QByteArray &packet)
{
    if (packet.isEmpty())
        return facts;
    const QString date = fieldsOfSidecar(picture, packet).value(QStringLiteral("dateTaken")).value(0);
    if (const QDateTime taken = platform::statedDate(date); taken.isValid())
        facts.taken = taken;
    return facts;
}

} // namespace meta
