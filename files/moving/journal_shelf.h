#pragma once

#include "platform/file/held_file.h"
#include "platform/foundation/result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>

namespace files {

using platform::Lasting;

/**
 * Where the journals of runs are stored, one per run, each a text to which lines are only appended. Abstract, so that
 * tests can keep them in memory and interrupt a run at every line.
 */
class JournalShelf
{
public:
    JournalShelf() = default;
    JournalShelf(const JournalShelf &) = delete;
    JournalShelf &operator=(const JournalShelf &) = delete;
    virtual ~JournalShelf() = default;

    /** Names of all journals, newest first: names begin with the time. */
    virtual QStringList names() const = 0;
    /** Creates a journal with these lines, synced to the disk, and locks it. */
    virtual platform::Result<void> make(const QString &name, const QByteArray &lines) = 0;
    /** Locks a journal so that no other process touches it; false if another one has locked it. */
    virtual bool hold(const QString &name) = 0;
    virtual void letGo(const QString &name) = 0;
    /** Appends lines to a locked journal. */
    virtual platform::Result<void> append(const QString &name, const QByteArray &lines, Lasting lasting) = 0;
    /** Nothing if it cannot be read. */
    virtual std::optional<QByteArray> read(const QString &name) const = 0;
    /** The first and the last line, without reading what is in between. */
    virtual std::pair<QByteArray, QByteArray> ends(const QString &name) const = 0;
    virtual void remove(const QString &name) = 0;
};

/** Journals in files of a folder, which is created with the first one. */
class DiskJournalShelf : public JournalShelf
{
public:
    explicit DiskJournalShelf(const QString &folder) : m_folder(folder) {}

    QStringList names() const override;
    platform::Result<void> make(const QString &name, const QByteArray &lines) override;
    bool hold(const QString &name) override;
    void letGo(const QString &name) override;
    platform::Result<void> append(const QString &name, const QByteArray &lines, Lasting lasting) override;
    std::optional<QByteArray> read(const QString &name) const override;
    std::pair<QByteArray, QByteArray> ends(const QString &name) const override;
    void remove(const QString &name) override;

private:
    QString path(const QString &name) const;

    QString m_folder;
    std::map<QString, platform::HeldFile> m_held;
};

} // namespace files
