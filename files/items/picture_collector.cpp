#include "files/items/picture_collector.h"

#include "platform/disk/folder_walk.h"
#include "platform/disk/folders.h"
#include "platform/file/regular_file.h"
#include "platform/foundation/natural_order.h"
#include "platform/foundation/paths.h"

#include <QFileInfo>

#include <algorithm>
#include <string>
#include <vector>

namespace files {

namespace {

QString decoded(std::string_view bytes, OddNames oddNames)
{
    const QByteArrayView view(bytes.data(), qsizetype(bytes.size()));
    return oddNames == OddNames::AsPaths ? platform::decodedPath(view) : QString::fromUtf8(view);
}

QSet<QString> lowered(const QStringList &extensions)
{
    QSet<QString> result;
    for (const QString &extension : extensions)
        result.insert(extension.toLower());
    return result;
}

/** A folder that was walked: the names in it, and the position of its folders in the list of all. */
struct Walked
{
    QString path; ///< with a trailing slash
    QStringList files;
    std::vector<std::pair<QString, size_t>> folders;
};

class Collector
{
public:
    explicit Collector(const CollectRule &rule)
        : m_takesAny(rule.extensions.contains(QLatin1String("*"))), m_extensions(lowered(rule.extensions)),
          m_companions(lowered(rule.companions)), m_listed(lowered(rule.listed)), m_oddNames(rule.oddNames),
          m_order(platform::naturalOrder())
    {
    }

    void take(const QString &path);
    Collected result() { return std::move(m_result); }

private:
    void file(const QString &path, const QString &name);
    void leaveOut(const QString &path, const QString &name, bool mayGoAlong);
    std::vector<Walked> walked(const QString &folder) const;
    void takeFolder(std::vector<Walked> folders);

    /** In natural order. @p nameOf answers the name of an item. */
    template<typename List, typename NameOf> void sort(List &items, const NameOf &nameOf) const
    {
        std::vector<std::pair<QCollatorSortKey, typename List::value_type>> keyed;
        keyed.reserve(size_t(items.size()));
        for (auto &item : items)
            keyed.emplace_back(m_order.sortKey(nameOf(item)), std::move(item));
        std::stable_sort(keyed.begin(), keyed.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
        for (size_t i = 0; i < keyed.size(); ++i)
            items[typename List::size_type(i)] = std::move(keyed[i].second);
    }

    bool m_takesAny;
    QSet<QString> m_extensions;
    QSet<QString> m_companions;
    QSet<QString> m_listed;
    OddNames m_oddNames;
    QCollator m_order;
    Collected m_result;
};

void Collector::take(const QString &path)
{
    const QFileInfo info(path);
    if (platform::folderExists(path)) {
        m_result.folders.append(info.absoluteFilePath());
        takeFolder(walked(info.absoluteFilePath()));
    } else if (platform::regularFile(path)) {
        file(info.absoluteFilePath(), info.fileName());
    } else {
        leaveOut(path, info.fileName(), false);
    }
}

void Collector::file(const QString &path, const QString &name)
{
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString extension = dot > 0 ? name.mid(dot + 1).toLower() : QString();
    const bool isTaken = m_takesAny || (dot > 0 && m_extensions.contains(extension));
    if (isTaken)
        m_result.paths.append(path);
    else
        leaveOut(path, name, dot > 0 && m_companions.contains(extension));
    if (m_listed.isEmpty() ? isTaken : dot > 0 && m_listed.contains(extension))
        m_result.listed.append(path);
}

void Collector::leaveOut(const QString &path, const QString &name, bool mayGoAlong)
{
    ++m_result.leftOut;
    if (mayGoAlong)
        m_result.companions.append(path);
    else if (m_result.example.isEmpty())
        m_result.example = name;
}

std::vector<Walked> Collector::walked(const QString &folder) const
{
    platform::FolderWalkOptions options;
    options.packageContents = m_takesAny ? platform::PackageContents::Visit : platform::PackageContents::Skip;
    const QString root = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    std::vector<Walked> all = {{root, {}, {}}};
    // From the root down to the current folder: its position in the list, and the length of its path.
    std::vector<std::pair<size_t, size_t>> above = {{0, size_t(platform::encodedPath(root).size())}};
    platform::walkFolder(folder, options, [&](const platform::FolderItem &item) {
        while (above.size() > 1 && above.back().second != item.path.size() - item.name.size())
            above.pop_back();
        const size_t parent = above.back().first;
        const QString name = decoded(item.name, m_oddNames);
        if (!item.isFolder) {
            all[parent].files.append(name);
            return platform::Descend::No;
        }
        all[parent].folders.emplace_back(name, all.size());
        above.emplace_back(all.size(), item.path.size() + 1);
        all.push_back({all[parent].path + name + QLatin1Char('/'), {}, {}});
        return platform::Descend::Yes;
    });
    return all;
}

void Collector::takeFolder(std::vector<Walked> folders)
{
    std::vector<size_t> waiting = {0};
    while (!waiting.empty()) {
        Walked &folder = folders[waiting.back()];
        waiting.pop_back();
        sort(folder.files, [](const QString &name) { return name; });
        for (const QString &name : std::as_const(folder.files))
            file(folder.path + name, name);
        sort(folder.folders, [](const auto &inside) { return inside.first; });
        for (auto inside = folder.folders.rbegin(); inside != folder.folders.rend(); ++inside)
            waiting.push_back(inside->second);
        folder.path.clear();
        folder.files.clear();
    }
}

} // namespace

Collected collectFiles(const QStringList &paths, const CollectRule &rule)
{
    Collector collector(rule);
    for (const QString &path : paths)
        collector.take(path);
    return collector.result();
}

} // namespace files
