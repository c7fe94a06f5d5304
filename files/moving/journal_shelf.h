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
 * Where the journals of runs are kept, one a run, each a text of lines that only grows. An abstract one, so that tests can
 * keep them in memory and stop a run at every line.
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
    /** Makes a journal with these lines, on the disk at once, and holds it. */
    virtual platform::Result<void> make(const QString &name, const QByteArray &lines) = 0;
    /** Holds a journal so that no other process touches it; false where another does. */
    virtual bool hold(const QString &name) = 0;
    virtual void letGo(const QString &name) = 0;
    /** Adds lines to a journal that is held. */
    virtual platform::Result<void> append(const QString &name, const QByteArray &lines, Lasting lasting) = 0;
    /** Nothing where it cannot be read. */
    virtual std::optional<QByteArray> read(const QString &name) const = 0;
    /** The first line and the last one, without reading what is between. */
    virtual std::pair<QByteArray, QByteArray> ends(const QString &name) const = 0;
    virtual void remove(const QString &name) = 0;
};

/** Journals in files of a folder, which is made when the first one is. */
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
