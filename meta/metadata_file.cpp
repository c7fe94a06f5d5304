#include "meta/metadata_file.h"

#include "meta/field_values.h"

#include "platform/file/atomic_file.h"
#include "platform/file/lent_file.h"
#include "platform/file/regular_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace meta {
namespace {

using platform::LentFile;
using platform::Result;

Result<std::shared_ptr<const LentFile>> opened(const QString &path)
{
    auto file = LentFile::open(path);
    if (!file)
        return tl::unexpected<platform::Error>(file.error());
    return std::make_shared<const LentFile>(std::move(*file));
}

/** The file of that name, or of one that differs only in case; empty if there is none. */
QString existing(const QString &folder, const QString &name)
{
    for (const QString &each :
         {name + QStringLiteral(".xmp"), name + QStringLiteral(".XMP"), name + QStringLiteral(".Xmp")})
        if (const QString path = folder + u'/' + each; platform::regularFile(path))
            return path;
    return {};
}

Result<WrittenFields> writeSidecar(const std::shared_ptr<const LentFile> &picture, const Sidecar &sidecar,
                                   const MetadataWork &work)
{
    const auto old = packetOf(sidecar);
    if (!old)
        return tl::unexpected<platform::Error>(old.error());
    const auto packet = platform::editedSidecar(picture, *old, editFor(work));
    if (!packet)
        return tl::unexpected<platform::Error>(packet.error());
    if (*packet == *old)
        return WrittenFields{false, sidecar.path};
    return platform::replaceFile(sidecar.path, *packet).map([&] { return WrittenFields{true, sidecar.path}; });
}

} // namespace

Sidecar sidecarOf(const QString &picturePath)
{
    const QFileInfo info(picturePath);
    for (const QString &name : {info.fileName(), info.completeBaseName()})
        if (const QString path = existing(info.path(), name); !path.isEmpty() && path != picturePath)
            return {path, true};
    return {picturePath + QStringLiteral(".xmp"), false};
}

Result<QByteArray> packetOf(const Sidecar &sidecar)
{
    constexpr qint64 longest = 16 << 20;
    if (!sidecar.isThere)
        return QByteArray();
    if (const auto file = platform::regularFile(sidecar.path); file && file->bytes > longest)
        return platform::failure(platform::ErrorCode::TooLarge,
                                 QCoreApplication::translate("meta", "%1 is too large").arg(sidecar.path));
    return platform::readFile(sidecar.path);
}

QByteArray packetBeside(const QString &picturePath)
{
    return packetOf(sidecarOf(picturePath)).value_or(QByteArray());
}

Result<QVariantMap> readFields(const std::shared_ptr<const LentFile> &picture, const QByteArray &packet)
{
    QVariantMap map;
    const auto inPlace = platform::hasMetadataInPlace(*picture);
    if (!inPlace)
        return tl::unexpected<platform::Error>(inPlace.error());
    const auto read =
        platform::readMetadata(picture, *inPlace ? QByteArray() : packet, [&](const platform::StatedMetadata &stated) {
            map.insert(QStringLiteral("fields"), fieldMap(stated));
        });
    map.insert(QStringLiteral("inPlace"), *inPlace);
    return read.map([&] { return map; });
}

Result<QVariantMap> readFields(const QString &path)
{
    const auto picture = opened(path);
    if (!picture)
        return tl::unexpected<platform::Error>(picture.error());
    const Sidecar sidecar = sidecarOf(path);
    const auto packet = packetOf(sidecar);
    auto map = readFields(*picture, packet.value_or(QByteArray()));
    if (map && !map->value(QStringLiteral("inPlace")).toBool())
        map->insert(QStringLiteral("sidecar"), sidecar.path);
    return map;
}

Result<WrittenFields> writeFields(const QString &path, const MetadataWork &work)
{
    const auto picture = opened(path);
    if (!picture)
        return tl::unexpected<platform::Error>(picture.error());
    const auto inPlace = platform::hasMetadataInPlace(**picture);
    if (!inPlace)
        return tl::unexpected<platform::Error>(inPlace.error());
    if (!*inPlace)
        return writeSidecar(*picture, sidecarOf(path), work);
    return platform::editMetadata(path, editFor(work)).map([&](const platform::EditedMetadata &edited) {
        return WrittenFields{edited.isChanged, path};
    });
}

Result<WrittenFields> writeRating(const QString &path, int rating)
{
    return writeFields(path, workOfRating(rating));
}

} // namespace meta
