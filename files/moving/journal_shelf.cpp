#include "files/moving/journal_shelf.h"

#include "files/moving/move_record.h"

#include "platform/disk/folders.h"
#include "platform/file/atomic_file.h"
#include "platform/file/living_process.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/paths.h"

#include <QDir>
#include <QFile>

namespace files {
namespace {

const QString ending = QStringLiteral(".journal");

} // namespace

QString DiskJournalShelf::path(const QString &name) const
{
    return platform::joinedPath(m_folder, name + ending);
}

QStringList DiskJournalShelf::names() const
{
    QStringList names;
    const QDir folder(m_folder);
    // Not even checked: a link could lead to an endless device.
    for (const QFileInfo &file :
         folder.entryInfoList({u'*' + ending}, QDir::Files | QDir::NoSymLinks, QDir::Name | QDir::Reversed))
        if (file.isFile())
            names.append(file.fileName().chopped(ending.size()));
    return names;
}

platform::Result<void> DiskJournalShelf::make(const QString &name, const QByteArray &lines)
{
    if (const auto folder = platform::makeFolder(m_folder); !folder)
        return tl::unexpected(folder.error());
    auto file = platform::HeldFile::make(path(name));
    if (!file)
        return tl::unexpected(file.error());
    if (const auto written = file->append(lines, Lasting::AtOnce); !written) {
        QFile::remove(path(name));
        return written;
    }
    platform::settleFolder(m_folder);
    m_held.insert_or_assign(name, std::move(*file));
    return {};
}

bool DiskJournalShelf::hold(const QString &name)
{
    if (m_held.contains(name))
        return false;
    auto file = platform::HeldFile::open(path(name));
    if (!file)
        return false;
    const QString by = file->isLocked() ? QString() : summaryOf(ends(name)).by;
    if (!by.isEmpty() && by != platform::processMark() && platform::mayBeLiving(by))
        return false;
    m_held.insert_or_assign(name, std::move(*file));
    return true;
}

void DiskJournalShelf::letGo(const QString &name)
{
    m_held.erase(name);
}

platform::Result<void> DiskJournalShelf::append(const QString &name, const QByteArray &lines, Lasting lasting)
{
    const auto held = m_held.find(name);
    if (held == m_held.end())
        return platform::failure(platform::ErrorCode::WriteFailed,
                                 QStringLiteral("The journal %1 is not open").arg(name));
    return held->second.append(lines, lasting);
}

std::optional<QByteArray> DiskJournalShelf::read(const QString &name) const
{
    const auto bytes = platform::readFile(path(name));
    return bytes ? std::optional(*bytes) : std::nullopt;
}

std::pair<QByteArray, QByteArray> DiskJournalShelf::ends(const QString &name) const
{
    constexpr qint64 tail = 4096;
    QFile file(path(name));
    if (!platform::openToRead(file))
        return {};
    const QByteArray first = file.readLine();
    file.seek(std::max<qint64>(0, file.size() - tail));
    QByteArray last = file.readAll();
    if (!last.endsWith('\n'))
        return {first, {}};
    last.chop(1);
    return {first, last.mid(last.lastIndexOf('\n') + 1)};
}

void DiskJournalShelf::remove(const QString &name)
{
    letGo(name);
    QFile::remove(path(name));
}

} // namespace files
