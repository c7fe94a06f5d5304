#pragma once

#include "files/moving/move_record.h"

#include <QHash>

namespace files {

/** Where the places of a run are after the same run moved folders around them. */
class PathsSince
{
public:
    explicit PathsSince(const RunRecord &run);

    /** The present path of what was at @p path when item @p index was processed. */
    QString operator()(const QString &path, int index);
    /** Whether a parent folder was moved to another disk since: its contents have another identity there. */
    bool wasCopied(const QString &path, int index) const;

private:
    QString folderNow(const QString &folder);

    struct Moved
    {
        QString from;
        QString to;
        int index = -1;
        bool isCopied = false;
    };

    bool m_isInTurn = false; ///< items were added one by one: paths are those of their moment
    std::vector<Moved> m_moved;
    QHash<QString, qsizetype> m_at; ///< positions in m_moved, by the old path
    QHash<QString, QString> m_known;
};

} // namespace files
