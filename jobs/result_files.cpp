#include "jobs/result_files.h"

#include "files/finishing/put_in_place.h"
#include "files/finishing/unfinished_folder.h"
#include "files/items/make_folder.h"
#include "image/recipe/sentence.h"
#include "jobs/result_mark.h"
#include "platform/disk/disk_file_system.h"
#include "platform/disk/item_identity.h"
#include "platform/file/atomic_file.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"

#include <algorithm>

namespace jobs {
namespace {

using platform::Result;

tl::unexpected<platform::Error> unwritten(const QString &folder)
{
    return platform::failure(platform::ErrorCode::WriteFailed, image::sentence("%1 cannot be written to").arg(folder));
}

void takeDateOf(const QString &source, const QString &path)
{
    QFile file(path);
    const auto from = platform::regularFile(source);
    if (from && file.open(QIODevice::ReadWrite))
        file.setFileTime(from->modified, QFileDevice::FileModificationTime);
}

} // namespace

WaitingRooms::~WaitingRooms()
{
    removeAll();
}

void WaitingRooms::removeAll()
{
    for (const auto &[folder, room] : m_rooms)
        files::removeStaging(room);
    m_rooms.clear();
}

void WaitingRooms::letGoOfMany()
{
    constexpr size_t many = 50;
    if (m_rooms.size() > many)
        removeAll();
}

QString WaitingRooms::in(const QString &folder)
{
    QString &room = m_rooms[folder];
    if (room.isEmpty() && files::makeFolder(folder) != files::FolderMade::No) {
        files::sweepStagings(folder);
        room = files::makeStaging(folder);
    }
    return room;
}

ResultFiles::~ResultFiles()
{
    for (const Kept &kept : m_kept)
        QFile::remove(kept.file);
}

Result<void> ResultFiles::keep(int index, const QByteArray &bytes, const OutputPlace &place,
                               const image::RecipeOutput &output)
{
    const QString folder = platform::parentFolder(place.path);
    const QString room = m_rooms.in(folder);
    if (room.isEmpty())
        return unwritten(folder);
    const QString file = room + QString::number(index);
    const auto named = [&](platform::Error error) {
        error.message.replace(file, place.path); // nobody knows the hidden folder
        return error;
    };
    return platform::replaceFile(file, bytes).map_error(named).map([&] {
        if (output.dates == image::FileDates::Keep)
            takeDateOf(m_input.path, file);
        markResult(file, m_input.path, settingsName(m_recipeName, index));
        m_kept.append({index, file, place, output.ifTaken});
    });
}

QList<ResultFiles::Placed> ResultFiles::placeAll(OutputPlaces &places)
{
    const QString own = platform::targetIdentity(m_input.path);
    std::stable_partition(m_kept.begin(), m_kept.end(), [&own](const Kept &kept) {
        return !kept.place.replaces || platform::targetIdentity(kept.place.path) != own;
    });
    QList<Placed> all;
    for (const Kept &kept : m_kept)
        all.append(placed(kept, places));
    m_kept.clear();
    return all;
}

ResultFiles::Placed ResultFiles::placed(const Kept &kept, OutputPlaces &places) const
{
    platform::DiskFileSystem disk;
    QString path = kept.place.path;
    constexpr int mostTries = 100;
    for (int tries = 0; tries < mostTries; ++tries) {
        const QString there = kept.place.replaces ? platform::itemIdentity(path) : QString();
        const files::PlaceResult result = there.isEmpty() ? files::placeFile(disk, kept.file, path)
                                                          : files::placeFileInsteadOf(disk, kept.file, path, there);
        if (result.outcome == files::PlaceOutcome::Placed)
            return {kept.index, path, false, {}};
        if (result.outcome == files::PlaceOutcome::Failed)
            return {kept.index, path, false, result.message};
        if (kept.ifTaken == image::IfTaken::Skip)
            return {kept.index, path, true, {}};
        if (!kept.place.replaces)
            path = places.numbered(kept.place.path);
    }
    return {kept.index, path, false, image::sentence("its name is taken again and again")};
}

} // namespace jobs
