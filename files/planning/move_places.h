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
        int leaver = -1; ///< the wish that takes it away
    };
    std::vector<Tenant> tenants; ///< what is there
    int claimer = -1;            ///< the wish that gets this name
    QString claimedName;
    QString madeFolder; ///< a folder of this name is to be made
    int nextNumber = 2; ///< the lowest number that may be free
};

/** A folder as it is, or as it would be made. */
struct FolderView
{
    QString path; ///< without links
    bool isThere = false;
    bool mayChange = false;
    quint64 device = 0;
    MoveProblem fault = MoveProblem::None; ///< why it cannot be made
    QString faultOther;
    QHash<QString, Spot> spots;                     ///< by platform::nameKey()
    std::vector<platform::FolderEntry> unread = {}; ///< what is there and has no spot yet, the next at the end

    Spot &spot(const QString &name);
    /** What has exactly this name; null where nothing has. Valid until the next spot() of this folder. */
    Spot::Tenant *tenant(const QString &name);
};

/** The folders that a plan meets, each listed once. */
class Places
{
public:
    explicit Places(const platform::FileSystem &disk) : m_disk(disk) {}

    /** Begins to read the folders that folder() asks for. To be called first, with goOn() until that says false. */
    void begin(const QString &path);
    /** Reads some more of what was begun; false where all is read. */
    bool goOn();
    /** The folder at a path, whether it is there or not. Folders that would have to be made take their names at once. */
    FolderView &folder(const QString &path);
    /** The folder at a path; null where there is none. */
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
