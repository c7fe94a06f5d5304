#include "files/finishing/put_in_place.h"

#include "platform/disk/file_system.h"
#include "platform/disk/item_identity.h"
#include "platform/foundation/paths.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace files {

namespace {

PlaceResult failed(const QString &to, const std::error_code &error)
{
    return {PlaceOutcome::Failed, QCoreApplication::translate("files::FileService", "%1 cannot be written: %2")
                                      .arg(QFileInfo(to).fileName(), QString::fromLocal8Bit(error.message().c_str()))};
}

PlaceResult resultOf(const QString &to, const std::error_code &error)
{
    if (!error)
        return {PlaceOutcome::Placed, {}};
    return error == std::errc::file_exists ? PlaceResult{PlaceOutcome::Taken, {}} : failed(to, error);
}

bool isKnown(const std::optional<platform::ItemState> &item, const QString &known)
{
    return item && platform::identityOf(*item) == known;
}

} // namespace

PlaceResult placeFile(platform::FileSystem &disk, const QString &from, const QString &to)
{
    return resultOf(to, disk.rename(from, to));
}

PlaceResult placeFileInsteadOf(platform::FileSystem &disk, const QString &from, const QString &to, const QString &known)
{
    if (!platform::canBeAPath(from) || !platform::canBeAPath(to))
        return failed(to, std::make_error_code(std::errc::no_such_file_or_directory));
    const auto old = disk.look(to);
    if (!old)
        return placeFile(disk, from, to);
    const bool isFile = old->kind == platform::ItemKind::File;
    const bool isReplaceable = isFile || old->kind == platform::ItemKind::Link;
    if (!isReplaceable || !isKnown(old, known))
        return {PlaceOutcome::Taken, {}};
    if (isFile)
        disk.copyPermissions(to, from);
    const std::error_code swapped = disk.exchange(from, to);
    if (swapped == std::errc::no_such_file_or_directory)
        return placeFile(disk, from, to);
    // Checking first, as above, is all that can be done there.
    if (swapped == std::errc::operation_not_supported)
        return resultOf(to, disk.replace(from, to));
    if (swapped)
        return failed(to, swapped);
    // The replaced file is available now, and is put back if it is not the intended one.
    if (!isKnown(disk.look(from), known)) {
        const std::error_code back = disk.exchange(from, to);
        return back ? failed(to, back) : PlaceResult{PlaceOutcome::Taken, {}};
    }
    (void)disk.remove(from);
    return {PlaceOutcome::Placed, {}};
}

} // namespace files
