#pragma once

#include "files/moving/journal_shelf.h"
#include "tests/support/model_file_system.h"

#include <QSet>

#include <map>
#include <utility>

/** Journals in memory, which can be stopped at every line, in the middle of it too. */
class ModelShelf : public files::JournalShelf
{
public:
    Fuse *fuse = nullptr;
    std::map<QString, QByteArray> journals;
    QSet<QString> held; ///< by this process
    QSet<QString> heldByOthers;

    QStringList names() const override
    {
        QStringList all;
        for (const auto &journal : journals)
            all.prepend(journal.first);
        return all;
    }
    platform::Result<void> make(const QString &name, const QByteArray &lines) override
    {
        held.insert(name);
        return add(name, lines);
    }
    bool hold(const QString &name) override
    {
        if (held.contains(name) || heldByOthers.contains(name))
            return false;
        held.insert(name);
        return true;
    }
    void letGo(const QString &name) override { held.remove(name); }
    platform::Result<void> append(const QString &name, const QByteArray &lines, files::Lasting) override
    {
        if (!held.contains(name))
            return platform::failure(platform::ErrorCode::WriteFailed, QStringLiteral("not held"));
        return add(name, lines);
    }
    std::optional<QByteArray> read(const QString &name) const override
    {
        const auto found = journals.find(name);
        return found == journals.end() ? std::nullopt : std::optional(found->second);
    }
    std::pair<QByteArray, QByteArray> ends(const QString &name) const override
    {
        const QList<QByteArray> lines = read(name).value_or(QByteArray()).split('\n');
        return {lines.first(), lines.size() > 1 && lines.last().isEmpty() ? lines[lines.size() - 2] : QByteArray()};
    }
    void remove(const QString &name) override { journals.erase(name); }

private:
    platform::Result<void> add(const QString &name, const QByteArray &lines)
    {
        const bool isCutShort = fuse && fuse->burns();
        journals[name] += isCutShort ? lines.left(lines.size() / 2) : lines;
        if (isCutShort)
            throw Killed();
        return {};
    }
};
