#pragma once

#include "platform/disk/file_system.h"

namespace platform {

/** The real file system, with the user's trash. */
class DiskFileSystem : public FileSystem
{
public:
    std::optional<ItemState> look(const QString &path) const override;
    std::optional<std::vector<FolderEntry>> list(const QString &folder) const override;
    QString canonicalFolder(const QString &folder) const override;
    bool mayChange(const QString &folder) const override;
    bool mayBeTakenAway(const QString &path) const override;
    QString linkText(const QString &path) const override;
    bool haveSameContent(const QString &one, const QString &other) const override;
    std::error_code rename(const QString &from, const QString &to) override;
    std::error_code exchange(const QString &one, const QString &other) override;
    std::error_code replace(const QString &from, const QString &to) override;
    void copyPermissions(const QString &from, const QString &to) override;
    std::error_code makeFolder(const QString &path) override;
    std::error_code removeEmptyFolder(const QString &path) override;
    std::error_code makeLink(const QString &target, const QString &path) override;
    std::error_code copy(const QString &from, const QString &to) override;
    std::error_code remove(const QString &path) override;
    std::error_code discard(const QString &path) override;
    Result<TrashedItem> trash(const QString &path) override;
    std::error_code restore(const TrashedItem &item, const QString &path) override;
    std::optional<TrashedItem> findTrashed(const QString &path, const ItemState &state) const override;
    std::vector<TrashedItem> allTrashed(const QString &path) const override;
    void discardHalfTrashed(const QString &path) override;
    void settle(const QString &folder) override;
};

} // namespace platform
