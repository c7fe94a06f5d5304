#include "jobs/result_files.h"

#include "files/finishing/put_in_place.h"
#include "files/finishing/unfinished_folder.h"
#include "files/items/make_folder.h"
#include "image/recipe/sentence.h"
#include "jobs/result_mark.h"
#include "platform/disk/disk_file_system.h"
#include "platform/disk/folders.h"
#include "platform/disk/item_identity.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

#include <fcntl.h>

namespace jobs {
namespace {

using platform::Result;

/** Of the folder and those above it, the first one that is there and is something else; empty if none is. */
QString noFolderIn(const QString &folder)
{
    QString path = folder;
    while (!platform::isTaken(path) && path != platform::parentFolder(path))
        path = platform::parentFolder(path);
    return platform::folderExists(path) ? QString() : path;
}

tl::unexpected<platform::Error> unwritten(const QString &folder)
{
    const QString other = noFolderIn(folder);
    return platform::failure(platform::ErrorCode::WriteFailed,
                             other.isEmpty()
                                 ? image::sentence(QT_TRANSLATE_NOOP("recipe", "%1 is read-only")).arg(folder)
                                 : image::sentence(QT_TRANSLATE_NOOP("recipe", "%1 is not a folder")).arg(other));
}

} // namespace

void takeDateOf(const QString &source, const QString &path)
{
    QFile file(path);
    const auto from = platform::regularFile(source);
    if (from && file.open(QIODevice::ReadWrite))
        file.setFileTime(from->modified, QFileDevice::FileModificationTime);
}

WaitingRooms::~WaitingRooms()
{
    for (const auto &[folder, room] : m_rooms)
        files::removeStaging(room.path);
}

void WaitingRooms::letGoOfMany()
{
    constexpr size_t many = 50;
    if (m_rooms.size() <= many)
        return;
    std::erase_if(m_rooms, [](const auto &each) {
        if (each.second.users == 0)
            files::removeStaging(each.second.path);
        return each.second.users == 0;
    });
}

QString WaitingRooms::in(const QString &folder)
{
    Room &room = m_rooms[folder];
    if (room.path.isEmpty() && files::makeFolder(folder) != files::FolderMade::No) {
        files::sweepStagings(folder);
        room.path = files::makeStaging(folder);
    }
    return room.path;
}

void WaitingRooms::enter(const QString &folder)
{
    ++m_rooms[folder].users;
}

void WaitingRooms::leave(const QString &folder)
{
    --m_rooms[folder].users;
    letGoOfMany();
}

ResultFiles::~ResultFiles()
{
    for (const QString &file : std::as_const(m_begun))
        QFile::remove(file);
    for (const QString &folder : std::as_const(m_folders))
        m_rooms.leave(folder);
}

Result<platform::Descriptor> ResultFiles::begin(int index, const OutputPlace &place)
{
    const QString folder = platform::parentFolder(place.path);
    const QString room = m_rooms.in(folder);
    if (room.isEmpty())
        return unwritten(folder);
    m_rooms.enter(folder);
    m_folders.append(folder);
    const QString path = QStringLiteral("%1%2-%3").arg(room).arg(m_number).arg(index);
    constexpr mode_t asTheFolderHasIt = 0666;
    platform::Descriptor file(
        ::open(platform::encodedPath(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, asTheFolderHasIt));
    if (!file.isOpen())
        return tl::unexpected<platform::Error>(failureOf(errno, place));
    m_begun.insert(index, path);
    return file;
}

platform::Error ResultFiles::failureOf(int code, const OutputPlace &place) const
{
    return {platform::ErrorCode::WriteFailed, image::sentence(QT_TRANSLATE_NOOP("recipe", "%1 cannot be written: %2"))
                                                  .arg(place.path, QString::fromLocal8Bit(std::strerror(code)))};
}

Result<void> ResultFiles::keep(int index, qint64 bytes, const OutputPlace &place, const image::RecipeOutput &output)
{
    const QString file = m_begun.value(index);
    const auto made = platform::regularFile(file);
    if (!made || made->bytes != bytes)
        return tl::unexpected<platform::Error>(failureOf(EIO, place));
    if (output.dates == image::FileDates::Keep)
        takeDateOf(m_input.path, file);
    markResult(file, m_input.path, settingsName(m_settings.name, index));
    m_kept.append({index, file, place, output.ifTaken});
    return {};
}

void ResultFiles::drop(int index)
{
    m_kept.removeIf([index](const Kept &kept) { return kept.index == index; });
    QFile::remove(m_begun.take(index));
}

QList<ResultFiles::Waiting> ResultFiles::waiting() const
{
    QList<Waiting> waiting;
    for (const Kept &kept : m_kept)
        waiting.append({kept.index, kept.file, kept.place.path});
    return waiting;
}

void ResultFiles::moveTo(int index, const OutputPlace &place)
{
    for (Kept &kept : m_kept)
        if (kept.index == index)
            kept.place = place;
}

QString ResultFiles::leave(int index)
{
    const bool isKept = m_kept.removeIf([index](const Kept &kept) { return kept.index == index; }) > 0;
    return isKept ? m_begun.value(index) : QString();
}

QList<ResultFiles::Placed> ResultFiles::placeAll(OutputPlaces &places)
{
    const QString own = platform::targetIdentity(m_input.path);
    std::stable_partition(m_kept.begin(), m_kept.end(), [&own](const Kept &kept) {
        return !kept.place.replaces || platform::targetIdentity(kept.place.path) != own;
    });
    QList<Placed> all;
    for (const Kept &kept : m_kept) {
        all.append(placed(kept, places));
        m_begun.remove(kept.index);
        if (all.last().isSkipped || !all.last().problem.isEmpty())
            QFile::remove(kept.file);
        else
            note(kept.index, all.last().path);
    }
    m_kept.clear();
    return all;
}

void ResultFiles::note(int index, const QString &path) const
{
    const bool isInPlaceOfItsPicture = path == m_input.path;
    if (index < m_settings.made.size() && !isInPlaceOfItsPicture)
        ResultRecords::ofProcess().note(path, m_source, m_settings.made[index].of(m_input.path, m_number));
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
    return {kept.index, path, false, image::sentence(QT_TRANSLATE_NOOP("recipe", "no free name found"))};
}

} // namespace jobs
