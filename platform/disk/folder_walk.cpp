#include "platform/disk/folder_walk.h"
#include "platform/foundation/paths.h"

#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace platform {
namespace {

/** Folders from this depth on close their descriptor while their contents are walked. */
constexpr size_t keptOpen = 32;

/** An open folder, or none. */
class Folder
{
public:
    Folder() = default;
    /** Takes ownership of the descriptor; none if it is negative or no folder. */
    explicit Folder(int descriptor) : m_list(descriptor < 0 ? nullptr : fdopendir(descriptor), &closedir)
    {
        if (descriptor >= 0 && !m_list)
            ::close(descriptor);
    }

    bool isOpen() const { return m_list != nullptr; }
    int descriptor() const { return dirfd(m_list.get()); }
    const dirent *read() { return readdir(m_list.get()); }
    void close() { m_list.reset(); }
    bool isSameAs(dev_t device, ino_t inode) const
    {
        struct stat info = {};
        return isOpen() && fstat(descriptor(), &info) == 0 && info.st_dev == device && info.st_ino == inode;
    }

private:
    std::unique_ptr<DIR, int (*)(DIR *)> m_list = {nullptr, &closedir};
};

enum class Kind : char { Folder = 'd', File = 'f' };

/** A folder being walked. Its names were read in one go, so that it need not stay open. */
struct Level
{
    Folder folder;
    dev_t device = 0;
    ino_t inode = 0;
    std::string entries; ///< for each: one letter for the kind, the name, a NUL
    size_t next = 0;     ///< position in entries of the next one
    size_t pathLength = 0;
};

/** The kind of an item if the folder's listing does not tell it, or of a link's target. False: skipped. */
bool lookAt(int folder, const char *name, Kind &kind)
{
    struct stat info = {};
    if (fstatat(folder, name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return false;
    if (S_ISLNK(info.st_mode)) {
        kind = Kind::File;
        return fstatat(folder, name, &info, 0) == 0 && S_ISREG(info.st_mode);
    }
    kind = S_ISDIR(info.st_mode) ? Kind::Folder : Kind::File;
    return S_ISDIR(info.st_mode) || S_ISREG(info.st_mode);
}

bool kindOf(int folder, const dirent &entry, Kind &kind)
{
    switch (entry.d_type) {
    case DT_DIR:
        kind = Kind::Folder;
        return true;
    case DT_REG:
        kind = Kind::File;
        return true;
    case DT_LNK:
    case DT_UNKNOWN:
        return lookAt(folder, entry.d_name, kind);
    default:
        return false;
    }
}

bool isDotOrDotDot(const char *name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

char lowerAscii(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? char(letter + 'a' - 'A') : letter;
}

class Walk
{
public:
    Walk(const FolderWalkOptions &options, const FolderVisitor &visit) : m_options(options), m_visit(visit) {}

    void run(const QByteArray &root)
    {
        m_path = root.toStdString();
        enter(Folder(open(root.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
        while (!m_levels.empty())
            step();
    }

private:
    void step();
    void enter(Folder folder);
    void leave();
    std::string entriesOf(Folder &folder) const;
    bool entersFolder(std::string_view name) const
    {
        return m_options.packageContents == PackageContents::Visit || !isPackageName(name);
    }

    const FolderWalkOptions &m_options;
    const FolderVisitor &m_visit;
    std::string m_path; ///< of the innermost folder, including its item while that is visited
    std::vector<Level> m_levels;
};

void Walk::step()
{
    Level &level = m_levels.back();
    m_path.resize(level.pathLength);
    if (level.next >= level.entries.size()) {
        leave();
        return;
    }
    const Kind kind = Kind(level.entries[level.next]);
    const char *name = level.entries.c_str() + level.next + 1;
    const std::string_view nameView(name);
    level.next += nameView.size() + 2;
    if (m_path.empty() || m_path.back() != '/')
        m_path += '/';
    m_path += nameView;
    const Descend answer = m_visit({m_path, nameView, kind == Kind::Folder});
    if (kind == Kind::Folder && answer == Descend::Yes && entersFolder(nameView) && level.folder.isOpen())
        enter(Folder(openat(level.folder.descriptor(), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)));
}

void Walk::enter(Folder folder)
{
    struct stat info = {};
    if (!folder.isOpen() || fstat(folder.descriptor(), &info) != 0)
        return;
    if (m_levels.size() > keptOpen)
        m_levels.back().folder.close();
    Level level;
    level.entries = entriesOf(folder);
    level.folder = std::move(folder);
    level.device = info.st_dev;
    level.inode = info.st_ino;
    level.pathLength = m_path.size();
    m_levels.push_back(std::move(level));
}

/** Returns to the parent folder, which is reopened through ".." if it had to be closed on the way down. */
void Walk::leave()
{
    const Level done = std::move(m_levels.back());
    m_levels.pop_back();
    if (m_levels.empty() || m_levels.back().folder.isOpen() || !done.folder.isOpen())
        return;
    Level &above = m_levels.back();
    Folder again(openat(done.folder.descriptor(), "..", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A folder that was moved meanwhile leads elsewhere: the files of its parent are known, its other folders are
    // skipped.
    if (again.isSameAs(above.device, above.inode))
        above.folder = std::move(again);
}

std::string Walk::entriesOf(Folder &folder) const
{
    std::string entries;
    const bool skipsHidden = m_options.hiddenItems == HiddenItems::Skip;
    while (const dirent *entry = folder.read()) {
        Kind kind = Kind::File;
        const bool skipped = (skipsHidden && entry->d_name[0] == '.') || isDotOrDotDot(entry->d_name);
        if (skipped || !kindOf(folder.descriptor(), *entry, kind))
            continue;
        entries += char(kind);
        entries += entry->d_name;
        entries += '\0';
    }
    return entries;
}

} // namespace

bool isPackageName(std::string_view name)
{
    static constexpr std::array<std::string_view, 8> extensions = {"app", "bundle", "framework",     "plugin",
                                                                   "pkg", "rtfd",   "photoslibrary", "photolibrary"};
    const size_t dot = name.rfind('.');
    if (dot == std::string_view::npos)
        return false;
    const std::string_view extension = name.substr(dot + 1);
    const auto sameLetters = [](char a, char b) { return a == lowerAscii(b); };
    return std::any_of(extensions.begin(), extensions.end(), [&](std::string_view known) {
        return std::equal(known.begin(), known.end(), extension.begin(), extension.end(), sameLetters);
    });
}

void walkFolder(const QString &root, const FolderWalkOptions &options, const FolderVisitor &visit)
{
    QByteArray path = encodedPath(root);
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    Walk(options, visit).run(path);
}

} // namespace platform
