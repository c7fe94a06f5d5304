#include "files/moving/move_rescue.h"

#include "platform/foundation/paths.h"

#include <QCoreApplication>

#include <set>

namespace files {
namespace {

/** Searches for what a damaged journal does not mention: items that still have their temporary names. */
class Rescue
{
public:
    Rescue(const platform::FileSystem &disk, const RunRecord &run) : m_disk(disk), m_run(run) {}

    QStringList problems;

    bool findsAny() const
    {
        for (const QString &folder : folders())
            if (!namesIn(folder).isEmpty())
                return true;
        return false;
    }

    void giveNames(MoveOperations &operations)
    {
        for (const QString &folder : folders())
            for (const QString &name : namesIn(folder))
                giveName(operations, folder, name);
    }

private:
    std::set<QString> folders() const
    {
        std::set<QString> found;
        const auto add = [&](const QString &path) {
            if (const QString folder = likelyFolder(platform::parentFolder(path)); !folder.isEmpty())
                found.insert(folder);
        };
        for (const MoveRecord &record : m_run.items)
            for (const QString &path : {record.item.from, record.item.to, record.path})
                add(path);
        for (const DamagedLine &line : m_run.damaged)
            for (const QString &path : line.paths)
                add(path);
        return found;
    }

    /** The folder at a path in which one letter may be wrong. */
    QString likelyFolder(const QString &path) const
    {
        if (const QString folder = m_disk.canonicalFolder(path); !folder.isEmpty() || path.size() < 2)
            return folder;
        const QString above = likelyFolder(platform::parentFolder(path));
        const QString name = platform::lastPathComponent(path);
        const auto entries = above.isEmpty() ? std::nullopt : m_disk.list(above);
        for (const platform::FolderEntry &entry : entries.value_or(std::vector<platform::FolderEntry>()))
            if (entry.mayBeFolder && differInOneLetter(entry.name, name))
                return m_disk.canonicalFolder(platform::joinedPath(above, entry.name));
        return m_disk.canonicalFolder(platform::joinedPath(above, name));
    }

    static bool differInOneLetter(const QString &one, const QString &other)
    {
        int different = 0;
        for (qsizetype i = 0; i < one.size() && one.size() == other.size(); ++i)
            different += one[i] != other[i];
        return different == 1;
    }

    QString prefix() const { return QStringLiteral(".quorlin-aside-%1-").arg(m_run.id); }

    QStringList namesIn(const QString &folder) const
    {
        QStringList names;
        for (const platform::FolderEntry &entry : m_disk.list(folder).value_or(std::vector<platform::FolderEntry>()))
            if (entry.name.startsWith(prefix()))
                names.append(entry.name);
        return names;
    }

    void giveName(MoveOperations &operations, const QString &folder, const QString &name)
    {
        const QString path = platform::joinedPath(folder, name);
        const QString place =
            operations.putBack(path, platform::joinedPath(folder, nameFor(name.mid(prefix().size()))));
        problems.append(QCoreApplication::translate("files", "%1 was left with a temporary name and is now called %2")
                            .arg(path, platform::lastPathComponent(place)));
    }

    /** The name in the journal, even in a damaged line; otherwise one made from the item's number. */
    QString nameFor(const QString &tail) const
    {
        const bool isCopy = tail.endsWith(QStringLiteral("-copy"));
        const int index = tail.section(u'-', 0, 0).toInt();
        QString path;
        if (index >= 0 && index < int(m_run.items.size()))
            path = isCopy ? m_run.items[size_t(index)].item.to : m_run.items[size_t(index)].item.from;
        for (const DamagedLine &line : m_run.damaged)
            if (path.isEmpty() && line.item == index)
                path = isCopy && !line.paths.isEmpty() ? line.paths.last() : line.from;
        const QString name = platform::lastPathComponent(path);
        return name.isEmpty() ? QStringLiteral("recovered-%1").arg(index) : name;
    }

    const platform::FileSystem &m_disk;
    const RunRecord &m_run;
};

} // namespace

bool hasHidden(const platform::FileSystem &disk, const RunRecord &run)
{
    return Rescue(disk, run).findsAny();
}

QStringList rescueHidden(platform::FileSystem &disk, const RunRecord &run)
{
    SilentOperationLog log;
    MoveOperations operations(disk, run.id, log);
    Rescue rescue(disk, run);
    rescue.giveNames(operations);
    return QStringList(QCoreApplication::translate("files", "The journal of this run is damaged: %1").arg(run.id)) +
           rescue.problems;
}

} // namespace files
