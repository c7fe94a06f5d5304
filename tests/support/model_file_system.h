#pragma once

#include "platform/disk/file_system.h"
#include "platform/foundation/file_names.h"
#include "platform/foundation/paths.h"

#include <QDateTime>
#include <QSet>

#include <functional>
#include <map>
#include <memory>
#include <utility>

/** Thrown where a process is to end at once, as by a kill. */
struct Killed
{
};

/** Counts what changes something, and ends the process at one of them. */
class Fuse
{
public:
    /** The process ends at the @p count-th change from now. */
    void light(int count) { m_left = count; }
    void putOut() { m_left = -1; }
    int burnt() const { return m_burnt; }
    /** True if this change is the last, and half of it happens. */
    bool burns()
    {
        ++m_burnt;
        return m_left >= 0 && m_left-- == 0;
    }

private:
    int m_left = -1;
    int m_burnt = 0;
};

/** A file system in memory. What is below "/other" is on another disk. */
class ModelFileSystem : public platform::FileSystem
{
public:
    using State = platform::ItemState;
    using Kind = platform::ItemKind;

    ModelFileSystem()
    {
        m_root->kind = Kind::Folder;
        m_trash->kind = Kind::Folder;
        addFolder(QStringLiteral("/other"));
    }

    bool tellsCasesApart = true;
    /** Called before every change; what it answers is the failure of that change. */
    std::function<std::error_code()> trouble;
    Fuse *fuse = nullptr;
    QSet<QString> lockedFolders;
    /** Links lead to folders; they must not go round. Without it a link leads nowhere. */
    bool followsLinks = false;
    /** The disk can only look whether a name is free, and then keep it with an empty file. */
    bool canReplace = false;
    /** The disk can only give a file a second name and then take the first one away. */
    bool givesSecondNames = false;
    /** The trash is on another disk: items are copied into it. */
    bool isTrashApart = false;
    /** What the disk below "/other" does not have. */
    bool otherIsFat = false;
    qint64 roomOnOther = -1;
    std::error_code noRoom = std::make_error_code(std::errc::no_space_on_device);
    QStringList settled;

    /** A folder, and every copy of it, that may not be changed. */
    void lock(const QString &path) { find(path)->isLocked = true; }

    void addFile(const QString &path, const QByteArray &bytes) { put(path, newNode(Kind::File, bytes)); }
    void addFolder(const QString &path) { put(path, newNode(Kind::Folder, {})); }
    void addLink(const QString &path, const QString &target) { put(path, newNode(Kind::Link, target.toUtf8())); }
    void addSecondName(const QString &path, const QString &of) { put(path, find(of)); }
    void change(const QString &path, const QByteArray &bytes)
    {
        find(path)->bytes = bytes;
        find(path)->changed = ++m_clock;
    }
    void drop(const QString &path) { folderOf(path)->items.erase(nameIn(*folderOf(path), path)); }
    QByteArray bytes(const QString &path) const
    {
        const auto node = find(path);
        return node ? node->bytes : QByteArray("nothing");
    }
    /** Every path with what is there; the inode too, but for copies. The trash is left out. */
    std::map<QString, QByteArray> everything() const
    {
        std::map<QString, QByteArray> all;
        collect(*m_root, QString(), all);
        return all;
    }
    /** The content of every file, in the trash too. */
    QList<QByteArray> allBytes() const
    {
        std::map<QString, QByteArray> all;
        collect(*m_root, QString(), all);
        collect(*m_trash, QStringLiteral("/trash"), all);
        QList<QByteArray> contents;
        for (const auto &entry : all)
            if (entry.second.startsWith('0'))
                contents.append(entry.second.mid(1));
        return contents;
    }
    /** All that is there, to be set back to. */
    struct Copy;
    Copy copied() const;
    void restore(const Copy &state);
    int trashedCount() const { return int(m_trash->items.size()); }

    std::optional<State> look(const QString &path) const override
    {
        const auto node = find(path);
        if (!node)
            return std::nullopt;
        State state;
        state.kind = node->kind;
        state.device = deviceOf(path);
        state.inode = node->inode;
        state.bytes = node->bytes.size();
        state.changedNs = node->changed;
        state.bornNs = qint64(node->inode);
        state.names = quint32(node.use_count() - 1);
        return state;
    }
    std::optional<std::vector<platform::FolderEntry>> list(const QString &folder) const override
    {
        const auto node = find(folder);
        if (!node || node->kind != Kind::Folder)
            return std::nullopt;
        std::vector<platform::FolderEntry> entries;
        for (const auto &[name, item] : node->items)
            entries.push_back({name, item->kind == Kind::Folder});
        return entries;
    }
    QString canonicalFolder(const QString &folder) const override
    {
        const QString path = canonical(folder, 1);
        const auto node = find(path);
        return node && node->kind == Kind::Folder ? path : QString();
    }
    bool mayChange(const QString &folder) const override
    {
        const auto node = find(folder);
        return !lockedFolders.contains(folder) && !(node && node->isLocked);
    }
    bool mayBeTakenAway(const QString &path) const override
    {
        const auto node = find(path);
        return mayChange(platform::parentFolder(path)) && (!node || isOpen(*node));
    }
    QString linkText(const QString &path) const override
    {
        const auto node = find(path);
        return node && node->kind == Kind::Link ? QString::fromUtf8(node->bytes) : QString();
    }
    bool haveSameContent(const QString &one, const QString &other) const override
    {
        const auto a = find(one);
        const auto b = find(other);
        return a && b && areSame(*a, *b);
    }

    /** Whether two names can be swapped in one step. */
    bool canExchange = true;
    /** Called after a look at what is there and before a name changes: what another program does meanwhile. */
    std::function<void()> meanwhile;
    QStringList permissionsCopied;

    std::error_code exchange(const QString &one, const QString &other) override
    {
        if (const std::error_code error = interrupted())
            return error;
        if (!canExchange)
            return std::make_error_code(std::errc::operation_not_supported);
        const auto first = find(one);
        const auto second = find(other);
        if (!first || !second)
            return std::make_error_code(std::errc::no_such_file_or_directory);
        folderOf(one)->items[platform::lastPathComponent(one)] = second;
        folderOf(other)->items[platform::lastPathComponent(other)] = first;
        return {};
    }
    std::error_code replace(const QString &from, const QString &to) override
    {
        if (const std::error_code error = interrupted())
            return error;
        const auto node = find(from);
        if (!node || !folderOf(to))
            return std::make_error_code(std::errc::no_such_file_or_directory);
        drop(from);
        folderOf(to)->items[platform::lastPathComponent(to)] = node;
        return {};
    }
    void copyPermissions(const QString &from, const QString &to) override
    {
        permissionsCopied.append(from + u'>' + to);
    }
    std::error_code rename(const QString &from, const QString &to) override
    {
        if (const std::error_code error = disturbed())
            return error;
        const auto node = find(from);
        const auto folder = folderOf(to);
        if (!node || !folder)
            return std::make_error_code(std::errc::no_such_file_or_directory);
        if (!mayChange(platform::parentFolder(from)) || !mayChange(platform::parentFolder(to)))
            return std::make_error_code(std::errc::permission_denied);
        if (find(to))
            return std::make_error_code(std::errc::file_exists);
        if ((canonical(to) + u'/').startsWith(canonical(from) + u'/') || !canBeNamed(to))
            return std::make_error_code(std::errc::invalid_argument);
        if (deviceOf(from) != deviceOf(platform::parentFolder(to)))
            return std::make_error_code(std::errc::cross_device_link);
        if (canReplace && node->kind != Kind::Folder)
            return renameOntoPlaceholder(from, to);
        folder->items[platform::lastPathComponent(to)] = node;
        if (const std::error_code error = betweenNames(*node)) {
            drop(to);
            return error;
        }
        drop(from);
        return {};
    }
    std::error_code makeFolder(const QString &path) override { return make(path, Kind::Folder, {}); }
    std::error_code makeLink(const QString &target, const QString &path) override
    {
        return make(path, Kind::Link, target.toUtf8());
    }
    std::error_code removeEmptyFolder(const QString &path) override
    {
        if (const std::error_code error = disturbed())
            return error;
        const auto node = find(path);
        if (!node || node->kind != Kind::Folder || !node->items.empty())
            return std::make_error_code(std::errc::directory_not_empty);
        drop(path);
        return {};
    }
    std::error_code copy(const QString &from, const QString &to) override
    {
        const auto node = find(from);
        const bool isCutShort = fuse && fuse->burns();
        if (!node || !folderOf(to) || find(to))
            return std::make_error_code(std::errc::no_such_file_or_directory);
        if (!canBeNamed(to))
            return std::make_error_code(std::errc::invalid_argument);
        const std::error_code error = trouble ? trouble() : std::error_code();
        const bool isOther = deviceOf(to) == 2;
        if (isOther && otherIsFat && hasLink(*node))
            return std::make_error_code(std::errc::operation_not_permitted);
        const auto copied = copyOf(*node, isOther && otherIsFat ? coarse : 1);
        const bool isFull = isOther && roomOnOther >= 0 && sizeOf(*node) > roomOnOther;
        if (isCutShort || isFull || error)
            copied->bytes.chop(1);
        folderOf(to)->items[platform::lastPathComponent(to)] = copied;
        if (isCutShort)
            throw Killed();
        return isFull ? noRoom : error;
    }
    /** Folders that may not be changed keep what is in them. */
    std::error_code remove(const QString &path) override
    {
        if (const std::error_code error = disturbed())
            return error;
        const auto node = find(path);
        if (!node)
            return std::make_error_code(std::errc::no_such_file_or_directory);
        if (!isOpen(*node) || !mayChange(platform::parentFolder(path))) {
            takeWhatMayGo(*node);
            return std::make_error_code(std::errc::permission_denied);
        }
        drop(path);
        return {};
    }
    std::error_code discard(const QString &path) override
    {
        if (const std::error_code error = disturbed())
            return error;
        if (!find(path))
            return std::make_error_code(std::errc::no_such_file_or_directory);
        drop(path);
        return {};
    }
    platform::Result<platform::TrashedItem> trash(const QString &path) override
    {
        const auto failed = platform::failure(platform::ErrorCode::WriteFailed, QStringLiteral("Cannot trash"));
        if (disturbed() || !find(path))
            return failed;
        const QString name = QString::number(++m_trashCount);
        m_trashedFrom[name] = canonical(path);
        if (!isTrashApart) {
            m_trash->items[name] = find(path);
            if (betweenNames(*find(path))) {
                m_trash->items.erase(name);
                return failed;
            }
            drop(path);
            return platform::TrashedItem{QStringLiteral("/trash/") + name};
        }
        m_trash->items[name] = copyOf(*find(path));
        const QString aside = platform::joinedPath(platform::parentFolder(path), QStringLiteral(".quorlin-trashing"));
        if (disturbed() || find(aside) || rename(path, aside) || !areSame(*find(aside), *m_trash->items[name]) ||
            remove(aside)) {
            if (find(path) || (find(aside) && !rename(aside, path)))
                m_trash->items.erase(name);
            if (find(path))
                return failed;
        }
        return platform::TrashedItem{QStringLiteral("/trash/") + name};
    }
    std::error_code restore(const platform::TrashedItem &item, const QString &path) override
    {
        if (const std::error_code error = disturbed())
            return error;
        if (find(path))
            return std::make_error_code(std::errc::file_exists);
        if (!find(item.path) || !folderOf(path))
            return std::make_error_code(std::errc::no_such_file_or_directory);
        folderOf(path)->items[platform::lastPathComponent(path)] = find(item.path);
        if (const std::error_code error = betweenNames(*find(item.path))) {
            drop(path);
            return error;
        }
        m_trash->items.erase(platform::lastPathComponent(item.path));
        return {};
    }
    std::vector<platform::TrashedItem> allTrashed(const QString &path) const override
    {
        std::vector<platform::TrashedItem> found;
        for (const auto &[name, place] : m_trashedFrom)
            if (place == canonical(path) && m_trash->items.count(name) > 0)
                found.push_back({QStringLiteral("/trash/") + name});
        return found;
    }
    void discardHalfTrashed(const QString &) override {}
    std::optional<platform::TrashedItem> findTrashed(const QString &path, const State &state) const override
    {
        for (const auto &[name, node] : m_trash->items)
            if (m_trashedFrom.at(name) == canonical(path) && node->inode == state.inode)
                return platform::TrashedItem{QStringLiteral("/trash/") + name};
        return std::nullopt;
    }
    void settle(const QString &folder) override { settled.append(folder); }

private:
    struct Node
    {
        Kind kind = Kind::File;
        quint64 inode = 0;
        QByteArray bytes;
        qint64 changed = 0;
        bool isLocked = false;
        std::map<QString, std::shared_ptr<Node>> items;
    };
    using NodePointer = std::shared_ptr<Node>;
    static constexpr int mostLinks = 16;
    static constexpr qint64 coarse = 2'000'000'000;

    NodePointer newNode(Kind kind, const QByteArray &bytes)
    {
        const auto node = std::make_shared<Node>();
        node->kind = kind;
        node->inode = ++m_clock;
        node->changed = qint64(m_clock);
        node->bytes = bytes;
        return node;
    }
    static NodePointer sameAgain(const Node &node)
    {
        const auto same = std::make_shared<Node>(node);
        for (auto &item : same->items)
            item.second = sameAgain(*item.second);
        return same;
    }
    NodePointer copyOf(const Node &node, qint64 grain = 1)
    {
        const auto copied = newNode(node.kind, node.bytes);
        copied->changed = node.changed / grain * grain;
        copied->isLocked = node.isLocked;
        for (const auto &[name, item] : node.items)
            copied->items[name] = copyOf(*item, grain);
        return copied;
    }
    static bool hasLink(const Node &node)
    {
        return node.kind == Kind::Link || std::any_of(node.items.begin(), node.items.end(),
                                                      [](const auto &item) { return hasLink(*item.second); });
    }
    static qint64 sizeOf(const Node &node)
    {
        qint64 size = node.bytes.size();
        for (const auto &item : node.items)
            size += sizeOf(*item.second);
        return size;
    }
    /** Whether neither it nor a folder in it is locked. */
    static bool isOpen(const Node &node)
    {
        return !node.isLocked &&
               std::all_of(node.items.begin(), node.items.end(), [](const auto &item) { return isOpen(*item.second); });
    }
    static void takeWhatMayGo(Node &node)
    {
        for (auto item = node.items.begin(); item != node.items.end() && !node.isLocked;) {
            takeWhatMayGo(*item->second);
            item = isOpen(*item->second) ? node.items.erase(item) : std::next(item);
        }
    }
    /** Each disk has its own trash, unless the trash is on another disk. */
    quint64 deviceOf(const QString &path) const
    {
        const bool isTrashed = path.startsWith(QStringLiteral("/trash/")) && !isTrashApart;
        const auto from = isTrashed ? m_trashedFrom.find(platform::lastPathComponent(path)) : m_trashedFrom.end();
        return canonical(from == m_trashedFrom.end() ? path : from->second).startsWith(QStringLiteral("/other")) ? 2
                                                                                                                 : 1;
    }
    bool canBeNamed(const QString &path) const
    {
        return !otherIsFat || deviceOf(path) == 1 || !platform::lastPathComponent(path).contains(u':');
    }
    /** The path with the links above its last component resolved, and also that one if it is a folder's. */
    QString canonical(const QString &path, int depth = 0) const
    {
        if (!followsLinks || path.size() < 2 || depth > mostLinks)
            return path;
        const QString place =
            platform::joinedPath(canonical(platform::parentFolder(path), depth + 1), platform::lastPathComponent(path));
        const auto node = find(place);
        if (!node || node->kind != Kind::Link || depth == 0)
            return place;
        return canonical(QString::fromUtf8(node->bytes), depth + 1);
    }
    std::error_code renameOntoPlaceholder(const QString &from, const QString &to)
    {
        const auto placeholder = newNode(Kind::File, {});
        placeholder->changed = QDateTime::currentMSecsSinceEpoch() * 1'000'000;
        put(to, placeholder);
        if (const std::error_code error = disturbed()) {
            if (find(to) == placeholder && placeholder->bytes.isEmpty())
                drop(to);
            return error;
        }
        if (find(to) != placeholder || !placeholder->bytes.isEmpty())
            return std::make_error_code(std::errc::file_exists);
        const auto node = find(from);
        drop(to);
        if (!node)
            return std::make_error_code(std::errc::no_such_file_or_directory);
        drop(from);
        folderOf(to)->items[platform::lastPathComponent(to)] = node;
        return {};
    }
    static bool areSame(const Node &a, const Node &b)
    {
        return a.kind == b.kind && a.bytes == b.bytes && a.items.size() == b.items.size() &&
               std::equal(a.items.begin(), a.items.end(), b.items.begin(), [](const auto &one, const auto &other) {
                   return one.first == other.first && areSame(*one.second, *other.second);
               });
    }
    NodePointer find(const QString &path) const
    {
        if (path.size() < 2)
            return path.isEmpty() ? nullptr : m_root;
        if (path == QStringLiteral("/trash"))
            return m_trash;
        const auto folder = folderOf(path);
        const auto found = folder ? folder->items.find(nameIn(*folder, path)) : decltype(folder->items.end())();
        return folder && found != folder->items.end() ? found->second : nullptr;
    }
    NodePointer folderOf(const QString &path) const
    {
        auto folder = find(platform::parentFolder(path));
        for (int depth = 0; folder && folder->kind == Kind::Link && followsLinks && depth < 1; ++depth)
            folder = find(QString::fromUtf8(folder->bytes));
        return folder && folder->kind == Kind::Folder ? folder : nullptr;
    }
    /** The name as it is written in the folder. */
    QString nameIn(const Node &folder, const QString &path) const
    {
        const QString name = platform::lastPathComponent(path);
        if (!tellsCasesApart)
            for (const auto &item : folder.items)
                if (platform::nameKey(item.first) == platform::nameKey(name))
                    return item.first;
        return name;
    }
    void put(const QString &path, const NodePointer &node)
    {
        const auto folder = folderOf(path);
        if (!folder)
            addFolder(platform::parentFolder(path));
        folderOf(path)->items[platform::lastPathComponent(path)] = node;
    }
    std::error_code make(const QString &path, Kind kind, const QByteArray &bytes)
    {
        if (const std::error_code error = disturbed())
            return error;
        if (find(path))
            return std::make_error_code(std::errc::file_exists);
        if (!folderOf(path))
            return std::make_error_code(std::errc::no_such_file_or_directory);
        put(path, newNode(kind, bytes));
        return {};
    }
    std::error_code disturbed()
    {
        if (fuse && fuse->burns())
            throw Killed();
        return trouble ? trouble() : std::error_code();
    }
    /** A disk that has second names can be disturbed while a file has two. */
    std::error_code betweenNames(const Node &node)
    {
        return givesSecondNames && node.kind != Kind::Folder ? disturbed() : std::error_code();
    }
    /** The same, after another program had its turn. */
    std::error_code interrupted()
    {
        if (const auto turn = std::exchange(meanwhile, {}))
            turn();
        return disturbed();
    }
    static void collect(const Node &folder, const QString &path, std::map<QString, QByteArray> &all)
    {
        for (const auto &[name, item] : folder.items) {
            const QString place = path + u'/' + name;
            all[place] = char('0' + int(item->kind)) + item->bytes;
            collect(*item, place, all);
        }
    }

    NodePointer m_root = std::make_shared<Node>();
    NodePointer m_trash = std::make_shared<Node>();
    std::map<QString, QString> m_trashedFrom;
    quint64 m_clock = 0;
    int m_trashCount = 0;
};

struct ModelFileSystem::Copy
{
    NodePointer root;
    NodePointer trash;
    std::map<QString, QString> trashedFrom;
};

inline ModelFileSystem::Copy ModelFileSystem::copied() const
{
    return {sameAgain(*m_root), sameAgain(*m_trash), m_trashedFrom};
}

inline void ModelFileSystem::restore(const Copy &state)
{
    m_root = sameAgain(*state.root);
    m_trash = sameAgain(*state.trash);
    m_trashedFrom = state.trashedFrom;
}
