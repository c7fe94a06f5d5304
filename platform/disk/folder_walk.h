#pragma once

#include <QStringView>

#include <functional>
#include <string_view>

namespace platform {

enum class HiddenItems { Visit, Skip };
enum class PackageContents { Visit, Skip };

struct FolderWalkOptions
{
    /** Items whose name begins with a dot; the contents of a hidden folder are skipped with it. */
    HiddenItems hiddenItems = HiddenItems::Skip;
    /** The contents of a package folder, see isPackageName(). The root is entered even if it is a package. */
    PackageContents packageContents = PackageContents::Visit;
};

/** One item below the root, as the file system spells it. The views are valid during the callback only. */
struct FolderItem
{
    std::string_view path; ///< absolute if the root is
    std::string_view name;
    bool isFolder = false;
};

enum class Descend { Yes, No };

/** Called for every item; the answer counts for folders only. */
using FolderVisitor = std::function<Descend(const FolderItem &item)>;

/**
 * Visits every folder and file below @p root, depth first, in the order in which the file system lists them.
 *
 * A folder precedes its contents. Files are regular files and links to regular files; pipes, sockets, devices, links to
 * folders and dangling links are skipped, and no link below the root is followed. Unreadable items are silently
 * skipped; an unreadable root yields nothing.
 *
 * Depth and length of paths have no limit but memory: nothing recurses, at most some forty descriptors are open, and
 * no full path is passed to the system. Cost: one read of each folder; no call per file if the file system tells its
 * kind, so 100,000 files take some tens of milliseconds.
 */
void walkFolder(const QString &root, const FolderWalkOptions &options, const FolderVisitor &visit);

/** True for the name of a folder that users see as one item: ".app", ".photoslibrary" ..., in any case of letters. */
bool isPackageName(std::string_view name);

} // namespace platform
