#include "meta/sidecar_metadata.h"

#include "meta/field_edit.h"
#include "meta/field_values.h"
#include "meta/metadata_file.h"

#include "platform/file/lent_file.h"
#include "platform/imageio/edits/changed_metadata.h"
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

MetadataWork workOf(const QMap<QString, QStringList> &stated)
{
    MetadataWork work;
    for (auto field = stated.cbegin(); field != stated.cend(); ++field)
        work.fields.insert(field.key(), FieldEdit{FieldEdit::What::Set, field.value()});
    return work;
}

platform::Result<platform::MetadataChange> changeFor(const Picture &picture, const MetadataWork &work)
{
    platform::Result<platform::MetadataChange> change;
    const platform::MetadataEdit edit = editFor(work);
    const auto read =
        platform::readMetadata(picture, {}, [&](const platform::StatedMetadata &own) { change = edit.change(own); });
    if (!read)
        return tl::unexpected<platform::Error>(read.error());
    return change;
}

} // namespace

platform::ImageSource withSidecar(const platform::ImageSource &source, const Picture &picture, const QByteArray &packet)
{
    const auto stated = packet.isEmpty() ? QMap<QString, QStringList>() : fieldsOfSidecar(picture, packet);
    if (stated.isEmpty())
        return source;
    const auto changed = changeFor(picture, workOf(stated)).and_then([&](const platform::MetadataChange &change) {
        return platform::withChangedMetadata(source, change);
    });
    return changed.value_or(source);
}

platform::Result<platform::ImageSource> openedWithSidecar(const QString &path)
{
    const auto source = platform::ImageSource::open(path);
    const QByteArray packet = source ? packetBeside(path) : QByteArray();
    if (packet.isEmpty())
        return source;
    auto file = platform::LentFile::open(path);
    return file ? withSidecar(*source, std::make_shared<const platform::LentFile>(std::move(*file)), packet) : source;
}

platform::PictureFacts withSidecar(platform::PictureFacts facts, const Picture &picture, const QByteArray &packet)
{
    if (packet.isEmpty())
        return facts;
    const QString date = fieldsOfSidecar(picture, packet).value(QStringLiteral("dateTaken")).value(0);
    if (const QDateTime taken = platform::statedDate(date); taken.isValid())
        facts.taken = taken;
    return facts;
}

platform::PictureFacts factsWithSidecar(const QString &path)
{
    auto file = platform::LentFile::open(path);
    if (!file)
        return platform::pictureFacts(path);
    const auto lent = std::make_shared<const platform::LentFile>(std::move(*file));
    return withSidecar(platform::pictureFacts(lent), lent, packetBeside(path));
}

} // namespace meta
