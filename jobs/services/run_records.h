#pragma once

#include "platform/descriptors/descriptor.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <map>

namespace jobs {

/**
 * Files that say how far runs are, so that one that was interrupted can be gone on with: lines of text, one file a run. A run that is
 * under way holds its file; the system lets go of that when the process ends, whatever it ends by.
 */
class RunRecords : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    ~RunRecords() override;

    /** Starts one in @p folder, which is created; the path of its file, or empty if that cannot be done. */
    Q_INVOKABLE QString begin(const QString &folder);
    /**
     * Adds lines to one that was started; @p isKept: they are synced to the disk. False if they could not be written.
     */
    Q_INVOKABLE bool add(const QString &path, const QString &lines, bool isKept);
    /** It ends when this process exits normally, and remains if that crashes. */
    Q_INVOKABLE void endWithProgram(const QString &path);
    /** Ends one: nothing of it is left. */
    Q_INVOKABLE void end(const QString &path);
    /** The paths of those in @p folder that nobody holds; from now on they are held here, so that no other window asks about them. */
    Q_INVOKABLE QStringList interrupted(const QString &folder);

private:
    std::map<QString, platform::Descriptor> m_held;
    QStringList m_passing; ///< those that end with the process
};

} // namespace jobs
