#pragma once

#include "files/planning/move_problem.h"

#include "platform/disk/file_system.h"

#include <QHash>
#include <QString>

#include <memory>

namespace files {

/** A name in a folder, with the others that differ from it only by case or accents. */
struct Spot
{
    struct Tenant
    {
        QString name;
        bool mayBeFolder = false;
        int leaver = -1; ///< the request that moves it away
    };
    std::vector<Tenant> tenants; ///< the item that is there
    int claimer = -1;            ///< the request that gets this name
    QString claimedName;
    QString madeFolder; ///< a folder of this name will be created
    int nextNumber = 2; ///< the lowest number that may be free
};

/** A folder as it is, or as it would be created. */
struct FolderView
{
    QString path; ///< without links
    bool isThere = false;
    bool mayChange = false;
    quint64 device = 0;
    MoveProblem fault = MoveProblem::None; ///< why it cannot be created
    QString faultOther;
    QHash<QString, Spot> spots;                     ///< by platform::nameKey()
    std::vector<platform::FolderEntry> unread = {}; ///< existing items that have no spot yet, the next one last

    Spot &spot(const QString &name);
    /** The spot of exactly this name; null if there is none. Valid until the next spot() of this folder. */
    Spot::Tenant *tenant(const QString &name);
};

/** The folders that a plan involves, each listed once. */
class Places
{
public:
    explicit Places(const platform::FileSystem &disk) : m_disk(disk) {}

    /** Starts reading the folders that folder() asks for. Call it first, and goOn() until that returns false. */
    void begin(const QString &path);
    /** Reads some more; false when everything is read. */
    bool goOn();
    /** The folder at a path, whether it exists or not. Folders to be created claim their names at once. */
    FolderView &folder(const QString &path);
    /** The folder at a path; null if there is none. */
    FolderView *existing(const QString &path);

private:
    FolderView &read(const QString &canonical);
    FolderView &imagine(const QString &path);

    const platform::FileSystem &m_disk;
    QHash<QString, FolderView *> m_byPath;
    QHash<QString, FolderView *> m_byCanonicalPath;
    std::vector<std::unique_ptr<FolderView>> m_all;
    std::vector<FolderView *> m_unread;
};

} // namespace files
