#pragma once

#include <QStringView>

#include <functional>
#include <string_view>

namespace platform {

enum class HiddenItems { Visit, Skip };
enum class PackageContents { Visit, Skip };

struct FolderWalkOptions
{
    /** Items whose name begins with a dot; what lies in a hidden folder is left out with it. */
    HiddenItems hiddenItems = HiddenItems::Skip;
    /** What lies in a package folder, see isPackageName(). The root is entered even where it is a package. */
    PackageContents packageContents = PackageContents::Visit;
};

/** One item below the root, as the file system spells it. The views live as long as the call that hands them out. */
struct FolderItem
{
    std::string_view path; ///< absolute if the root is
    std::string_view name;
    bool isFolder = false;
};

enum class Descend { Yes, No };

/** Is asked about every item; the answer counts for folders only. */
using FolderVisitor = std::function<Descend(const FolderItem &item)>;

/**
 * Visits every folder and file below @p root, depth first, in the order in which the file system lists them.
 *
 * A folder comes before what is in it. Files are regular files and links to regular files; pipes, sockets, devices,
 * links to folders and links to nothing are passed over, and no link below the root is followed. What cannot be read
 * is passed over without a word; a root that cannot be read gives nothing.
 *
 * Depth and length of paths have no limit but memory: nothing recurses, at most some forty descriptors are open, and
 * no path is handed to the system as a whole. Cost: one read of each folder; a file is not looked at on its own where the
 * file system tells its kind, so 100,000 files take some tens of milliseconds.
 */
void walkFolder(const QString &root, const FolderWalkOptions &options, const FolderVisitor &visit);

/** True for the name of a folder that users see as one thing: ".app", ".photoslibrary" ..., in any case of letters. */
bool isPackageName(std::string_view name);

} // namespace platform
